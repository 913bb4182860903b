// Values taken element by element: arrays and ranges of several cells, and single values beside
// them.
#pragma once

#include <algorithm>
#include <cstddef>
#include <utility>

#include "host/host_value.h"

namespace quorvex {

/// True for an array, and for a range of more than one cell.
bool Is_Block(const HostValue& value);

/// What stands for a value where a single one is asked for: a blank for a missing one, the cell of
/// a range of one cell, else itself.
HostValue Single(const HostValue& value);

/// A value as a block. Where it has a single row or column, that stands for each one.
class Elements {
 public:
  explicit Elements(const HostValue& value) : value_(value) {}

  std::size_t rows() const;
  std::size_t columns() const;
  /// Whether a value stands there. Rows and columns count from 0.
  bool reach(std::size_t row, std::size_t column) const;
  /// #N/A where there is none.
  HostValue at(std::size_t row, std::size_t column) const;

 private:
  const HostValue& value_;
};

/// An array without values of its own yet. Fails with out_of_memory where it would be too large.
Array Empty_Block(std::size_t rows, std::size_t columns);

/// The array of what `make` gives for each row and column of a block of that size.
template <typename Make>
HostValue Block_Of(std::size_t rows, std::size_t columns, const Make& make) {
  Array block = Empty_Block(rows, columns);
  for (std::size_t row = 0; row < rows; ++row) {
    for (std::size_t column = 0; column < columns; ++column)
      block.values.push_back(make(row, column));
  }
  return block;
}

/// What `make` gives for a value, or for each element of a block.
template <typename Make>
HostValue Each(const HostValue& value, const Make& make) {
  if (!Is_Block(value)) return make(Single(value));
  const Elements elements(value);
  return Block_Of(elements.rows(), elements.columns(), [&](std::size_t row, std::size_t column) {
    return make(elements.at(row, column));
  });
}

/// The same for two values, each element of the one with that of the other.
template <typename Make>
HostValue Each_Pair(const HostValue& left, const HostValue& right, const Make& make) {
  if (!Is_Block(left) && !Is_Block(right)) return make(Single(left), Single(right));
  const Elements lefts(left);
  const Elements rights(right);
  return Block_Of(std::max(lefts.rows(), rights.rows()),
                  std::max(lefts.columns(), rights.columns()),
                  [&](std::size_t row, std::size_t column) {
                    return make(lefts.at(row, column), rights.at(row, column));
                  });
}

}  // namespace quorvex
