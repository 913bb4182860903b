// Pi and e.
#include "elementary/constants.h"
#include "frame/class/cls_Quorvex.h"
#include "frame/class/outer_call.h"
#include "host/conversions.h"

namespace quorvex {

NumberText cls_Quorvex::qvxPi(const HostValue& digits) {
  return Outer_Call([&] { return To_Text(Pi_Digits(Constant_Digits(digits))); });
}

NumberText cls_Quorvex::qvxE(const HostValue& digits) {
  return Outer_Call([&] { return To_Text(E_Digits(Constant_Digits(digits))); });
}

}  // namespace quorvex
