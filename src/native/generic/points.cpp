#include "native/generic/points.h"

#include <cstring>

#include "native/generic/digit_words.h"

namespace quorvex::native {
namespace {

// Ten or twelve digits are the last eight and those before them.
template <std::size_t digits>
double Read_Whole(const char* text, std::uint64_t& bad) {
  const std::uint64_t head = Load_Word(text);
  const std::uint64_t tail = Load_Word(text + digits - 8);
  bad |= Non_Digits(head) | Non_Digits(tail);
  const std::uint64_t high =
      Join_Digits((head << (128 - 8 * digits)) | 0x3030303030303030U >> (8 * (digits - 8)));
  return static_cast<double>(high * ten_to_8 + Join_Digits(tail));
}

template <std::size_t digits>
bool Read_All(const char* text, std::size_t count, double* points) {
  std::uint64_t bad = 0;
  for (; count >= digits; ++points) {
    count -= digits;
    *points = Read_Whole<digits>(text + count, bad);
  }
  if (count > 0) {
    char whole[digits];
    std::memset(whole, '0', digits);
    std::memcpy(whole + digits - count, text, count);
    *points = Read_Whole<digits>(whole, bad);
  }
  return bad == 0;
}

template <std::size_t digits>
std::size_t Write_All(const double* points, std::size_t count, char* out) {
  while (points[count - 1] == 0) --count;
  // Signed numbers are what machines convert.
  const auto number = [points](std::size_t i) {
    return static_cast<std::uint64_t>(static_cast<std::int64_t>(points[i]));
  };
  std::size_t written = Write_Number(out, number(count - 1));
  for (std::size_t i = count - 1; i-- > 0; written += digits)
    Write_Pairs<digits>(out + written, number(i));
  return written;
}

}  // namespace

bool Read_Points(const char* text, std::size_t count, const Cut& cut, double* points) {
  return cut.digits == 12 ? Read_All<12>(text, count, points) : Read_All<10>(text, count, points);
}

std::size_t Write_Points(const double* points, std::size_t count, std::size_t digits, char* out) {
  if (digits == 8) return Write_All<8>(points, count, out);
  return digits == 12 ? Write_All<12>(points, count, out) : Write_All<10>(points, count, out);
}

}  // namespace quorvex::native
