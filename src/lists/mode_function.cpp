#include "lists/mode_function.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "host/conversions.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "lists/list_result.h"
#include "lists/list_walk.h"
#include "lists/mode_options.h"
#include "lists/mode_table.h"
#include "lists/sort_result.h"
#include "text/clean_up_number.h"

namespace quorvex {
namespace {

NumberText Formatted(std::string_view number, const List_Options& options) {
  return Finish_Text(Clean_Up_Number(number, true, true).NumClean, options);
}

// A row for each number: its count, and itself.
Array Rows_Of(const std::vector<Mode_Table::Column>& columns, const List_Options& options) {
  Array array;
  array.rows = columns.size();
  array.columns = 2;
  array.values.reserve(2 * columns.size());
  for (const Mode_Table::Column& column : columns) {
    Yield();
    array.values.emplace_back(
        Formatted(Number_To_Text(static_cast<double>(column.count)), options));
    array.values.emplace_back(Formatted(column.value, options));
  }
  return array;
}

}  // namespace

HostValue Mode_Function(const List& list, std::optional<double> rows,
                        std::optional<double> columns) {
  Mode_Options options;
  Mode_Table table;
  std::string scratch;
  For_Each_Text(list, [&](std::string_view text) {
    const std::string_view capitals = Capitals_Of(text, scratch);
    if (Is_Option_String(capitals)) {
      Read_Mode_Options(text, capitals, options);
    } else {
      table.add(capitals);
    }
    return Walk::on;
  });
  const bool is_empty = table.columns().empty();
  if (!options.table) {
    return Finish_List(is_empty ? NumberText() : table.most_frequent(), options.list);
  }
  if (is_empty) {
    throw Run_Time_Failure(Failure_Number::subscript_out_of_range,
                           "There is no number among the arguments to make a table of.");
  }
  Array array = Rows_Of(std::move(table).by_count(), options.list);
  if (!options.blank) return array;
  const Block_Size size = Size_Of_Block(rows, columns, array);
  return Copy_Sort_Result(std::move(array), size, *options.blank);
}

}  // namespace quorvex
