#include "native/grains.h"

#include <cstdint>
#include <cstring>

#include "native/digit_words.h"

namespace quorvex::native {
namespace {

template <std::size_t digits>
std::uint64_t Read_Group(const char* text, std::uint64_t& bad) {
  const std::uint64_t head = Load_Word(text);
  bad |= Non_Digits(head);
  if constexpr (digits == 8) return Join_Digits(head);
  const std::uint64_t tail = Load_Word(text + digits - 8);
  bad |= Non_Digits(tail);
  constexpr std::size_t shift = (8 * (16 - digits)) % 64;
  const std::uint64_t high =
      Join_Digits((head << shift) | 0x3030303030303030U >> (8 * (digits - 8)));
  return high * ten_to_8 + Join_Digits(tail);
}

// Puts groups down as two balanced points each.
template <std::int64_t base>
class Balanced_Points {
 public:
  explicit Balanced_Points(double* points) : points_(points) {}

  void put(std::uint64_t group) {
    const auto high = static_cast<std::int64_t>(group / base);
    const auto low = static_cast<std::int64_t>(group % base);
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

template <std::size_t digits, std::int64_t base>
bool Read_All(const char* text, std::size_t count, double* points) {
  const std::size_t used = 2 * ((count + digits - 1) / digits) + 1;
  std::uint64_t bad = 0;
  Balanced_Points<base> to(points);
  for (; count >= digits; count -= digits) to.put(Read_Group<digits>(text + count - digits, bad));
  if (count > 0) {
    char whole[digits];
    std::memset(whole, '0', digits);
    std::memcpy(whole + digits - count, text, count);
    to.put(Read_Group<digits>(whole, bad));
  }
  to.finish((16 - used % 16) % 16);
  return bad == 0;
}

template <std::int64_t base>
void Carry_All(double* points, std::size_t groups) {
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

}  // namespace

bool Read_Grains(const char* text, std::size_t count, const Grain& grain, double* points) {
  return grain.digits == coarse_grain.digits
             ? Read_All<coarse_grain.digits, coarse_grain.base>(text, count, points)
             : Read_All<fine_grain.digits, fine_grain.base>(text, count, points);
}

void Carry_Grains(double* points, std::size_t groups, const Grain& grain) {
  if (grain.digits == coarse_grain.digits) {
    Carry_All<coarse_grain.base>(points, groups);
  } else {
    Carry_All<fine_grain.base>(points, groups);
  }
}

}  // namespace quorvex::native
