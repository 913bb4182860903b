// A growing sum of short magnitudes, in which nothing is carried while it grows.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "text/operand.h"

namespace quorvex {

/// The sum of decimals without signs that have no more than so many digits on either side of the
/// point. Each column of digits is summed by itself, eight columns in a word: first in bytes, which
/// take some dozens of addends, then in lanes of two bytes, which take thousands. Only then are
/// columns brought back to single digits.
class Column_Sum {
 public:
  static constexpr std::size_t most_integer_digits = 112;
  static constexpr std::size_t most_fraction_digits = 128;

  static bool has_room_for(const Decimal_Parts& addend) {
    return addend.integer.size() <= most_integer_digits &&
           addend.fraction.size() <= most_fraction_digits;
  }

  /// Adds one for which there is room.
  void add(const Decimal_Parts& addend);

  bool is_empty() const { return count_ == 0; }

  /// A bound for the digits left of the point, and the digits right of it.
  std::size_t integer_digits() const;
  std::size_t fraction_digits() const { return longest_fraction_; }

  /// The digits of the sum, until the next change; zeros may stand before them.
  Decimal_Parts parts();

  /// Makes it empty.
  void clear();

 private:
  static constexpr std::size_t word = 8;  // digits
  // Beside the addends' digits there is room for what a million times thousand millions of them
  // carry.
  static constexpr std::size_t point = 16;  // in words
  static constexpr std::size_t words = 32;

  void reach(std::size_t first, std::size_t end);
  void spread_bytes();
  void carry();

  // Of the columns, the first in the highest byte. Words outside of `first_` to `end_` hold
  // nothing.
  std::array<std::uint64_t, words> bytes_;
  std::array<std::uint64_t, words> odd_lanes_;   // the columns 1, 3, 5 and 7 of a word
  std::array<std::uint64_t, words> even_lanes_;  // the columns 0, 2, 4 and 6
  std::array<char, words * word> digits_;        // as `parts` shows them
  std::size_t first_ = point;
  std::size_t end_ = point;
  std::size_t longest_integer_ = 0;
  std::size_t longest_fraction_ = 0;
  std::uint64_t count_ = 0;
  unsigned in_bytes_ = 0;  // addends since bytes were spread
  unsigned in_lanes_ = 0;  // times that they were, since columns were digits
};

}  // namespace quorvex
