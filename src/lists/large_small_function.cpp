#include "lists/large_small_function.h"

#include <cmath>
#include <cstddef>
#include <string>
#include <utility>

#include "host/conversions.h"
#include "host/run_time_failure.h"
#include "lists/number_block.h"
#include "lists/sort_numbers.h"
#include "text/recognition.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

double Upper_Bound(int lower, std::size_t count) {
  return static_cast<double>(lower) + static_cast<double>(count) - 1;
}

std::size_t Offset(const std::string& what, double index, int lower, std::size_t count) {
  if (index < lower || index > Upper_Bound(lower, count)) {
    throw Run_Time_Failure(Failure_Number::subscript_out_of_range,
                           "Rounded to a whole number, k stands for " + what + " " +
                               Number_To_Text(index) + ", which the sorted block doesn't have.");
  }
  return static_cast<std::size_t>(index - lower);
}

}  // namespace

NumberText LargeSmall_Function(const HostValue& numlist, std::string_view k,
                               Sort_Direction direction) {
  if (k.empty()) return NumberText(num_token);
  Array block = Block_Of(numlist);
  const double rows = Upper_Bound(block.lower_row, block.rows);
  const double columns = Upper_Bound(block.lower_column, block.columns);
  const double place = Text_To_Number(k);
  if (place <= 0 || place > rows * columns) return NumberText(num_token);
  const Array sorted = Sort_Numbers(std::move(block), direction);

  const bool ends_column = std::fmod(place, rows) == 0;
  const double column = std::trunc(place / rows) + (ends_column ? 0 : 1);
  const double row = Nearest(place - (column - 1) * rows);
  NumberText text =
      To_Text(sorted.values[Offset("row", row, sorted.lower_row, sorted.rows) * sorted.columns +
                            Offset("column", column, sorted.lower_column, sorted.columns)]);
  return Is_Number_Text(text) ? text : NumberText(num_token);
}

}  // namespace quorvex
