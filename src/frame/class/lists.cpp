// The worksheet functions that fold a list of numbers into one.
#include "frame/class/cls_Quorvex.h"
#include "frame/class/outer_call.h"
#include "lists/max_min_function.h"
#include "lists/product_function.h"
#include "lists/sum_array.h"
#include "lists/sum_function.h"

namespace quorvex {

NumberText cls_Quorvex::qvxSUM(const HostValue& rngArray, const HostValue& format_negative,
                               const HostValue& format_thousands, const HostValue& format_currency,
                               const HostValue& exponential_notation,
                               const HostValue& maximum_significant_digits) {
  return Outer_Call([&] {
    return Sum_Array(rngArray, {format_negative, format_thousands, format_currency,
                                exponential_notation, maximum_significant_digits});
  });
}

NumberText cls_Quorvex::qvxAVERAGE(const List& numlist) {
  return Outer_Call([&] { return Sum_Function(numlist, Sum_Kind::average); });
}

NumberText cls_Quorvex::qvxPRODUCT(const List& numlist) {
  return Outer_Call([&] { return Product_Function(numlist); });
}

NumberText cls_Quorvex::qvxSUM2(const List& numlist) {
  return Outer_Call([&] { return Sum_Function(numlist, Sum_Kind::sum); });
}

NumberText cls_Quorvex::qvxCOUNT(const List& numlist) {
  return Outer_Call([&] { return Sum_Function(numlist, Sum_Kind::count); });
}

NumberText cls_Quorvex::qvxMAX(const List& numlist) {
  return Outer_Call([&] { return MaxMin_Function(numlist, Extreme::greatest); });
}

NumberText cls_Quorvex::qvxMIN(const List& numlist) {
  return Outer_Call([&] { return MaxMin_Function(numlist, Extreme::least); });
}

}  // namespace quorvex
