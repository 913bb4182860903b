#include "text/operand.h"

#include <algorithm>

#include "host/platform.h"
#include "text/digit_runs.h"
#include "text/expand_exponent.h"
#include "text/primitives.h"
#include "text/quotes.h"

namespace quorvex {
namespace {

std::string_view Without_Leading_Zeros(std::string_view digits) {
  if (!digits.starts_with('0')) return digits;
  return digits.substr(Count_Leading_Zeros(digits));
}

std::strong_ordering Compare_Fractions(const Decimal_Parts& a, const Decimal_Parts& b) {
  const std::size_t both = std::min(a.fraction.size(), b.fraction.size());
  if (const auto order = a.fraction.substr(0, both) <=> b.fraction.substr(0, both);
      std::is_neq(order)) {
    return order;
  }
  const bool a_more = Count_Leading_Zeros(a.fraction.substr(both)) != a.fraction.size() - both;
  const bool b_more = Count_Leading_Zeros(b.fraction.substr(both)) != b.fraction.size() - both;
  return a_more <=> b_more;
}

}  // namespace

bool Split_Fraction(std::string_view text, Decimal_Parts& parts) {
  const std::string& separator = Decimal_Separator();
  if (!text.starts_with(separator)) return false;
  parts.fraction = text.substr(separator.size());
  return !Has_Non_Digit(parts.fraction);
}

std::strong_ordering Compare_Magnitudes(const Decimal_Parts& a, const Decimal_Parts& b) {
  const std::string_view a_integer = Without_Leading_Zeros(a.integer);
  const std::string_view b_integer = Without_Leading_Zeros(b.integer);
  if (const auto order = a_integer.size() <=> b_integer.size(); std::is_neq(order)) return order;
  if (const auto order = a_integer <=> b_integer; std::is_neq(order)) return order;
  return Compare_Fractions(a, b);
}

bool Is_Zero(const Decimal_Parts& parts) {
  return Count_Leading_Zeros(parts.integer) == parts.integer.size() &&
         Count_Leading_Zeros(parts.fraction) == parts.fraction.size();
}

Whole_Digits::Whole_Digits(const Decimal_Parts& parts, std::size_t decimals) {
  const std::string_view integer = Without_Leading_Zeros(parts.integer);
  std::string_view fraction = parts.fraction.substr(0, decimals);
  const std::size_t zeros = decimals - fraction.size();
  if (integer.empty()) fraction = Without_Leading_Zeros(fraction);
  digits_ = integer.empty() ? fraction : integer;
  if (digits_.empty()) {
    digits_ = "0";
  } else if (zeros > 0 || (!integer.empty() && !fraction.empty())) {
    if (zeros > 0) Require_Memory(static_cast<double>(integer.size() + fraction.size() + zeros));
    joined_.reserve(integer.size() + fraction.size() + zeros);
    joined_.append(integer).append(fraction).append(zeros, '0');
    digits_ = joined_;
  }
}

Operand::Operand(std::string_view text, Exponent_Zeros zeros) {
  positive_ = !text.starts_with('-');
  magnitude_ = positive_ ? text : text.substr(1);
  was_plain_ = is_number_ = Split_Decimal(magnitude_, parts_);
  if (!was_plain_) Clean_Up(text, zeros);
}

void Operand::Clean_Up(std::string_view text, Exponent_Zeros zeros) {
  cleaned_ = Strip_Quotes(text);
  Remove_Currency_Symbol(cleaned_);
  Remove_Thousands_Separators(cleaned_);
  Exponent_Form form = Read_Exponent(cleaned_);
  if (zeros == Exponent_Zeros::counted && form.has_exponent && !Has_Non_Digit(form.mantissa)) {
    power_of_ten_ = form.exponent_is_positive ? form.exponent : -std::int64_t{form.exponent};
    power_of_ten_ -= static_cast<std::int64_t>(form.mantissa.size()) - 1;
    form.has_exponent = false;
  }
  cleaned_ = zeros == Exponent_Zeros::one ? Write_Decimal(std::move(form), 1)
                                          : Write_Decimal(std::move(form));
  positive_ = Is_Positive(cleaned_);
  magnitude_ = Strip_Sign(cleaned_);
  parts_ = {};
  is_number_ = Split_Decimal(magnitude_, parts_);
}

}  // namespace quorvex
