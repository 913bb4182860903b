// Decimal text eight digits at a time, in general registers.
//
// Neighbours are joined two by two: single digits to pairs, pairs to fours, fours to eight, each
// step one multiplication for the whole word; and parted again by multiplying with reciprocals.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

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

/// Nonzero exactly if a byte of the word is no digit. 0x76 takes every value of 10 and more to the
/// high bit; a byte runs over only in a word that is bad already.
static inline std::uint64_t Non_Digits(std::uint64_t word) {
  const std::uint64_t values = word ^ 0x3030303030303030U;
  return ((values + 0x7676767676767676U) | values) & 0x8080808080808080U;
}

/// The number that eight digits write.
static inline std::uint64_t Join_Digits(std::uint64_t word) {
  word &= 0x0F0F0F0F0F0F0F0FU;
  word = (word * 10 + (word >> 8U)) & 0x00FF00FF00FF00FFU;
  word = (word * 100 + (word >> 16U)) & 0x0000FFFF0000FFFFU;
  return (word * 10'000 + (word >> 32U)) & 0xFFFFFFFFU;
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

/// The count of decimal digits, 1 for zero.
static inline std::size_t Count_Digits(std::uint64_t number) {
  std::size_t count = 1;
  for (; number >= 10'000; number /= 10'000) count += 4;
  return count + (number >= 10) + (number >= 100) + (number >= 1000);
}

}  // namespace quorvex::native
