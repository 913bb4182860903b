// Rounding to a count of places.
#include "frame/class/cls_Quorvex.h"
#include "frame/class/outer_call.h"
#include "host/conversions.h"
#include "text/round_function.h"

namespace quorvex {
namespace {

NumberText Round(const HostValue& num, const HostValue& num_digits, Rounding_Direction direction,
                 const Format_Arguments& format) {
  return Outer_Call([&] {
    std::string scratch;
    return Round_Function(Text_Of(num, scratch), Places_Of(num_digits), direction, format);
  });
}

}  // namespace

NumberText cls_Quorvex::qvxROUND(const HostValue& num, const HostValue& num_digits,
                                 const HostValue& format_negative,
                                 const HostValue& format_thousands,
                                 const HostValue& format_currency,
                                 const HostValue& exponential_notation) {
  return Round(num, num_digits, Rounding_Direction::nearest,
               {format_negative, format_thousands, format_currency, exponential_notation});
}

NumberText cls_Quorvex::qvxROUNDUP(const HostValue& num, const HostValue& num_digits,
                                   const HostValue& format_negative,
                                   const HostValue& format_thousands,
                                   const HostValue& format_currency,
                                   const HostValue& exponential_notation) {
  return Round(num, num_digits, Rounding_Direction::up,
               {format_negative, format_thousands, format_currency, exponential_notation});
}

NumberText cls_Quorvex::qvxROUNDDOWN(const HostValue& num, const HostValue& num_digits,
                                     const HostValue& format_negative,
                                     const HostValue& format_thousands,
                                     const HostValue& format_currency,
                                     const HostValue& exponential_notation) {
  return Round(num, num_digits, Rounding_Direction::down,
               {format_negative, format_thousands, format_currency, exponential_notation});
}

}  // namespace quorvex
