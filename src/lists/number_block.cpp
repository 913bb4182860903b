#include "lists/number_block.h"

#include "host/platform.h"
#include "host/run_time_failure.h"

namespace quorvex {
namespace {

using Kind = HostValue::Kind;

Array Cells_Of(const Range& range) {
  Array block;
  block.rows = range.rows();
  block.columns = range.columns();
  block.values.reserve(block.rows * block.columns);
  for (std::size_t row = 1; row <= block.rows; ++row) {
    for (std::size_t column = 1; column <= block.columns; ++column) {
      block.values.push_back(range.cell(row, column));
      if (block.values.size() % steps_between_yields == 0) Yield();
    }
  }
  return block;
}

const HostValue& Without_List(const HostValue& numlist) {
  const bool is_list_of_one = numlist.kind() == Kind::list && numlist.list().size() == 1;
  return is_list_of_one ? Without_List(numlist.list().front()) : numlist;
}

}  // namespace

Number_Block::Number_Block(const HostValue& numlist) : array_(&cells_) {
  const HostValue& block = Without_List(numlist);
  if (block.kind() == Kind::array) {
    array_ = &block.array();
    return;
  }
  if (block.kind() != Kind::range || Is_Single_Cell(block)) {
    throw Run_Time_Failure(Failure_Number::type_mismatch,
                           "The numbers must stand in an array or a range of several cells.");
  }
  cells_ = Cells_Of(block.range());
}

}  // namespace quorvex
