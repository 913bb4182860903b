#include "lists/sum_function.h"

#include <utility>

#include "arith/operation/four_operations.h"
#include "arith/operation/operation_codes.h"
#include "host/conversions.h"
#include "lists/list_result.h"
#include "lists/list_walk.h"
#include "lists/running_sum.h"

namespace quorvex {
namespace {

NumberText Mean(NumberText sum, double count, double msd) {
  if (Text_To_Number(sum) == 0 || count == 0) return sum;
  return Intermediate(operation::divide, sum, Number_To_Text(count), msd);
}

}  // namespace

NumberText Sum_Function(const List& list, Sum_Kind kind) {
  List_Options options;
  Running_Sum sum;
  double count = 0;
  Walk_List(list, options, [&](const List_Element& element) {
    const bool is_added = element.plain != nullptr && sum.add_plain(*element.plain, options.msd);
    if (is_added || sum.add(element.text, options.msd)) ++count;
    return Walk::on;
  });
  if (kind == Sum_Kind::count) return Finish_List(Number_To_Text(count), options);
  NumberText result = sum.text();
  if (kind == Sum_Kind::average) result = Mean(std::move(result), count, options.msd);
  return Finish_List(std::move(result), options);
}

}  // namespace quorvex
