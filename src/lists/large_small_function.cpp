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
  const Number_Block block(numlist);
  const Array& numbers = block.array();
  const double rows = Upper_Bound(numbers.lower_row, numbers.rows);
  const double columns = Upper_Bound(numbers.lower_column, numbers.columns);
  const double wanted = Text_To_Number(k);
  if (wanted <= 0 || wanted > rows * columns) return NumberText(num_token);
  const auto indices = Sorted_Indices(numbers, Cell_Path::by_column, direction);

  const bool ends_column = std::fmod(wanted, rows) == 0;
  const double column = std::trunc(wanted / rows) + (ends_column ? 0 : 1);
  const double row = Nearest(wanted - (column - 1) * rows);
  const std::size_t place = Offset("row", row, numbers.lower_row, numbers.rows) * numbers.columns +
                            Offset("column", column, numbers.lower_column, numbers.columns);
  NumberText text = To_Text(numbers.values[indices[place]]);
  return Is_Number_Text(text) ? text : NumberText(num_token);
}

}  // namespace quorvex
