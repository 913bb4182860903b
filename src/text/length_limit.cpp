#include "text/length_limit.h"

#include <string>
#include <string_view>
#include <utility>

#include "host/run_time_failure.h"
#include "host/utf8.h"
#include "text/options.h"
#include "text/primitives.h"
#include "text/round_to_length.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

double Length(std::string_view text) {
  return static_cast<double>(Count_Characters(text));
}

std::string First_Characters(std::string text, double count) {
  if (count < 0) {
    throw Run_Time_Failure(Failure_Number::invalid_call, "There is no room for the exponent.");
  }
  std::size_t bytes = 0;
  for (double left = count; left > 0 && bytes < text.size(); --left) {
    bytes += First_Character_Bytes(std::string_view(text).substr(bytes));
  }
  text.resize(bytes);
  return text;
}

NumberText Cut(NumberText text, double limit) {
  const std::size_t e = text.find('E');
  if (e != std::string::npos) {
    const std::string exponent = text.substr(e);
    const double room = limit - static_cast<double>(exponent.size());
    return First_Characters(Round_To_Length(std::move(text), room + 1), room) + exponent;
  }
  const std::size_t separator = text.find(Decimal_Separator());
  if (separator == std::string::npos ||
      Length(std::string_view(text).substr(0, separator)) + 1 > limit) {
    return NumberText(value_token);
  }
  return First_Characters(Round_To_Length(std::move(text), limit + 1), limit);
}

}  // namespace

void Limit_Text_Length(NumberText& text, double maxLen) {
  const double limit = maximum_digits - (longest_cell_text - maxLen);
  // Bytes are no fewer than characters, so only a text near the ceiling is counted.
  if (static_cast<double>(text.size()) <= limit || Length(text) <= limit) return;
  text = With_Handler([&] { return Cut(std::move(text), limit); },
                      [](const Run_Time_Failure&) { return NumberText(value_token); });
}

void Add_Currency_Symbol(NumberText& text) {
  const type_Currency_Symbol currency = Get_Currency_Symbol();
  Limit_Text_Length(text, longest_cell_text - Length(currency.Symbol));
  text.insert(currency.Position == 1 ? 0 : text.size(), currency.Symbol);
}

}  // namespace quorvex
