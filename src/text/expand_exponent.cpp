#include "text/expand_exponent.h"

#include <algorithm>
#include <utility>

#include "host/conversions.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "host/utf8.h"
#include "text/primitives.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

// Takes the sign off: a "(" with no ")" at the end is none.
bool Take_Sign(std::string_view& text) {
  if (text.starts_with('-')) {
    text.remove_prefix(1);
    return true;
  }
  if (!text.starts_with('(') || !text.ends_with(')')) return false;
  text.remove_prefix(1);
  text.remove_suffix(1);
  return true;
}

std::string Without_Separators(std::string_view text) {
  const std::string& separator = Decimal_Separator();
  std::string digits;
  digits.reserve(text.size());
  for (;;) {
    const std::size_t place = text.find(separator);
    digits += text.substr(0, place);
    if (place == std::string_view::npos) return digits;
    text.remove_prefix(place + separator.size());
  }
}

std::int32_t Exponent_Value(std::string_view digits) {
  const std::int32_t exponent = To_Int32(Text_To_Number(digits));
  if (exponent < 0) {
    throw Run_Time_Failure(Failure_Number::invalid_call, "An exponent has two signs.");
  }
  return exponent;
}

// The exponent and the length of the mantissa meet in 32 bits.
void Check_Range(const Exponent_Form& form) {
  const auto length = static_cast<std::int64_t>(form.mantissa.size());
  if (length == 0) {
    throw Run_Time_Failure(Failure_Number::type_mismatch, "An exponent has no digits before it.");
  }
  const std::int64_t shift =
      form.exponent_is_positive ? form.exponent - (length - 1) : form.exponent + (length - 1);
  if (shift > std::numeric_limits<std::int32_t>::max() ||
      shift < std::numeric_limits<std::int32_t>::min()) {
    throw Run_Time_Failure(Failure_Number::overflow, "An exponent is too large.");
  }
}

// A mantissa of d.ddd times ten to a power of 0 or more.
void Shift_Left(std::string& mantissa, std::int64_t exponent, std::int64_t zeros) {
  const std::int64_t shift = exponent - (static_cast<std::int64_t>(mantissa.size()) - 1);
  if (shift < 0) {
    const std::int64_t places = static_cast<std::int64_t>(mantissa.size()) + shift;
    mantissa.insert(static_cast<std::size_t>(places), Decimal_Separator());
    return;
  }
  const std::int64_t added = std::min(shift, zeros);
  Require_Memory(texts_at_once * static_cast<double>(added));
  mantissa.append(static_cast<std::size_t>(added), '0');
}

// A mantissa of d.ddd times ten to a power below 0.
void Shift_Right(std::string& mantissa, std::int64_t exponent, std::int64_t zeros) {
  const std::int64_t added = std::min(exponent - 1, zeros);
  Require_Memory(texts_at_once * static_cast<double>(added));
  const std::string& separator = Decimal_Separator();
  std::string value;
  value.reserve(1 + separator.size() + static_cast<std::size_t>(added) + mantissa.size());
  value += '0';
  value += separator;
  value.append(static_cast<std::size_t>(added), '0');
  value += mantissa;
  mantissa = std::move(value);
}

}  // namespace

Exponent_Form Read_Exponent(std::string_view text) {
  Exponent_Form form;
  form.negative = Take_Sign(text);
  form.is_token = Has_Token_Mark(text);
  const std::size_t e = form.is_token ? std::string_view::npos : text.find('E');
  form.has_exponent = e != std::string_view::npos;
  if (!form.has_exponent) {
    form.mantissa = text;
    return form;
  }
  std::string_view digits = text.substr(e + 1);
  form.exponent_is_positive = !digits.starts_with('-');
  digits.remove_prefix(First_Character_Bytes(digits));
  form.exponent = Exponent_Value(digits);
  form.mantissa = Without_Separators(text.substr(0, e));
  Check_Range(form);
  return form;
}

NumberText Write_Decimal(Exponent_Form form, std::int64_t zeros) {
  std::string value = std::move(form.mantissa);
  if (form.is_token) return value;
  if (form.has_exponent) {
    if (form.exponent_is_positive || form.exponent == 0) {
      Shift_Left(value, form.exponent, zeros);
    } else {
      Shift_Right(value, form.exponent, zeros);
    }
  }
  if (form.negative) value.insert(0, 1, '-');
  return value;
}

NumberText Expand_Exponent(std::string_view text) {
  return Write_Decimal(Read_Exponent(text));
}

}  // namespace quorvex
