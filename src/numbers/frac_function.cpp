#include "numbers/frac_function.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>

#include "host/conversions.h"
#include "numbers/long_characters.h"
#include "numbers/written_out.h"
#include "text/close_number.h"
#include "text/primitives.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

constexpr std::int16_t sign_of_number = 1;
constexpr std::int16_t no_sign = 2;
constexpr std::int16_t minus_sign = 3;

// The sign of text is its first character: one in quote marks has none.
bool Is_Shown_Positive(std::int16_t sign, const HostValue& num) {
  if (sign == no_sign) return true;
  if (sign == minus_sign) return false;
  return Is_Positive(num);
}

}  // namespace

NumberText Frac_Function(const HostValue& num, const HostValue& as_int, const HostValue& sign,
                         const Format_Arguments& format) {
  const std::int16_t wanted_sign = sign.is_missing() ? sign_of_number : To_Int16(sign);
  const bool is_whole = !as_int.is_missing() && To_Boolean(as_int);
  const bool positive = Is_Shown_Positive(wanted_sign, num);
  NumberText text = To_Text(num);
  Write_Out(text);

  const std::string& separator = Decimal_Separator();
  const std::size_t place = text.find(separator);
  if (place == std::string::npos) return Close_Number({"0", 0, !positive}, format);
  text.erase(0, place + separator.size());
  // A thousands separator among zeros at the left is known as such only while it is whole.
  if (is_whole && !text.empty() && !Has_Token_Mark(text)) Strip_Leading_Zeros(text);
  const Long_Characters long_characters(text);
  if (!is_whole) text.insert(0, separator);
  NumberText result = Close_Number({std::move(text), 0, !positive}, format);
  long_characters.restore(result);
  return result;
}

}  // namespace quorvex
