#include "lists/median_function.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "arith/do_operation.h"
#include "host/run_time_failure.h"
#include "lists/list_result.h"
#include "lists/list_walk.h"
#include "lists/number_ranks.h"
#include "lists/selection_order.h"
#include "text/recognition.h"

namespace quorvex {

NumberText Median_Function(const List& list) {
  List_Options options;
  std::vector<std::string> numbers;
  Walk_List(list, options, [&](std::string_view element) {
    if (Is_Number_Text(element)) numbers.emplace_back(element);
    return Walk::on;
  });
  if (numbers.empty()) {
    throw Run_Time_Failure(Failure_Number::subscript_out_of_range,
                           "There is no number among the arguments, and so no middle one.");
  }
  const std::vector<std::string_view> texts(numbers.begin(), numbers.end());
  const auto order = Selection_Order(Ranks_Of(texts, Sort_Direction::ascending));
  const std::size_t half = numbers.size() / 2;
  const NumberText& upper = numbers[order[half]];
  if (numbers.size() % 2 == 1) return Finish_List(upper, options);
  const NumberText sum = Intermediate(operation::add, numbers[order[half - 1]], upper, options.msd);
  return Finish_List(Intermediate(operation::divide, sum, "2", options.msd), options);
}

}  // namespace quorvex
