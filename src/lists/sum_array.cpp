#include "lists/sum_array.h"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

#include "arith/do_operation.h"
#include "host/conversions.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "lists/list_walk.h"
#include "lists/running_sum.h"

namespace quorvex {
namespace {

using Kind = HostValue::Kind;

// A sum that a cell which is no number turns into a token. The limit is read once; what one that
// can't be read gives is for each addition to say, as its operands may be tokens.
class Checked_Sum {
 public:
  explicit Checked_Sum(const HostValue& maximum_significant_digits)
      : limit_(maximum_significant_digits) {
    With_Handler([&] { options_ = Restrictionator({.maximum_significant_digits = limit_}); },
                 [](const Run_Time_Failure&) {});
    if (!options_) failed_ = "0";
  }

  void add(const HostValue& cell) {
    if (!failed_ && add_number(cell)) return;
    const HostValue sum = failed_ ? *failed_ : sum_.text();
    failed_ = options_
                  ? Do_Operation_On_Values(operation::add, sum, cell, *options_, {.is_step = true})
                  : Do_Operation(operation::add, sum, cell, {.maximum_significant_digits = limit_},
                                 {.is_step = true});
  }

  NumberText text() { return failed_ ? *failed_ : sum_.text(); }

 private:
  bool add_number(const HostValue& cell) {
    const Kind kind = cell.kind();
    if (kind != Kind::text && kind != Kind::number && kind != Kind::empty) return false;
    std::string scratch;
    return sum_.add(Text_Of(cell, scratch), options_->maxSD);
  }

  const HostValue& limit_;
  std::optional<type_Restrictionator> options_;
  Running_Sum sum_;
  std::optional<NumberText> failed_;  // once a cell has failed, what additions give
};

// The elements from row 1 and column 1 on.
void Add_Array(const Array& array, Checked_Sum& sum) {
  const auto last_row = array.lower_row + static_cast<std::int64_t>(array.rows) - 1;
  const auto last_column = array.lower_column + static_cast<std::int64_t>(array.columns) - 1;
  if (last_row < 1 || last_column < 1) return;
  if (array.lower_row > 1 || array.lower_column > 1) {
    throw Run_Time_Failure(Failure_Number::subscript_out_of_range,
                           "The array has no row or no column of number 1.");
  }
  for (std::int64_t row = 1; row <= last_row; ++row) {
    const auto start = static_cast<std::size_t>(row - array.lower_row) * array.columns;
    for (std::int64_t column = 1; column <= last_column; ++column) {
      Yield();
      sum.add(array.values[start + static_cast<std::size_t>(column - array.lower_column)]);
    }
  }
}

}  // namespace

NumberText Sum_Array(const HostValue& block, const Format_Arguments& format) {
  Checked_Sum sum(format.maximum_significant_digits);
  if (block.kind() == Kind::array) {
    Add_Array(block.array(), sum);
  } else if (block.kind() == Kind::range && !Is_Single_Cell(block)) {
    For_Each_Cell(block, [&](const HostValue& cell) {
      sum.add(cell);
      return Walk::on;
    });
  } else {
    throw Run_Time_Failure(Failure_Number::type_mismatch,
                           "A sum of cells takes an array or a range of several cells.");
  }
  return Do_Operation(operation::add, sum.text(), 0, format, {.is_step = true});
}

}  // namespace quorvex
