// The parts of a division, for macros.
#include "arith/division/recip_divide.h"
#include "frame/class/cls_Quorvex.h"
#include "frame/class/outer_call.h"

namespace quorvex {

HostValue cls_Quorvex::DivisionDecimalPosition(const NumberText& divisor,
                                               const NumberText& dividend) {
  return Outer_Call([&] { return quorvex::DivisionDecimalPosition(divisor, dividend); });
}

type_Division_Recip cls_Quorvex::Recip_Divide(NumberText& iBig, NumberText& kBig,
                                              std::int32_t Precision) {
  return Outer_Call([&] { return quorvex::Recip_Divide(iBig, kBig, Precision); });
}

type_Division_Recip cls_Quorvex::myInverse5(const NumberText& kBig, std::int32_t p) {
  return Outer_Call([&] { return quorvex::myInverse5(kBig, p); });
}

HostValue cls_Quorvex::Min(const HostValue& num1, const HostValue& num2) {
  return Outer_Call([&] { return quorvex::Min(num1, num2); });
}

HostValue cls_Quorvex::Max(const HostValue& num1, const HostValue& num2) {
  return Outer_Call([&] { return quorvex::Max(num1, num2); });
}

HostValue cls_Quorvex::GetHalfofLong(std::int32_t num_as_long) {
  return quorvex::GetHalfofLong(num_as_long);
}

}  // namespace quorvex
