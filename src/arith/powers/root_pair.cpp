#include "arith/powers/root_pair.h"

#include <algorithm>
#include <utility>

#include "arith/limbs/limb_number.h"
#include "expects.h"
#include "host/conversions.h"
#include "host/run_time_failure.h"
#include "text/digit_runs.h"
#include "text/primitives.h"

namespace quorvex {
namespace {

bool Is_Digit(char character) {
  return character >= '0' && character <= '9';
}

bool Has_Zeros_Alone(std::string_view digits) {
  return Count_Leading_Zeros(digits) == digits.size();
}

}  // namespace

bool May_Be_Alike(const Step_Number& a, const Step_Number& b, double characters) {
  constexpr double spare = 4;
  const double digits = characters - spare;
  const auto is_told = [](const Step_Number& number) {
    return number.is_in_limbs() && !number.is_negative() && !number.is_zero();
  };
  if (digits < 1 || !is_told(a) || !is_told(b)) return true;
  return !limbs::Differ_Within(a.in_limbs(), b.in_limbs(), digits);
}

Shown_Number::Shown_Number(const Step_Number& number) {
  if (!number.is_in_limbs()) {
    digits_ = number.text();
    integer_digits_ = std::min(digits_.find(Decimal_Separator()), digits_.size());
    has_separator_ = integer_digits_ < digits_.size();
    Remove_Decimal_Separator(digits_);
    return;
  }
  Decimal decimal = number.decimal();
  digits_ = std::move(decimal.digits);
  if (decimal.power_of_ten >= 0) {
    digits_.append(static_cast<std::size_t>(decimal.power_of_ten), '0');
    integer_digits_ = digits_.size();
    return;
  }
  const auto decimals = static_cast<std::size_t>(-decimal.power_of_ten);
  if (digits_.size() <= decimals) digits_.insert(0, decimals + 1 - digits_.size(), '0');
  integer_digits_ = digits_.size() - decimals;
  has_separator_ = true;
}

char Shown_Number::at(std::size_t place) const {
  Expects(place < length());
  if (has_separator_ && place == integer_digits_) return '.';
  return digits_[digits_in(place + 1) - 1];
}

std::size_t Shown_Number::zeros_behind_separator() const {
  if (!has_separator_ || integer_digits_ != 1 || digits_.front() != '0') return 0;
  return Count_Leading_Zeros(digits().substr(1));
}

void Shown_Number::cut(std::size_t characters) {
  if (characters >= length()) return;
  digits_.resize(digits_in(characters));
  has_separator_ = has_separator_ && characters > integer_digits_;
  if (digits_.size() < integer_digits_) digits_.resize(integer_digits_, '0');
}

Decimal Shown_Number::decimal() && {
  const auto decimals = static_cast<std::int64_t>(digits_.size() - integer_digits_);
  return {std::move(digits_), -decimals};
}

Root_Pair::Root_Pair(const Step_Number& quotient, const Step_Number& mean, double maxSD)
    : quotient_(quotient), mean_(mean), maxSD_(maxSD) {}

bool Root_Pair::settle() {
  // Digits of different worth don't agree, whatever they are.
  if (quotient_.integer_digits() != mean_.integer_digits()) return false;
  const std::size_t longer = std::max(quotient_.length(), mean_.length());
  const bool is_one_longer = longer == std::min(quotient_.length(), mean_.length()) + 1;
  const bool has_end = static_cast<double>(mean_.length()) > maxSD_ || is_one_longer;
  if (has_end && goes_on_behind()) return true;
  const bool is_alike = quotient_.length() == mean_.length() && agree_to(longer - 1);
  if (has_end && is_alike && is_behind(quotient_.digits().size())) {
    quotient_.cut(longer - 1);
    return true;
  }
  const std::size_t kept = kept_characters();
  if (agree_to(kept)) {
    quotient_.cut(kept);
    return true;
  }
  const std::size_t digits = std::max(quotient_.digits().size(), mean_.digits().size());
  return is_one_longer && is_behind(digits) && round_longer();
}

void Root_Pair::part() {
  if (!round_longer()) quotient_.cut(kept_characters());
}

// Whether the mean is the quotient with more digits behind it, the first of them that is not 0
// behind the limit.
bool Root_Pair::goes_on_behind() const {
  const std::string_view digits = quotient_.digits();
  if (!mean_.digits().starts_with(digits)) return false;
  const std::size_t place = mean_.digits().find_first_of("123456789", digits.size());
  return place == std::string_view::npos || is_behind(place + 1);
}

bool Root_Pair::round_longer() {
  const bool is_quotient = quotient_.length() > mean_.length();
  const Shown_Number& longer = is_quotient ? quotient_ : mean_;
  const Shown_Number& shorter = is_quotient ? mean_ : quotient_;
  if (longer.length() == shorter.length() || shorter.length() == 0) return false;
  const std::size_t last = shorter.length() - 1;
  if (!agree_to(last) || !Is_Digit(longer.at(last)) || !Is_Digit(longer.at(last + 1))) return false;
  if (shorter.at(last) - longer.at(last) != (longer.at(last + 1) >= '5' ? 1 : 0)) return false;
  if (is_quotient) quotient_ = mean_;
  return true;
}

// As if the shorter one had zeros behind it.
bool Root_Pair::agree_to(std::size_t characters) const {
  const bool is_quotient = quotient_.length() > mean_.length();
  const Shown_Number& longer = is_quotient ? quotient_ : mean_;
  const Shown_Number& shorter = is_quotient ? mean_ : quotient_;
  const bool are_in_line = longer.integer_digits() == shorter.integer_digits();
  if (!are_in_line && characters > std::min(longer.integer_digits(), shorter.integer_digits())) {
    return false;
  }
  const std::string_view digits = longer.digits().substr(0, longer.digits_in(characters));
  const std::string_view others = shorter.digits().substr(0, digits.size());
  return digits.starts_with(others) && Has_Zeros_Alone(digits.substr(others.size()));
}

std::size_t Root_Pair::kept_characters() const {
  const double count = Nearest(maxSD_);
  if (count < 0) {
    throw Run_Time_Failure(Failure_Number::invalid_call, "There are no digits to keep.");
  }
  return static_cast<std::size_t>(count) + quotient_.zeros_behind_separator();
}

// Whether the last of so many digits stands behind those of the caller's limit. Zeros before the
// first other one don't count.
bool Root_Pair::is_behind(std::size_t digits) const {
  const bool is_below_one = quotient_.digits().starts_with('0');
  const std::size_t zeros = is_below_one ? 1 + quotient_.zeros_behind_separator() : 0;
  return static_cast<double>(digits - zeros) > Nearest(maxSD_ - 1);
}

}  // namespace quorvex
