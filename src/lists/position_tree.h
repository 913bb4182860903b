// Values at positions that change, asked for the least of them.
#pragma once

#include <cstddef>
#include <limits>
#include <vector>

namespace quorvex {

/// A tree over a fixed count of positions. Each node holds the least value below it, so that a
/// change and a question cost the logarithm of the count.
class Position_Tree {
 public:
  /// The value of a position that is out of the question; greater than any other.
  static constexpr std::size_t nothing = std::numeric_limits<std::size_t>::max();

  explicit Position_Tree(const std::vector<std::size_t>& values);

  void set(std::size_t position, std::size_t value);

  /// The first position, from `from` on, that holds the least value there is from there on;
  /// `nothing` if none holds a value.
  std::size_t first_least(std::size_t from) const;

  /// The first position, from `from` on, with a value below `limit`; `nothing` if there is none.
  std::size_t first_below(std::size_t from, std::size_t limit) const;

 private:
  std::size_t width_;                // of the lowest row, a power of two
  std::vector<std::size_t> values_;  // the root at 1, the lowest row from `width_` on
};

}  // namespace quorvex
