#include "elementary/constants.h"

#include <cstdint>
#include <string>
#include <string_view>

#include "elementary/digits/digits.h"
#include "host/conversions.h"
#include "host/run_time_failure.h"
#include "text/limits.h"
#include "text/primitives.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

struct Constant {
  char integer;
  std::string_view decimals;
  double limit;  // of digits; given, and not what the decimals would allow
};

constexpr double limit_of_pi_and_e = 32768;
// The last 950 decimals of ln 10 can't be asked for: the two logarithms are used together, and the
// shorter one's limit is that of both.
constexpr double limit_of_logarithms = 40051;

HostValue Serve(const Constant& constant, const HostValue& digits) {
  const double count = Count_Of_Digits(digits);
  if (count > constant.limit) return num_token;
  // The separator is a character too.
  const std::int32_t characters = To_Int32(count + 1);
  if (characters < 0) {
    throw Run_Time_Failure(Failure_Number::invalid_call, "A count of digits is below -1.");
  }
  if (characters == 0) return std::string();
  const std::string& separator = Decimal_Separator();
  const auto decimals = static_cast<std::size_t>(characters < 2 ? 0 : characters - 2);
  std::string text;
  text.reserve(1 + separator.size() + decimals);
  text += constant.integer;
  if (characters > 1) text += separator;
  text += constant.decimals.substr(0, decimals);
  return text;
}

}  // namespace

HostValue Pi_Digits(const HostValue& digits) {
  return Serve({'3', quorvex::digits::pi, limit_of_pi_and_e}, digits);
}

Step_Number Pi_Of(double digits) {
  return Step_Number(To_Text(Pi_Digits(digits)));
}

HostValue E_Digits(const HostValue& digits) {
  return Serve({'2', quorvex::digits::e, limit_of_pi_and_e}, digits);
}

HostValue Ln2_Digits(const HostValue& digits) {
  return Serve({'0', quorvex::digits::ln2, limit_of_logarithms}, digits);
}

HostValue Ln10_Digits(const HostValue& digits) {
  return Serve({'2', quorvex::digits::ln10, limit_of_logarithms}, digits);
}

}  // namespace quorvex
