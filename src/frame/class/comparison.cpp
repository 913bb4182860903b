// Comparisons, and the sign of a number.
#include "frame/class/cls_Quorvex.h"
#include "frame/class/outer_call.h"
#include "host/conversions.h"
#include "text/compare_numbers.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

// The answer of a comparison as a cell shows it: a boolean as its word, a token as it is.
HostValue Shown(const HostValue& answer) {
  return To_Text(answer);
}

HostValue Compare(const HostValue& number1, const HostValue& number2, bool testEqual,
                  bool testGreater) {
  return Outer_Call([&] {
    std::string scratch1;
    std::string scratch2;
    return Compare_Numbers(Text_Of(number1, scratch1), Text_Of(number2, scratch2), testEqual,
                           testGreater);
  });
}

}  // namespace

HostValue cls_Quorvex::qvxSIGN(const HostValue& num) {
  return Outer_Call([&] { return Sign_Function(num); });
}

HostValue cls_Quorvex::qvxISEQUAL(const HostValue& number1, const HostValue& number2) {
  return Shown(Compare(number1, number2, true, false));
}

HostValue cls_Quorvex::qvxISNOTEQUAL(const HostValue& number1, const HostValue& number2) {
  const HostValue answer = Compare(number1, number2, true, false);
  const bool is_no_number = answer.is_text() && answer.text() == num_token;
  return Shown(is_no_number ? answer : HostValue(!Is_True(answer)));
}

HostValue cls_Quorvex::qvxISGREATER(HostValue& number1, HostValue& number2) {
  return Outer_Call([&] {
    if (!number1.is_text()) number1 = To_Text(number1);
    if (!number2.is_text()) number2 = To_Text(number2);
    return Shown(Compare_Numbers(number1.text(), number2.text(), false, true));
  });
}

HostValue cls_Quorvex::qvxISGREATEROREQUAL(const HostValue& number1, const HostValue& number2) {
  return Shown(Compare(number1, number2, true, true));
}

HostValue cls_Quorvex::qvxISLESS(const HostValue& number1, const HostValue& number2) {
  return Shown(Compare(number2, number1, false, true));
}

HostValue cls_Quorvex::qvxISLESSOREQUAL(const HostValue& number1, const HostValue& number2) {
  return Shown(Compare(number2, number1, true, true));
}

}  // namespace quorvex
