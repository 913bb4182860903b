#include "arith/digits/short_sum.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

#include "expects.h"
#include "text/digit_words.h"
#include "text/primitives.h"

namespace quorvex {
namespace {

namespace words = digit_words;

constexpr std::size_t Words_For(std::size_t digits) {
  return (digits + words::size - 1) / words::size;
}

// The words of a number, eight digits in each; the fraction begins with the word at `point`.
constexpr std::size_t point = Words_For(most_short_digits);
using Digit_Words = std::array<std::uint64_t, 2 * point>;

// The words that any of two numbers reaches; one before the point at least.
struct Reach {
  Reach(const Decimal_Parts& a, const Decimal_Parts& b)
      : fraction_digits(std::max(a.fraction.size(), b.fraction.size())),
        first(point -
              std::max(Words_For(std::max(a.integer.size(), b.integer.size())), std::size_t{1})),
        end(point + Words_For(fraction_digits)) {}
  std::size_t fraction_digits;
  std::size_t first;
  std::size_t end;
};

std::uint64_t Last_Of(std::string_view few) {
  const auto bits = static_cast<unsigned>(8 * few.size());
  return words::Load_Few(few.data(), few.size()) >> (64U - bits) | words::zeros << bits;
}

std::uint64_t First_Of(std::string_view few) {
  const auto bits = static_cast<unsigned>(8 * few.size());
  return words::Load_Few(few.data(), few.size()) | words::zeros >> bits;
}

void Lay_Out(const Decimal_Parts& parts, const Reach& reach, Digit_Words& out) {
  std::string_view integer = parts.integer;
  std::size_t place = point;
  for (; integer.size() >= words::size; integer.remove_suffix(words::size)) {
    out[--place] = words::Load(integer.data() + integer.size() - words::size);
  }
  if (!integer.empty()) out[--place] = Last_Of(integer);
  while (place > reach.first) out[--place] = words::zeros;

  std::string_view fraction = parts.fraction;
  place = point;
  for (; fraction.size() >= words::size; fraction.remove_prefix(words::size)) {
    out[place++] = words::Load(fraction.data());
  }
  if (!fraction.empty()) out[place++] = First_Of(fraction);
  while (place < reach.end) out[place++] = words::zeros;
}

// The digits of a result where they are written, with room for a sign and a carry before them and
// for the separator among them.
class Written {
 public:
  explicit Written(const Reach& reach)
      : separator_(Decimal_Separator()), reach_(reach), begin_(place_of(reach.first)) {}

  void put(std::size_t place, std::uint64_t word) { words::Store(place_of(place), word); }
  void put_carry() { *--begin_ = '1'; }

  NumberText text(bool negative) {
    char* const integer_end = place_of(point - 1) + words::size;
    const auto* const first_digit =
        std::find_if(begin_, integer_end - 1, [](char digit) { return digit != '0'; });
    begin_ += first_digit - begin_;
    char* end = integer_end;
    if (reach_.fraction_digits > 0) {
      char* const fraction = place_of(point);
      end = fraction + reach_.fraction_digits;
      while (end > fraction && end[-1] == '0') --end;
      if (end == fraction) {
        end = integer_end;
      } else {
        std::memcpy(integer_end, separator_.data(), separator_.size());
      }
    }
    const bool is_zero = end - begin_ == 1 && *begin_ == '0';
    if (negative && !is_zero) *--begin_ = '-';
    return {begin_, end};
  }

 private:
  static constexpr std::size_t room = 2;  // for sign and carry

  char* place_of(std::size_t place) {
    const std::size_t between = place < point ? 0 : separator_.size();
    return text_.data() + room + place * words::size + between;
  }

  static constexpr std::size_t longest_separator = 4;
  const std::string& separator_;
  const Reach& reach_;
  std::array<char, room + 2 * point * words::size + longest_separator> text_;
  char* begin_;
};

NumberText Sum(const Digit_Words& a, const Digit_Words& b, const Reach& reach, bool negative) {
  Written sum(reach);
  bool carry = false;
  for (std::size_t place = reach.end; place-- > reach.first;) {
    sum.put(place, words::Add(a[place], b[place], carry));
  }
  if (carry) sum.put_carry();
  return sum.text(negative);
}

NumberText Difference(const Digit_Words& a, const Digit_Words& b, const Reach& reach,
                      bool negative) {
  std::size_t first = reach.first;
  while (first < reach.end && a[first] == b[first]) ++first;
  if (first == reach.end) return "0";
  const bool swap = a[first] < b[first];
  const Digit_Words& larger = swap ? b : a;
  const Digit_Words& smaller = swap ? a : b;
  Written difference(reach);
  bool borrow = false;
  for (std::size_t place = reach.end; place-- > reach.first;) {
    difference.put(place, words::Subtract(larger[place], smaller[place], borrow));
  }
  return difference.text(negative != swap);
}

}  // namespace

NumberText Short_Sum(const Plain_Number& a, const Plain_Number& b) {
  Expects(Is_Short(a) && Is_Short(b));
  const Reach reach(a.parts, b.parts);
  Digit_Words a_words;
  Digit_Words b_words;
  Lay_Out(a.parts, reach, a_words);
  Lay_Out(b.parts, reach, b_words);
  return a.negative == b.negative ? Sum(a_words, b_words, reach, a.negative)
                                  : Difference(a_words, b_words, reach, a.negative);
}

}  // namespace quorvex
