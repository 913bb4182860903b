// Eight digits at a time: ASCII digits in a 64-bit word, the first digit in the highest byte.
//
// The method is that of packed decimal arithmetic in general registers: bytes are biased so that
// the carry of a decimal digit is the carry of its byte (H. S. Warren, Hacker's Delight, 2nd ed.,
// section 2-18, on arithmetic within the bytes of a word).
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "expects.h"

namespace quorvex::digit_words {

inline constexpr std::size_t size = 8;

/// The same byte in all eight places.
constexpr std::uint64_t Repeat(unsigned char byte) {
  return 0x0101010101010101U * byte;
}

inline constexpr std::uint64_t zeros = Repeat('0');

inline std::uint64_t Swap_If_Little(std::uint64_t word) {
  if constexpr (std::endian::native == std::endian::little) return __builtin_bswap64(word);
  return word;
}

inline std::uint64_t Load(const char* digits) {
  std::uint64_t word = 0;
  std::memcpy(&word, digits, size);
  return Swap_If_Little(word);
}

inline void Store(char* digits, std::uint64_t word) {
  word = Swap_If_Little(word);
  std::memcpy(digits, &word, size);
}

/// A text of fewer than eight characters in the high bytes of a word, null bytes behind them.
inline std::uint64_t Load_Few(const char* text, std::size_t count) {
  Expects(count > 0 && count < size);
  const auto to_place = [](std::size_t place) { return 8 * (size - 1 - place); };
  if (count < size / 2) {
    const auto at = [&](std::size_t place) {
      return std::uint64_t{static_cast<unsigned char>(text[place])} << to_place(place);
    };
    return at(0) | at(count / 2) | at(count - 1);
  }
  // Two halves that overlap.
  std::uint32_t first = 0;
  std::uint32_t last = 0;
  std::memcpy(&first, text, sizeof first);
  std::memcpy(&last, text + count - sizeof last, sizeof last);
  if constexpr (std::endian::native == std::endian::little) {
    first = __builtin_bswap32(first);
    last = __builtin_bswap32(last);
  }
  return std::uint64_t{first} << 32U | std::uint64_t{last} << to_place(count - 1);
}

/// The first `count` digits of a text in the low bytes of a word, zeros above. The text must have
/// eight characters all the same.
inline std::uint64_t Load_First(const char* digits, std::size_t count) {
  Expects(count > 0 && count < size);
  const auto bits = static_cast<unsigned>(8 * count);
  return (Load(digits) >> (64U - bits)) | (zeros << bits);
}

/// Writes the low `count` bytes of a word.
inline void Store_Last(char* digits, std::uint64_t word, std::size_t count) {
  for (; count > 0; word >>= 8U) digits[--count] = static_cast<char>(word);
}

/// Nonzero exactly if any byte is no digit. A byte with '0' taken off is 0 to 9 for a digit; adding
/// 0x76 takes every other value to the high bit or beyond, and a byte runs over only in a word that
/// is bad already.
inline std::uint64_t Non_Digit_Bits(std::uint64_t word) {
  const std::uint64_t values = word ^ zeros;
  return ((values + Repeat(0x76)) | values) & Repeat(0x80);
}

/// How many digits the word begins with. Nothing runs over from one byte into the next here, so
/// each byte is judged by itself.
inline std::size_t Leading_Digits(std::uint64_t word) {
  const std::uint64_t values = word ^ zeros;
  const std::uint64_t others = (((values & Repeat(0x7F)) + Repeat(0x76)) | values) & Repeat(0x80);
  return static_cast<std::size_t>(std::countl_zero(others)) / size;
}

/// Takes the bias off bytes that hold a digit (0 to 9) or a digit plus 0xF6, and makes them ASCII.
inline std::uint64_t Unbias(std::uint64_t word) {
  const std::uint64_t biased = (word >> 7U) & Repeat(0x01);
  return (word - biased * 0xF6U) | zeros;
}

/// The digits of `a` plus `b` plus `carry`; `carry` becomes what runs over. Each byte is biased by
/// 0xF6, so that it runs over exactly when its digits reach ten.
inline std::uint64_t Add(std::uint64_t a, std::uint64_t b, bool& carry) {
  std::uint64_t sum = 0;
  const bool first = __builtin_add_overflow(a + Repeat(0x96), b, &sum);
  const bool second = __builtin_add_overflow(sum, std::uint64_t{carry}, &sum);
  carry = first || second;
  return Unbias(sum);
}

/// The digits of `a` less `b` less `borrow`; `borrow` becomes what is owed. A byte that borrows
/// gains 256 where its digit gains ten, which leaves it 0xF6 too high.
inline std::uint64_t Subtract(std::uint64_t a, std::uint64_t b, bool& borrow) {
  std::uint64_t difference = 0;
  const bool first = __builtin_sub_overflow(a, b, &difference);
  const bool second = __builtin_sub_overflow(difference, std::uint64_t{borrow}, &difference);
  borrow = first || second;
  return Unbias(difference);
}

}  // namespace quorvex::digit_words
