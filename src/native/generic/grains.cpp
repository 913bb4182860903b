#include "native/generic/grains.h"

#include <cstdint>
#include <cstring>

#include "native/generic/digit_words.h"

namespace quorvex::native {
namespace {

constexpr std::size_t digits = coarse_grain.digits;
constexpr std::int64_t base = coarse_grain.base;

// The last eight digits and those before them.
std::uint64_t Read_Group(const char* text, std::uint64_t& bad) {
  const std::uint64_t head = Load_Word(text);
  const std::uint64_t tail = Load_Word(text + digits - 8);
  bad |= Non_Digits(head) | Non_Digits(tail);
  const std::uint64_t high =
      Join_Digits((head << (128 - 8 * digits)) | 0x3030303030303030U >> (8 * (digits - 8)));
  return high * ten_to_8 + Join_Digits(tail);
}

// Puts groups down as two balanced points each.
class Balanced_Points {
 public:
  explicit Balanced_Points(double* points) : points_(points) {}

  void put(std::uint64_t group) {
    const auto high = static_cast<std::int64_t>(group / std::uint64_t{base});
    const auto low = static_cast<std::int64_t>(group % std::uint64_t{base});
    place(low);
    place(high);
  }
  void finish(std::size_t count) {
    place(0);
    std::memset(points_, 0, count * sizeof(double));
  }

 private:
  void place(std::int64_t point) {
    point += carry_;
    carry_ = point > base / 2 ? 1 : 0;
    *points_++ = static_cast<double>(point - carry_ * base);
  }

  double* points_;
  std::int64_t carry_ = 0;
};

}  // namespace

bool Read_Grains(const char* text, std::size_t count, const Grain& /*grain*/, double* points) {
  const std::size_t used = Grains_For(count, coarse_grain);
  std::uint64_t bad = 0;
  Balanced_Points to(points);
  for (; count >= digits; count -= digits) to.put(Read_Group(text + count - digits, bad));
  if (count > 0) {
    char whole[digits];
    std::memset(whole, '0', digits);
    std::memcpy(whole + digits - count, text, count);
    to.put(Read_Group(whole, bad));
  }
  to.finish((16 - used % 16) % 16);
  return bad == 0;
}

void Carry_Grains(double* points, std::size_t groups) {
  std::int64_t carry = 0;
  for (std::size_t i = 0; i < groups; ++i) {
    const std::int64_t column = static_cast<std::int64_t>(points[2 * i]) +
                                base * static_cast<std::int64_t>(points[2 * i + 1]) + carry;
    carry = column / (base * base);
    std::int64_t rest = column - carry * (base * base);
    if (rest < 0) {
      rest += base * base;
      --carry;
    }
    points[i] = static_cast<double>(rest);
  }
}

}  // namespace quorvex::native
