#include "arith/powers/mean_end.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <utility>

#include "arith/powers/leading_digits.h"
#include "arith/powers/mean_rounds.h"

namespace quorvex {
namespace {

using limbs::Number;

// Near its end, values of the iteration and their quotients are the root's digits but for the last
// ones. Let u be the unit of the last digit of a quotient, the root S u with S = whole + f. A value
// (whole + t) u has the quotient whole + 2 f - t + (t - f)^2 / S, rounded as division rounds, and
// their mean is the half of both, cut. So three small numbers stand for the two values, and as long
// as the last nine digits of all of them don't run over, these alone tell whether they agree. Where
// it is in doubt how a quotient is rounded, both ways have to lead to the same end.

constexpr std::int64_t last_digits = 9;
constexpr std::int64_t end_of_last_digits = 1'000'000'000;
constexpr int most_rounds = 3;  // fewer than can stall three times

struct Ending {
  std::int64_t digits = 0;  // the last nine of the result, cut where it is
  bool settles = false;
};

std::int64_t Half_Down(std::int64_t number) {
  return (number - (number % 2 != 0 && number < 0 ? 1 : 0)) / 2;
}

int Count_Zeros(std::int64_t number) {
  int zeros = 0;
  for (; number % 10 == 0; number /= 10) ++zeros;
  return zeros;
}

class Mean_Rounds {
 public:
  Mean_Rounds(const Number& root, std::size_t digits, double maxSD)
      : leading_(Leading_Digits_Of(root)),
        digits_(static_cast<std::int64_t>(digits)),
        limit_(static_cast<std::int64_t>(maxSD)),
        text_(limbs::Digits_Of(root)) {
    text_.resize(digits + beyond_quotient, '0');
    std::int64_t behind = 0;
    const char* const end = text_.data() + digits;
    std::from_chars(end - last_digits, end, whole_);
    std::from_chars(end, end + beyond_quotient, behind);
    f_ = static_cast<double>(behind) / std::pow(10.0, beyond_quotient);
    units_ = Leading_Digits{leading_.mantissa, digits_ - 1}.number();
  }

  // All of the last digits stand behind the separator.
  bool is_told() const { return last() + last_digits <= 0 && limit_ + 2 == digits_; }

  std::optional<Decimal> end(const Far_Value& value) const {
    const double twice = 2 * f_;
    const double over = std::floor(twice);
    const std::optional<Rounded_Sum> rounded = Sum_With_Quotient(
        value, (twice - over) * guard_units, leading_.mantissa, static_cast<std::size_t>(digits_));
    if (!rounded) return std::nullopt;
    const auto sum = static_cast<std::int64_t>(over + rounded->units);
    const std::optional<std::int64_t> digits = common_end(
        rounded->rounding, [&](std::int64_t raised) { return end_from(Half_Down(sum + raised)); });
    if (!digits) return std::nullopt;
    return with_last_digits(*digits);
  }

 private:
  std::int64_t last() const { return leading_.power + 1 - digits_; }

  // What one or both ways of rounding lead to.
  template <typename Way>
  static std::optional<std::int64_t> common_end(Told_Rounding rounding, const Way& way) {
    std::optional<std::int64_t> end;
    if (rounding != Told_Rounding::is_raised) {
      end = way(0);
      if (!end || rounding == Told_Rounding::stays) return end;
    }
    const std::optional<std::int64_t> raised = way(1);
    return rounding == Told_Rounding::is_raised || raised == end ? raised : std::nullopt;
  }

  std::optional<std::int64_t> end_from(std::int64_t value, int rounds = most_rounds) const {
    if (rounds == 0 || !is_within(value)) return std::nullopt;
    const double offset = static_cast<double>(value) - f_;
    const double part = 2 * f_ + offset * offset / units_;
    const double over = std::floor(part);
    const double guards = (part - over) * guard_units;
    const Told_Rounding rounding =
        Round_Between(guards - Most_Lost(leading_.mantissa) - safe_guards, guards + safe_guards);
    return common_end(rounding, [&](std::int64_t raised) -> std::optional<std::int64_t> {
      const std::int64_t quotient = static_cast<std::int64_t>(over) - value + raised;
      const std::int64_t mean = Half_Down(value + quotient);
      if (!is_within(quotient) || !is_within(mean)) return std::nullopt;
      const std::optional<Ending> ending = settle(whole_ + quotient, whole_ + mean);
      if (!ending) return std::nullopt;
      return ending->settles ? ending->digits : end_from(mean, rounds - 1);
    });
  }

  bool is_within(std::int64_t offset) const {
    return whole_ + offset > 0 && whole_ + offset < end_of_last_digits;
  }

  // What `Root_Pair` makes of the last digits of quotient and mean; nothing where it would go on.
  std::optional<Ending> settle(std::int64_t quotient, std::int64_t mean) const {
    const int zeros = Count_Zeros(quotient);
    const int zeros_of_mean = Count_Zeros(mean);
    const bool is_one_longer = std::abs(zeros - zeros_of_mean) == 1;
    const std::int64_t before = leading_.power < 0 ? 1 - leading_.power : 1;  // with the separator
    const bool has_end = digits_ + before - zeros_of_mean > limit_ || is_one_longer;
    if (has_end && goes_on_behind(quotient, mean, zeros)) return Ending{quotient, true};
    if (has_end && zeros == zeros_of_mean && is_behind(zeros) &&
        cut(quotient, zeros + 1) == cut(mean, zeros + 1)) {
      return Ending{cut(quotient, zeros + 1), true};
    }
    const int beyond = leading_.power < 0 ? 4 : 3;  // of the digits that are kept
    if (cut(quotient, beyond) == cut(mean, beyond)) return Ending{cut(quotient, beyond), true};
    if (is_one_longer) return std::nullopt;
    return Ending{};
  }

  bool goes_on_behind(std::int64_t quotient, std::int64_t mean, int zeros) const {
    if (cut(mean, zeros) != quotient) return false;
    if (mean == quotient) return true;
    int place = zeros - 1;
    while (cut(mean, place) == quotient) --place;
    return is_behind(place);
  }

  // Whether the digit with so many behind it stands behind those of the caller's limit.
  bool is_behind(int place) const { return digits_ - place > limit_ - 1; }

  static std::int64_t cut(std::int64_t number, int places) {
    const auto unit = static_cast<std::int64_t>(limbs::Ten_To(static_cast<std::size_t>(places)));
    return number - number % unit;
  }

  Decimal with_last_digits(std::int64_t digits) const {
    Decimal result{text_.substr(0, static_cast<std::size_t>(digits_)), last()};
    for (std::size_t place = result.digits.size();
         digits > 0 || place > result.digits.size() - 9;) {
      result.digits[--place] = static_cast<char>('0' + digits % 10);
      digits /= 10;
    }
    Strip_Zeros(result);
    return result;
  }

  Leading_Digits leading_;
  std::int64_t digits_;
  std::int64_t limit_;
  NumberText text_;         // of the root, without its separator
  std::int64_t whole_ = 0;  // the last digits of a quotient
  double f_ = 0;
  double units_ = 0;
};

}  // namespace

std::optional<Decimal> Mean_End(const Number& root, std::size_t digits, const Number& start,
                                double maxSD) {
  const Mean_Rounds rounds(root, digits, maxSD);
  if (!rounds.is_told()) return std::nullopt;
  const std::optional<Far_Value> value = Way_To_Root(start, root, digits);
  if (!value) return std::nullopt;
  return rounds.end(*value);
}

}  // namespace quorvex
