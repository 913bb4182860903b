// The worksheet functions of lists and of fractions.
#include "frame/cls_Quorvex.h"

#include "arith/fractions/reduce_fraction.h"
#include "frame/outer_call.h"
#include "host/conversions.h"
#include "lists/gcd_lcm_function.h"
#include "lists/max_min_function.h"
#include "lists/product_function.h"
#include "lists/shown_fraction.h"
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

HostValue cls_Quorvex::qvxREDUCEFRACTION(const HostValue& Numerator, const HostValue& divisor,
                                         bool simplify_signs, bool always_simplify_fraction,
                                         bool return_numerator, bool return_divisor,
                                         bool return_reduced_by,
                                         const std::optional<NumberText>& fraction_separator) {
  return Outer_Call([&] {
    std::string scratch1;
    std::string scratch2;
    return Shown_Fraction(Reduce_Fraction(Text_Of(Numerator, scratch1), Text_Of(divisor, scratch2),
                                          {simplify_signs, always_simplify_fraction}),
                          {return_numerator, return_divisor, return_reduced_by},
                          fraction_separator);
  });
}

HostValue cls_Quorvex::qvxGCD(const List& numlist) {
  return Outer_Call([&] { return GCD_Function(numlist, Element_Form::truncated); });
}

HostValue cls_Quorvex::qvxGCD2(const List& numlist) {
  return Outer_Call([&] { return GCD_Function(numlist, Element_Form::whole); });
}

HostValue cls_Quorvex::qvxLCM(const List& numlist) {
  return Outer_Call([&] { return LCM_Function(numlist, Element_Form::truncated); });
}

HostValue cls_Quorvex::qvxLCM2(const List& numlist) {
  return Outer_Call([&] { return LCM_Function(numlist, Element_Form::whole); });
}

}  // namespace quorvex
