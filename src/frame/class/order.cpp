// The worksheet functions of order.
#include "frame/class/cls_Quorvex.h"
#include "frame/class/outer_call.h"
#include "lists/large_small_function.h"
#include "lists/median_function.h"
#include "lists/mode_function.h"
#include "lists/rank_function.h"
#include "lists/sort_function.h"

namespace quorvex {

NumberText cls_Quorvex::qvxMEDIAN(const List& numlist) {
  return Outer_Call([&] { return Median_Function(numlist); });
}

HostValue cls_Quorvex::qvxMODE(const List& numlist, std::optional<double> rows,
                               std::optional<double> cols) {
  return Outer_Call([&] { return Mode_Function(numlist, rows, cols); });
}

HostValue cls_Quorvex::qvxSORT(const HostValue& numlist, bool descending, bool left_to_right,
                               bool fit_to_array, std::optional<std::string_view> blank_text,
                               std::optional<double> rows, std::optional<double> cols) {
  return Outer_Call([&] {
    return Sort_Function(numlist, {descending, left_to_right, fit_to_array,
                                   NumberText(blank_text.value_or("")), rows, cols});
  });
}

NumberText cls_Quorvex::qvxLARGE(const HostValue& numlist, const NumberText& k) {
  return Outer_Call([&] { return LargeSmall_Function(numlist, k, Sort_Direction::descending); });
}

NumberText cls_Quorvex::qvxSMALL(const HostValue& numlist, const NumberText& k) {
  return Outer_Call([&] { return LargeSmall_Function(numlist, k, Sort_Direction::ascending); });
}

NumberText cls_Quorvex::qvxRANK(const NumberText& num, const HostValue& numlist, bool ascending,
                                bool tie_compensation) {
  return Outer_Call([&] {
    return Rank_Function(num, numlist,
                         ascending ? Sort_Direction::ascending : Sort_Direction::descending,
                         tie_compensation);
  });
}

}  // namespace quorvex
