// Decimal text eight digits at a time, in general registers.
//
// Neighbours are joined two by two: single digits to pairs, pairs to fours, fours to eight, each
// step one multiplication for the whole word; and parted again by multiplying with reciprocals.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "expects.h"

namespace quorvex::native {

__extension__ using Wide = unsigned __int128;

inline constexpr std::uint64_t ten_to_8 = 100'000'000;

/// Eight characters, the first in the lowest byte.
static inline std::uint64_t Load_Word(const char* text) {
  std::uint64_t word = 0;
  std::memcpy(&word, text, sizeof word);
  if constexpr (std::endian::native == std::endian::big) word = __builtin_bswap64(word);
  return word;
}

static inline void Store_Word(char* text, std::uint64_t word) {
  if constexpr (std::endian::native == std::endian::big) word = __builtin_bswap64(word);
  std::memcpy(text, &word, sizeof word);
}

/// Four characters, the first in the lowest byte.
static inline std::uint32_t Load_Half(const char* text) {
  std::uint32_t half = 0;
  std::memcpy(&half, text, sizeof half);
  if constexpr (std::endian::native == std::endian::big) half = __builtin_bswap32(half);
  return half;
}

static inline void Store_Half(char* text, std::uint32_t half) {
  if constexpr (std::endian::native == std::endian::big) half = __builtin_bswap32(half);
  std::memcpy(text, &half, sizeof half);
}

/// Nonzero exactly if a byte of the word is no digit. 0x76 takes every value of 10 and more to the
/// high bit; a byte runs over only in a word that is bad already.
static inline std::uint64_t Non_Digits(std::uint64_t word) {
  const std::uint64_t values = word ^ 0x3030303030303030U;
  return ((values + 0x7676767676767676U) | values) & 0x8080808080808080U;
}

/// The numbers that the first and the last four of eight digits write, the first one in the low
/// half. What a product has above the number of a pair or a four reaches its neighbour's low part,
/// which has room for it and is cut off.
static inline std::uint64_t Join_To_Fours(std::uint64_t word) {
  word &= 0x0F0F0F0F0F0F0F0FU;
  word = (word * (10 * (1U << 8U) + 1) >> 8U) & 0x00FF00FF00FF00FFU;
  return (word * (100 * (1U << 16U) + 1) >> 16U) & 0x0000FFFF0000FFFFU;
}

/// The number that eight digits write.
static inline std::uint64_t Join_Digits(std::uint64_t word) {
  return Join_To_Fours(word) * (10'000 * (std::uint64_t{1} << 32U) + 1) >> 32U;
}

/// The eight digits of a number below 10^8. 10,486 / 2^20 and 103 / 2^10 are the reciprocals of
/// 100 and 10, exact for all numbers below 10^4 and 100.
static inline std::uint64_t Part_Digits(std::uint64_t number) {
  const std::uint64_t high = number / 10'000;
  const std::uint64_t fours = high | ((number - high * 10'000) << 32U);
  const std::uint64_t hundreds = ((fours * 10'486) >> 20U) & 0x0000007F0000007FU;
  const std::uint64_t pairs = hundreds | ((fours - hundreds * 100) << 16U);
  const std::uint64_t tens = ((pairs * 103) >> 10U) & 0x000F000F000F000FU;
  return (tens | ((pairs - tens * 10) << 8U)) | 0x3030303030303030U;
}

static constexpr std::uint64_t Ten_To_The(std::size_t exponent) {
  std::uint64_t power = 1;
  for (; exponent > 0; --exponent) power *= 10;
  return power;
}

/// The characters of all numbers of two digits.
static constexpr auto pairs_of_digits = [] {
  std::array<char, 200> pairs{};
  for (std::size_t i = 0; i < 100; ++i) {
    pairs[2 * i] = static_cast<char>('0' + i / 10);
    pairs[2 * i + 1] = static_cast<char>('0' + i % 10);
  }
  return pairs;
}();

/// Writes two digits of a number that has no more.
static inline void Write_Two(char* text, std::uint64_t number) {
  std::memcpy(text, &pairs_of_digits[2 * number], 2);
}

/// Writes so many digits, an even count from four to twelve, of a number that has no more.
///
/// The number is taken as one of two digits with a fraction of 64 bits; a hundred times the
/// fraction is two digits more. The fraction is too large by less than 2^-56, which the steps leave
/// below a quarter of the last digit; it must not be too small at all, as pairs are rounded down.
template <std::size_t digits>
static inline void Write_Pairs(char* out, std::uint64_t number) {
  static_assert(digits % 2 == 0 && digits >= 4 && digits <= 12);
  constexpr std::uint64_t divisor = Ten_To_The(digits - 2);
  constexpr auto shift = static_cast<unsigned>(std::bit_width(divisor)) - 1;
  constexpr auto reciprocal = static_cast<std::uint64_t>((Wide{1} << (64U + shift)) / divisor + 1);
  Wide pair = (Wide{number} * reciprocal >> shift) + 1;
  for (std::size_t place = 0; place < digits; place += 2) {
    Write_Two(out + place, static_cast<std::uint64_t>(pair >> 64U));
    pair = Wide{static_cast<std::uint64_t>(pair)} * 100;
  }
}

/// The last `count` (1 to 8) of eight digits as a word, from a text that has no more; zeros before.
static inline std::uint64_t Load_Short(const char* text, std::size_t count) {
  constexpr std::uint64_t zeros = 0x3030303030303030U;
  if (count == 8) return Load_Word(text);
  const std::size_t shift = 8 * (8 - count);
  const std::uint64_t before = zeros >> (8 * count);
  const auto at = [text](std::size_t i) {
    return std::uint64_t{static_cast<unsigned char>(text[i])};
  };
  if (count < 4) {
    return before | at(0) << shift | at(count / 2) << (shift + 8 * (count / 2)) |
           at(count - 1) << 56U;
  }
  return before | std::uint64_t{Load_Half(text)} << shift |
         std::uint64_t{Load_Half(text + count - 4)} << 32U;
}

/// Writes the first `count` characters of a word.
static inline void Store_Short(char* text, std::uint64_t word, std::size_t count) {
  Expects(count > 0 && count <= sizeof word);
  if (count == 8) return Store_Word(text, word);
  if (count >= 4) {
    Store_Half(text, static_cast<std::uint32_t>(word));
    Store_Half(text + count - 4, static_cast<std::uint32_t>(word >> (8 * (count - 4))));
    return;
  }
  text[0] = static_cast<char>(word);
  text[count / 2] = static_cast<char>(word >> (8 * (count / 2)));
  text[count - 1] = static_cast<char>(word >> (8 * (count - 1)));
}

/// The number that two digits write; `bad` as by Non_Digits.
static inline std::uint64_t Read_Two(const char* text, std::uint64_t& bad) {
  const auto first = static_cast<std::uint64_t>(static_cast<unsigned char>(text[0])) ^ 0x30U;
  const auto second = static_cast<std::uint64_t>(static_cast<unsigned char>(text[1])) ^ 0x30U;
  bad |= static_cast<std::uint64_t>(first > 9) | static_cast<std::uint64_t>(second > 9);
  return first * 10 + second;
}

/// Writes a number without leading zeros and returns the count of its digits.
static inline std::size_t Write_Number(char* out, std::uint64_t number) {
  Expects(number > 0);
  if (number >= ten_to_8) {
    const std::uint64_t high = number / ten_to_8;
    const std::size_t count = Write_Number(out, high);
    Store_Word(out + count, Part_Digits(number - high * ten_to_8));
    return count + 8;
  }
  const std::uint64_t digits = Part_Digits(number);
  const auto zero_bits = static_cast<std::size_t>(std::countr_zero(digits & 0x0F0F0F0F0F0F0F0FU));
  const std::size_t leading = zero_bits / 8;
  Store_Short(out, digits >> (8 * leading), 8 - leading);
  return 8 - leading;
}

}  // namespace quorvex::native
