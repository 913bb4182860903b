#include "formula/render.h"

#include <cmath>
#include <utility>

#include "formula/formula.h"
#include "host/conversions.h"
#include "host/platform.h"

namespace quorvex {

namespace {

std::string Rendered_Range(const Range& range) {
  Array array;
  array.rows = range.rows();
  array.columns = range.columns();
  for (std::size_t row = 1; row <= array.rows; ++row) {
    Yield();
    for (std::size_t column = 1; column <= array.columns; ++column) {
      array.values.push_back(range.cell(row, column));
    }
  }
  return array.values.size() == 1 ? Render(array.values[0]) : Constant_Text(std::move(array));
}

std::string Rendered_List(const List& list) {
  Array array;
  array.rows = 1;
  array.columns = list.size();
  array.values = list;
  return Constant_Text(std::move(array));
}

}  // namespace

std::string Render(const HostValue& value) {
  switch (value.kind()) {
    case HostValue::Kind::text:
      return value.text();
    case HostValue::Kind::number:
      return std::isfinite(value.number()) ? Number_To_Text(value.number()) : "#NUM!";
    case HostValue::Kind::range:
      return Rendered_Range(value.range());
    case HostValue::Kind::list:
      return Rendered_List(value.list());
    default:
      return Constant_Text(value);
  }
}

}  // namespace quorvex
