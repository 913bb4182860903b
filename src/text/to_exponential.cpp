#include "text/to_exponential.h"

#include <cstdint>
#include <string>

#include "host/utf8.h"
#include "text/digit_runs.h"
#include "text/primitives.h"

namespace quorvex {
namespace {

// 0.000ddd: the first digit that is not 0 leads.
NumberText Small_Number(std::string_view fraction, const std::string& separator) {
  const std::size_t zeros = Count_Leading_Zeros(fraction);
  const std::string_view digit = fraction.substr(zeros, 1);
  std::string_view rest = fraction.substr(zeros + digit.size());
  if (rest.empty()) rest = "0";
  NumberText text;
  text.reserve(fraction.size() + separator.size() + 16);
  text.append(digit).append(separator).append(rest);
  return text.append("E-").append(std::to_string(zeros + 1));
}

// ddd.ddd: the separator moves behind the first digit. Zeros at the end go, but for one that
// stands right behind the separator. Where the text begins with the separator, or is empty, the
// separator that stands first then is its first character, too.
NumberText Large_Number(std::string_view text, const std::string& separator) {
  const std::size_t place = text.find(separator);
  const std::string_view integer = text.substr(0, place);
  const std::string_view fraction =
      place == std::string_view::npos ? std::string_view() : text.substr(place + separator.size());
  NumberText mantissa;
  mantissa.reserve(text.size() + separator.size() + 16);
  const std::string_view first = integer.empty()
                                     ? std::string_view(separator)
                                     : integer.substr(0, First_Character_Bytes(integer));
  mantissa.append(first).append(separator);
  const std::size_t least = mantissa.size() + 1;
  if (!integer.empty()) mantissa.append(integer.substr(first.size()));
  mantissa.append(fraction);
  std::size_t end = mantissa.size() - Count_Trailing_Zeros(mantissa);
  if (end < least && mantissa.size() >= least) end = least;
  mantissa.resize(end);
  const std::int64_t exponent = static_cast<std::int64_t>(integer.size()) - 1;
  return mantissa.append("E+").append(std::to_string(exponent));
}

}  // namespace

NumberText To_Exponential(std::string_view text) {
  const std::string& separator = Decimal_Separator();
  const std::string_view digits = text.starts_with('-') ? text.substr(1) : text;
  if (!digits.empty() && digits.substr(First_Character_Bytes(digits)).starts_with(separator)) {
    if (digits.front() != '0') return NumberText(text);
    return Small_Number(digits.substr(1 + separator.size()), separator);
  }
  return Large_Number(digits, separator);
}

}  // namespace quorvex
