#include "text/compare_numbers.h"

#include <compare>
#include <string>

#include "host/conversions.h"
#include "host/run_time_failure.h"
#include "text/primitives.h"
#include "text/recognition.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

// A second separator is lost where an exponent is written out (*1.2.3E+1*); such a number can be
// added but not compared.
bool Is_Comparable(const Operand& operand, std::string_view text) {
  return operand.is_number() && (operand.was_plain() || !Has_Two_Separators(text));
}

std::strong_ordering Compare_Values(const Operand& number1, const Operand& number2) {
  const Decimal_Parts& parts1 = number1.parts();
  const Decimal_Parts& parts2 = number2.parts();
  const bool positive1 = number1.positive() || Is_Zero(parts1);
  const bool positive2 = number2.positive() || Is_Zero(parts2);
  if (positive1 != positive2) return positive1 <=> positive2;
  return positive1 ? Compare_Magnitudes(parts1, parts2) : Compare_Magnitudes(parts2, parts1);
}

bool Checked(const HostValue& answer) {
  if (answer.is_text()) {
    throw Run_Time_Failure(Failure_Number::type_mismatch, "An argument is no number.");
  }
  return answer.boolean();
}

}  // namespace

bool Is_Equal(std::string_view a, std::string_view b) {
  return Checked(Compare_Numbers(a, b, true, false));
}

bool Is_Greater(std::string_view a, std::string_view b) {
  return Checked(Compare_Numbers(a, b, false, true));
}

bool Is_At_Least(std::string_view a, std::string_view b) {
  return Checked(Compare_Numbers(a, b, true, true));
}

bool Read_For_Comparison(std::string_view text, std::optional<Operand>& number,
                         Exponent_Zeros zeros) {
  number.reset();
  if (Is_Lone_Mark(text)) return false;
  return With_Handler([&] { return Is_Comparable(number.emplace(text, zeros), text); },
                      [](const Run_Time_Failure&) { return false; });
}

HostValue Compare_Numbers(std::string_view number1, std::string_view number2, bool testEqual,
                          bool testGreater) {
  if (const auto token = Token_Of_Operands(number1, number2)) return *token;
  if (Is_Lone_Mark(number1) || Is_Lone_Mark(number2)) return num_token;
  return With_Handler(
      [&]() -> HostValue {
        const Operand operand1(number1);
        const Operand operand2(number2);
        if (!Is_Comparable(operand1, number1) || !Is_Comparable(operand2, number2)) {
          return num_token;
        }
        const auto order = Compare_Values(operand1, operand2);
        return (testEqual && std::is_eq(order)) || (testGreater && std::is_gt(order));
      },
      [](const Run_Time_Failure&) { return HostValue(num_token); });
}

std::strong_ordering Order_Of_Digits(std::string_view text1, std::string_view text2) {
  return text1.size() != text2.size() ? text1.size() <=> text2.size() : text1 <=> text2;
}

bool Compare_Digit_Strings(std::string_view text1, std::string_view text2, bool orEqual,
                           bool orGreater) {
  const auto order = Order_Of_Digits(text1, text2);
  return (orEqual && std::is_eq(order)) || (orGreater && std::is_gt(order));
}

HostValue Sign_Function(const HostValue& num) {
  std::string scratch;
  const std::string_view text = Text_Of(num, scratch);
  if (text.empty()) return "0";
  if (!Is_Number_Text(text)) return value_token;
  // Whether it is zero doesn't depend on how many zeros an exponent stands for.
  const Operand operand(text, Exponent_Zeros::one);
  if (Is_Comparable(operand, text) && Is_Zero(operand.parts())) return 0;
  return Is_Positive(num) ? 1 : -1;
}

bool Is_True(const HostValue& result) {
  return result.kind() == HostValue::Kind::boolean && result.boolean();
}

}  // namespace quorvex
