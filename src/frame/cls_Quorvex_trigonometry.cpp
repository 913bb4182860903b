// The functions of angles, and the workers of them that macros reach.
#include "elementary/inverse_trigonometry.h"
#include "elementary/trigonometry.h"
#include "frame/cls_Quorvex.h"
#include "host/conversions.h"
#include "host/run_time_failure.h"

namespace quorvex {

HostValue cls_Quorvex::Cos_Function(const HostValue& num, const HostValue& maxSD) {
  return With_Memory_Failures([&] { return quorvex::Cos_Function(num, maxSD); });
}

HostValue cls_Quorvex::Tan_Function(const HostValue& num, const HostValue& maxSD) {
  return With_Memory_Failures([&] { return quorvex::Tan_Function(num, maxSD); });
}

HostValue cls_Quorvex::ATan_Function(const HostValue& num, const HostValue& maxSD) {
  return With_Memory_Failures([&] { return quorvex::ATan_Function(num, maxSD); });
}

HostValue cls_Quorvex::ASin_Function(const HostValue& num, const HostValue& maxSD) {
  return With_Memory_Failures([&] { return quorvex::ASin_Function(num, maxSD); });
}

HostValue cls_Quorvex::ACos_Function(const HostValue& num, const HostValue& maxSD) {
  return With_Memory_Failures([&] { return quorvex::ACos_Function(num, maxSD); });
}

NumberText cls_Quorvex::qvxSIN(const HostValue& num, const HostValue& maxSD) {
  return With_Memory_Failures([&] { return Sin_Function(num, maxSD); });
}

NumberText cls_Quorvex::qvxCOS(const HostValue& num, const HostValue& maxSD) {
  return To_Text(Cos_Function(num, maxSD));
}

NumberText cls_Quorvex::qvxTAN(const HostValue& num, const HostValue& maxSD) {
  return To_Text(Tan_Function(num, maxSD));
}

NumberText cls_Quorvex::qvxATAN(const HostValue& num, const HostValue& maxSD) {
  return To_Text(ATan_Function(num, maxSD));
}

NumberText cls_Quorvex::qvxASIN(const HostValue& num, const HostValue& maxSD) {
  return To_Text(ASin_Function(num, maxSD));
}

NumberText cls_Quorvex::qvxACOS(const HostValue& num, const HostValue& maxSD) {
  return To_Text(ACos_Function(num, maxSD));
}

}  // namespace quorvex
