// The functions of angles, and the workers of them that macros reach.
#include <utility>

#include "elementary/angle_units.h"
#include "elementary/inverse_trigonometry.h"
#include "elementary/trigonometry.h"
#include "frame/class/cls_Quorvex.h"
#include "frame/class/outer_call.h"
#include "host/conversions.h"

namespace quorvex {
namespace {

// Workers give the number 0 for what needs no calculation, and else text.
template <typename Worker>
NumberText Text_From(const Worker& worker, const HostValue& num, const HostValue& maxSD) {
  return Outer_Call([&] {
    HostValue result = worker(num, maxSD);
    return result.is_text() ? std::move(result.mutable_text()) : To_Text(result);
  });
}

}  // namespace

HostValue cls_Quorvex::Cos_Function(const HostValue& num, const HostValue& maxSD) {
  return Outer_Call([&] { return quorvex::Cos_Function(num, maxSD); });
}

HostValue cls_Quorvex::Tan_Function(const HostValue& num, const HostValue& maxSD) {
  return Outer_Call([&] { return quorvex::Tan_Function(num, maxSD); });
}

HostValue cls_Quorvex::ATan_Function(const HostValue& num, const HostValue& maxSD) {
  return Outer_Call([&] { return quorvex::ATan_Function(num, maxSD); });
}

HostValue cls_Quorvex::ASin_Function(const HostValue& num, const HostValue& maxSD) {
  return Outer_Call([&] { return quorvex::ASin_Function(num, maxSD); });
}

HostValue cls_Quorvex::ACos_Function(const HostValue& num, const HostValue& maxSD) {
  return Outer_Call([&] { return quorvex::ACos_Function(num, maxSD); });
}

NumberText cls_Quorvex::qvxRADIANS(const NumberText& degrees, const HostValue& maxSD) {
  return Outer_Call([&] { return Radians_Function(degrees, maxSD); });
}

NumberText cls_Quorvex::qvxDEGREES(const NumberText& radians, const HostValue& maxSD) {
  return Outer_Call([&] { return Degrees_Function(radians, maxSD); });
}

NumberText cls_Quorvex::qvxSIN(const HostValue& num, const HostValue& maxSD) {
  return Outer_Call([&] { return Sin_Function(num, maxSD); });
}

NumberText cls_Quorvex::qvxCOS(const HostValue& num, const HostValue& maxSD) {
  return Text_From(quorvex::Cos_Function, num, maxSD);
}

NumberText cls_Quorvex::qvxTAN(const HostValue& num, const HostValue& maxSD) {
  return Text_From(quorvex::Tan_Function, num, maxSD);
}

NumberText cls_Quorvex::qvxATAN(const HostValue& num, const HostValue& maxSD) {
  return Text_From(quorvex::ATan_Function, num, maxSD);
}

NumberText cls_Quorvex::qvxASIN(const HostValue& num, const HostValue& maxSD) {
  return Text_From(quorvex::ASin_Function, num, maxSD);
}

NumberText cls_Quorvex::qvxACOS(const HostValue& num, const HostValue& maxSD) {
  return Text_From(quorvex::ACos_Function, num, maxSD);
}

}  // namespace quorvex
