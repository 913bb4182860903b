// Logarithms, the exponential, and the forms of a number that go with them.
#include "elementary/exponential.h"
#include "elementary/logarithm.h"
#include "elementary/mantissa_and_exponent.h"
#include "frame/class/cls_Quorvex.h"
#include "frame/class/outer_call.h"
#include "host/conversions.h"

namespace quorvex {

NumberText cls_Quorvex::Get_Mantissa(const HostValue& num, bool as_integer) {
  return Outer_Call([&] {
    std::string scratch;
    return quorvex::Get_Mantissa(Text_Of(num, scratch), as_integer);
  });
}

NumberText cls_Quorvex::Get_Exponent(const HostValue& num) {
  return Outer_Call([&] {
    std::string scratch;
    return quorvex::Get_Exponent(Text_Of(num, scratch));
  });
}

NumberText cls_Quorvex::Combine_Mantissa_And_Exponent(const NumberText& mantissa,
                                                      const NumberText& exponent) {
  return Outer_Call([&] { return quorvex::Combine_Mantissa_And_Exponent(mantissa, exponent); });
}

NumberText cls_Quorvex::Test_Mantissa_And_Exponent(const HostValue& num) {
  return Outer_Call([&] {
    std::string scratch;
    return quorvex::Test_Mantissa_And_Exponent(Text_Of(num, scratch));
  });
}

NumberText cls_Quorvex::qvxLOG(const HostValue& num, const HostValue& num_base,
                               const HostValue& exponential_notation,
                               const HostValue& maximum_significant_digits) {
  return Outer_Call([&] {
    return Log_Function(num, num_base, exponential_notation, maximum_significant_digits);
  });
}

NumberText cls_Quorvex::qvxLN(const HostValue& num, const HostValue& exponential_notation,
                              const HostValue& maximum_significant_digits) {
  return Outer_Call(
      [&] { return Ln_Function(num, exponential_notation, maximum_significant_digits); });
}

NumberText cls_Quorvex::qvxEXP(const HostValue& num, const HostValue& exponential_notation,
                               const HostValue& maximum_significant_digits) {
  return Outer_Call(
      [&] { return Exp_Function(num, exponential_notation, maximum_significant_digits); });
}

}  // namespace quorvex
