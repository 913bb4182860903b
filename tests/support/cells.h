// Ranges for tests, over cells that are given.
#pragma once

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

#include "host/host_value.h"

namespace quorvex {

class Given_Cells final : public Range {
 public:
  explicit Given_Cells(Array cells) : cells_(std::move(cells)) {}
  std::size_t rows() const override { return cells_.rows; }
  std::size_t columns() const override { return cells_.columns; }
  HostValue cell(std::size_t row, std::size_t column) const override {
    return cells_.values.at((row - 1) * cells_.columns + column - 1);
  }

 private:
  Array cells_;
};

/// An array of so many columns, its cells row by row.
inline Array Array_Of(std::size_t columns, std::vector<HostValue> values) {
  Array array;
  array.rows = values.size() / columns;
  array.columns = columns;
  array.values = std::move(values);
  return array;
}

/// A reference to such cells.
inline HostValue Range_Of_Cells(std::size_t columns, std::vector<HostValue> values) {
  return {std::shared_ptr<const Range>(
      std::make_shared<Given_Cells>(Array_Of(columns, std::move(values))))};
}

}  // namespace quorvex
