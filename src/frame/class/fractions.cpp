// Fractions, common divisors and multiples.
#include "arith/fractions/reduce_fraction.h"
#include "frame/class/cls_Quorvex.h"
#include "frame/class/outer_call.h"
#include "host/conversions.h"
#include "lists/gcd_lcm_function.h"
#include "lists/shown_fraction.h"

namespace quorvex {

HostValue cls_Quorvex::qvxREDUCEFRACTION(const HostValue& Numerator, const HostValue& divisor,
                                         bool simplify_signs, bool always_simplify_fraction,
                                         bool return_numerator, bool return_divisor,
                                         bool return_reduced_by,
                                         std::optional<std::string_view> fraction_separator) {
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
