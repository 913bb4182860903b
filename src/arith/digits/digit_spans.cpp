#include "arith/digits/digit_spans.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <functional>

#include "expects.h"
#include "host/platform.h"
#include "text/digit_words.h"

namespace quorvex::digit_spans {
namespace {

namespace words = digit_words;

// Where digits come from: a text, or zeros without end.
struct Text {
  const char* digits;
  std::uint64_t word(std::size_t place) const { return words::Load(digits + place); }
  std::uint64_t first(std::size_t place, std::size_t count) const {
    return words::Load_First(digits + place, count);
  }
  int digit(std::size_t place) const { return digits[place] - '0'; }
};

struct Zeros {
  static std::uint64_t word(std::size_t) { return words::zeros; }
  static std::uint64_t first(std::size_t, std::size_t) { return words::zeros; }
  static int digit(std::size_t) { return 0; }
};

struct Sum {
  static std::uint64_t word(std::uint64_t a, std::uint64_t b, bool& carry) {
    return words::Add(a, b, carry);
  }
  static char digit(int a, int b, bool& carry) {
    const int sum = a + b + static_cast<int>(carry);
    carry = sum > 9;
    return static_cast<char>('0' + (carry ? sum - 10 : sum));
  }
};

struct Difference {
  static std::uint64_t word(std::uint64_t a, std::uint64_t b, bool& borrow) {
    return words::Subtract(a, b, borrow);
  }
  static char digit(int a, int b, bool& borrow) {
    const int difference = a - b - static_cast<int>(borrow);
    borrow = difference < 0;
    return static_cast<char>('0' + (borrow ? difference + 10 : difference));
  }
};

// The digits from `begin` to `end`.
template <typename Step, typename A, typename B>
bool Run_Block(char* out, A a, B b, std::size_t begin, std::size_t end, bool carry) {
  const bool has_word = end - begin >= words::size;
  while (end - begin >= words::size) {
    end -= words::size;
    words::Store(out + end, Step::word(a.word(end), b.word(end), carry));
  }
  const std::size_t rest = end - begin;
  if (rest > 0 && has_word) {
    // Zeros stand above the digits of a short word: a carry makes the lowest of them a 1, a borrow
    // a 9, which are both odd.
    const std::uint64_t word = Step::word(a.first(begin, rest), b.first(begin, rest), carry);
    words::Store_Last(out + begin, word, rest);
    return ((word >> (8 * rest)) & 1U) != 0;
  }
  while (end > begin) {
    --end;
    out[end] = Step::digit(a.digit(end), b.digit(end), carry);
  }
  return carry;
}

template <typename Step, typename A, typename B>
bool Run(char* out, A a, B b, std::size_t length, bool carry) {
  while (length > digits_between_yields) {
    const std::size_t begin = length - digits_between_yields;
    carry = Run_Block<Step>(out, a, b, begin, length, carry);
    length = begin;
    Yield();
  }
  return Run_Block<Step>(out, a, b, 0, length, carry);
}

// Where nothing is carried any more, the rest is a copy.
template <typename Step>
bool Propagate(char* out, const char* a, std::size_t length, bool carry) {
  std::size_t end = length;
  while (carry && end > 0) {
    const std::size_t begin = end - std::min(end, words::size);
    carry = Run_Block<Step>(out, Text{a}, Zeros{}, begin, end, carry);
    end = begin;
    if (end % digits_between_yields < words::size) Yield();
  }
  if (out != a && end > 0) std::memcpy(out, a, end);
  return carry;
}

// In place, or apart.
[[maybe_unused]] bool Can_Be_Output(const char* out, const char* input, std::size_t length) {
  const std::less_equal<> is_behind;
  return out == input || is_behind(out + length, input) || is_behind(input + length, out);
}

}  // namespace

bool Add(char* out, const char* a, const char* b, std::size_t length, bool carry) {
  Expects(Can_Be_Output(out, a, length) && Can_Be_Output(out, b, length));
  return Run<Sum>(out, Text{a}, Text{b}, length, carry);
}

bool Add_Carry(char* out, const char* a, std::size_t length, bool carry) {
  Expects(Can_Be_Output(out, a, length));
  return Propagate<Sum>(out, a, length, carry);
}

void Extend(std::string& number, std::size_t places, std::string_view digits) {
  const std::size_t length = number.size();
  const std::size_t behind = std::min(digits.size(), places);
  const std::size_t over = digits.size() - behind;
  Expects(over <= length);
  number.reserve(length + places);
  number.append(places - behind, '0').append(digits.substr(over));
  char* const last = number.data() + (length - over);
  const bool carry = Add(last, last, digits.data(), over, false);
  if (carry) Add_Carry(number.data(), number.data(), length - over, carry);
}

bool Subtract(char* out, const char* a, const char* b, std::size_t length, bool borrow) {
  Expects(Can_Be_Output(out, a, length) && Can_Be_Output(out, b, length));
  return Run<Difference>(out, Text{a}, Text{b}, length, borrow);
}

bool Subtract_Borrow(char* out, const char* a, std::size_t length, bool borrow) {
  Expects(Can_Be_Output(out, a, length));
  return Propagate<Difference>(out, a, length, borrow);
}

bool Complement(char* out, const char* b, std::size_t length) {
  Expects(Can_Be_Output(out, b, length));
  return Run<Difference>(out, Zeros{}, Text{b}, length, false);
}

}  // namespace quorvex::digit_spans
