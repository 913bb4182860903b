#include "numbers/even_odd.h"

#include <cstdint>
#include <string>
#include <utility>

#include "arith/operation/four_operations.h"
#include "arith/operation/operation_codes.h"
#include "numbers/parity.h"
#include "text/close_number.h"
#include "text/primitives.h"
#include "text/recognition.h"
#include "text/round_function.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

// Formats once, at the end: the steps before it work on plain digits.
NumberText Close(NumberText whole, const Format_Arguments& format) {
  const bool positive = Is_Positive(whole);
  if (!positive) whole.erase(0, 1);
  return Close_In_Full({std::move(whole), 0, !positive}, format);
}

// `step` tells by whether the whole number is positive where the next one lies.
template <typename Step>
NumberText Next(std::string_view num, Parity wanted, Rounding_Direction direction, Step step,
                const Format_Arguments& format) {
  NumberText base = Round_Function(num, 0, direction, {});
  if (Has_Token_Mark(base) || Ends_Odd(base) == (wanted == Parity::odd)) {
    return Close(std::move(base), format);
  }
  const std::int16_t operation = step(Is_Positive(base));
  return Close(Intermediate(operation, base, "1", maximum_digits), format);
}

}  // namespace

NumberText Even_Function(std::string_view num, Parity wanted, bool RoundNegTowardZero,
                         const Format_Arguments& format) {
  if (num.empty()) num = "0";
  if (!Is_Number_Text(num)) return NumberText(value_token);
  const bool cuts = RoundNegTowardZero && !Is_Positive(num);
  const auto step = [&](bool positive) {
    return positive || RoundNegTowardZero ? operation::add : operation::subtract;
  };
  return Next(num, wanted, cuts ? Rounding_Direction::down : Rounding_Direction::up, step, format);
}

NumberText Odd_Function(std::string_view num, Parity wanted, bool RoundNegAwayFromZero,
                        const Format_Arguments& format) {
  if (num.empty()) num = "0";
  if (!Is_Number_Text(num)) return NumberText(value_token);
  const bool cuts = !RoundNegAwayFromZero || Is_Positive(num);
  const auto step = [&](bool positive) {
    return positive || RoundNegAwayFromZero ? operation::subtract : operation::add;
  };
  return Next(num, wanted, cuts ? Rounding_Direction::down : Rounding_Direction::up, step, format);
}

}  // namespace quorvex
