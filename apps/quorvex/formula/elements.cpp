#include "formula/elements.h"

#include "host/conversions.h"
#include "host/platform.h"

namespace quorvex {

bool Is_Block(const HostValue& value) {
  return value.kind() == HostValue::Kind::array ||
         (value.kind() == HostValue::Kind::range && !Is_Single_Cell(value));
}

HostValue Single(const HostValue& value) {
  switch (value.kind()) {
    case HostValue::Kind::missing:
      return HostValue::Empty();
    case HostValue::Kind::range:
      return Cell_Of(value);
    case HostValue::Kind::list:
      return Error_Code::value;
    default:
      return value;
  }
}

std::size_t Elements::rows() const {
  if (!Is_Block(value_)) return 1;
  return value_.kind() == HostValue::Kind::array ? value_.array().rows : value_.range().rows();
}

std::size_t Elements::columns() const {
  if (!Is_Block(value_)) return 1;
  return value_.kind() == HostValue::Kind::array ? value_.array().columns
                                                 : value_.range().columns();
}

bool Elements::reach(std::size_t row, std::size_t column) const {
  return (rows() == 1 || row < rows()) && (columns() == 1 || column < columns());
}

HostValue Elements::at(std::size_t row, std::size_t column) const {
  if (!Is_Block(value_)) return Single(value_);
  if (!reach(row, column)) return Error_Code::not_available;
  const std::size_t width = columns();
  if (rows() == 1) row = 0;
  if (width == 1) column = 0;
  if (value_.kind() == HostValue::Kind::range) return value_.range().cell(row + 1, column + 1);
  return Single(value_.array().values[row * width + column]);
}

Array Empty_Block(std::size_t rows, std::size_t columns) {
  Yield();
  Require_Memory(static_cast<double>(rows) * static_cast<double>(columns) * sizeof(HostValue));
  Array block;
  block.rows = rows;
  block.columns = columns;
  block.values.reserve(rows * columns);
  return block;
}

}  // namespace quorvex
