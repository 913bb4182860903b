#include "text/digit_runs.h"

#include <algorithm>

#include "host/platform.h"
#include "text/digit_words.h"

namespace quorvex {
namespace {

namespace words = digit_words;

bool Is_Digit(char character) {
  return character >= '0' && character <= '9';
}

// A block is looked at as one, so that a long run costs one branch in so many digits: in vectors,
// which compilers make of this.
constexpr std::size_t block = 32;

template <std::size_t length>
bool Are_Digits(const char* text) {
  unsigned char most = 0;
  for (std::size_t place = 0; place < length; ++place) {
    most = std::max(most, static_cast<unsigned char>(text[place] - '0'));
  }
  return most <= 9;
}

// The run of digits at the start of a text that is short enough to be looked at without a yield.
std::size_t Count_Digits_In_Piece(std::string_view text) {
  const char* const data = text.data();
  const std::size_t length = text.size();
  std::size_t count = 0;
  while (count + 2 * block <= length && Are_Digits<2 * block>(data + count)) count += 2 * block;
  while (count + block <= length && Are_Digits<block>(data + count)) count += block;
  while (count + words::size <= length && words::Non_Digit_Bits(words::Load(data + count)) == 0) {
    count += words::size;
  }
  // What is left of a text of digits lies within its last word.
  if (count < length && length >= words::size && length - count < words::size &&
      words::Non_Digit_Bits(words::Load(data + length - words::size)) == 0) {
    return length;
  }
  while (count < length && Is_Digit(data[count])) ++count;
  return count;
}

}  // namespace

std::size_t Count_Many_Digits(std::string_view text) {
  std::size_t count = 0;
  for (;;) {
    const auto piece = text.substr(count, digits_between_yields);
    const std::size_t digits = Count_Digits_In_Piece(piece);
    count += digits;
    if (digits < piece.size() || count == text.size()) return count;
    Yield();
  }
}

std::size_t Count_Leading_Zeros(std::string_view text) {
  const char* const data = text.data();
  const std::size_t length = text.size();
  std::size_t count = 0;
  while (count + words::size <= length && words::Load(data + count) == words::zeros) {
    count += words::size;
  }
  while (count < length && data[count] == '0') ++count;
  return count;
}

std::size_t Count_Trailing_Zeros(std::string_view text) {
  const char* const data = text.data();
  std::size_t end = text.size();
  while (end >= words::size && words::Load(data + end - words::size) == words::zeros) {
    end -= words::size;
  }
  while (end > 0 && data[end - 1] == '0') --end;
  return text.size() - end;
}

}  // namespace quorvex
