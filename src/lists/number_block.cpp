#include "lists/number_block.h"

#include "host/run_time_failure.h"
#include "lists/list_walk.h"

namespace quorvex {

using Kind = HostValue::Kind;

Array Block_Of(const HostValue& numlist) {
  if (numlist.kind() == Kind::list && numlist.list().size() == 1) {
    return Block_Of(numlist.list().front());
  }
  if (numlist.kind() == Kind::array) return numlist.array();
  if (numlist.kind() != Kind::range || Is_Single_Cell(numlist)) {
    throw Run_Time_Failure(Failure_Number::type_mismatch,
                           "The numbers must stand in an array or a range of several cells.");
  }
  Array block;
  block.rows = numlist.range().rows();
  block.columns = numlist.range().columns();
  block.values.reserve(block.rows * block.columns);
  For_Each_Cell(numlist, [&](const HostValue& cell) {
    block.values.push_back(cell);
    return Walk::on;
  });
  return block;
}

}  // namespace quorvex
