// How the host writes a 64-bit float.
#include <charconv>
#include <cmath>
#include <string_view>

#include "host/conversions.h"
#include "host/platform.h"
#include "host/run_time_failure.h"

namespace quorvex {

namespace {

constexpr int most_digits = 15;
constexpr int most_decimals = 15;

/// The digits of a number that is not 0, without trailing zeros, and the power of ten of the first.
struct Decimal_Form {
  char digits[most_digits];
  int count = 0;
  int power = 0;

  std::string_view first(int n) const { return {digits, static_cast<std::size_t>(n)}; }
  std::string_view after(int n) const { return {digits + n, static_cast<std::size_t>(count - n)}; }
};

Decimal_Form Decimal_Form_Of(double magnitude) {
  char text[32];
  const char* const end = std::to_chars(text, text + sizeof text, magnitude,
                                        std::chars_format::scientific, most_digits - 1)
                              .ptr;
  Decimal_Form form;
  form.digits[0] = text[0];
  for (int i = 1; i < most_digits; ++i) form.digits[i] = text[i + 1];
  form.count = most_digits;
  while (form.count > 1 && form.digits[form.count - 1] == '0') --form.count;
  const char* const power = text + most_digits + 2;  // behind the point and the e
  std::from_chars(power + (*power == '+' ? 1 : 0), end, form.power);
  return form;
}

void Append_Exponential(NumberText& text, const Decimal_Form& form) {
  text += form.first(1);
  if (form.count > 1) text.append(Current_Separators().decimal()).append(form.after(1));
  text += form.power < 0 ? "E-" : "E+";
  const int power = std::abs(form.power);
  if (power < 10) text += '0';
  text += std::to_string(power);
}

void Append_Plain(NumberText& text, const Decimal_Form& form) {
  const int whole = form.power + 1;
  if (whole <= 0) {
    text.append("0").append(Current_Separators().decimal());
    text.append(static_cast<std::size_t>(-whole), '0').append(form.after(0));
  } else if (whole < form.count) {
    text.append(form.first(whole)).append(Current_Separators().decimal());
    text.append(form.after(whole));
  } else {
    text.append(form.after(0)).append(static_cast<std::size_t>(whole - form.count), '0');
  }
}

NumberText Whole_Text(double number) {
  char text[24];
  const auto end = std::to_chars(text, text + sizeof text, static_cast<std::int64_t>(number)).ptr;
  return {text, end};
}

}  // namespace

NumberText Number_To_Text(double number) {
  if (!std::isfinite(number))
    throw Run_Time_Failure(Failure_Number::overflow, "The number is too large or undefined.");
  const double magnitude = std::fabs(number);
  if (magnitude < 1E15 && std::trunc(number) == number) return Whole_Text(number);
  const Decimal_Form form = Decimal_Form_Of(magnitude);
  NumberText text;
  if (number < 0) text += '-';
  const bool plain = form.power < most_digits && form.count - 1 - form.power <= most_decimals;
  (plain ? Append_Plain : Append_Exponential)(text, form);
  return text;
}

}  // namespace quorvex
