#include "lists/median_function.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "arith/operation/four_operations.h"
#include "arith/operation/operation_codes.h"
#include "host/run_time_failure.h"
#include "lists/list_result.h"
#include "lists/list_walk.h"
#include "lists/number_ranks.h"
#include "lists/selection_order.h"

namespace quorvex {
namespace {

// The numbers among the elements of a list, and their ranks.
struct Numbers {
  explicit Numbers(const std::vector<std::string>& elements)
      : texts(elements.begin(), elements.end()), ranks(Ranks_Of(texts, Sort_Direction::ascending)) {
    std::size_t kept = 0;
    for (std::size_t i = 0; i < texts.size(); ++i) {
      if (ranks[i] == no_number_rank) continue;
      texts[kept] = texts[i];
      ranks[kept++] = ranks[i];
    }
    texts.resize(kept);
    ranks.resize(kept);
  }

  std::vector<std::string_view> texts;
  std::vector<std::size_t> ranks;
};

}  // namespace

NumberText Median_Function(const List& list) {
  List_Options options;
  std::vector<std::string> elements;
  Walk_List(list, options, [&](const List_Element& element) {
    elements.emplace_back(element.text);
    return Walk::on;
  });
  const Numbers numbers(elements);
  if (numbers.texts.empty()) {
    throw Run_Time_Failure(Failure_Number::subscript_out_of_range,
                           "There is no number among the arguments, and so no middle one.");
  }
  const auto order = Selection_Order(numbers.ranks);
  const std::size_t half = order.size() / 2;
  const std::string_view upper = numbers.texts[order[half]];
  if (order.size() % 2 == 1) return Finish_List(NumberText(upper), options);
  const NumberText sum =
      Intermediate(operation::add, numbers.texts[order[half - 1]], upper, options.msd);
  return Finish_List(Intermediate(operation::divide, sum, "2", options.msd), options);
}

}  // namespace quorvex
