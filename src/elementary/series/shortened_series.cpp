#include "elementary/series/shortened_series.h"

#include <cmath>
#include <utility>

#include "arith/digits/multiply_digits.h"
#include "arith/limbs/binary_words.h"
#include "host/platform.h"

namespace quorvex {
namespace {

using limbs::Number;
using words::Span;
using words::Word;

// Below these limits a run hardly pays, above them products of whole numbers are quicker.
constexpr double lowest_limit = 15;
constexpr double highest_limit = 2000;

// So many places the first power lies below the sum. Its digits behind the last place of the sum
// make doubt as seldom as one time in some thousand.
constexpr std::int64_t places_below = 3;

// For what floats are wrong by.
constexpr double margin = 1e-9;

double added_doubt = 0;

// A number by its leading digit: from 1 to below 10.
double Mantissa(const Number& number) {
  const std::size_t last = number.count() - 1;
  const limbs::Limb top = number.data()[last];
  const double below = last > 0 ? static_cast<double>(number.data()[last - 1]) * 1e-18 : 0;
  return (static_cast<double>(top) + below) /
         static_cast<double>(limbs::Ten_To(limbs::Count_Digits(top) - 1));
}

double Power_Of_Ten(std::int64_t exponent) {
  return std::pow(10.0, static_cast<double>(exponent));
}

// No less than the number.
double Upper_Bound(const Number& number) {
  return Mantissa(number) * Power_Of_Ten(limbs::Leading_Power(number)) * (1 + margin);
}

bool Is_Number(const Step_Number& number) {
  return number.is_in_limbs() && !number.is_zero();
}

Number Power_Of_Ten_In_Limbs(std::size_t exponent) {
  limbs::Limb limb = limbs::Ten_To(exponent % limbs::digits);
  Number power;
  limbs::Trim({&limb, 1, static_cast<std::int64_t>(exponent / limbs::digits), false}, power);
  return power;
}

enum class Answer { no, yes, in_doubt };

// Half up.
Answer Rounds_Up(Word fraction, double error) {
  const double above_half = static_cast<double>(fraction) * 0x1p-64 - 0.5;
  if (std::fabs(above_half) <= error) return Answer::in_doubt;
  return above_half > 0 ? Answer::yes : Answer::no;
}

// `bound` is 1 or more.
Answer Is_Below(const Span& number, const Span& bound, double error) {
  const double above = words::Ratio(number, bound) - 1;
  if (std::fabs(above) <= margin + error) return Answer::in_doubt;
  return above < 0 ? Answer::yes : Answer::no;
}

// Adds a term's whole units, one more if it rounds up, or takes them off.
void Add_Rounded(Span& sum, const Span& term, bool up, bool subtract) {
  Word one = 1;
  const auto apply = subtract ? words::Subtract : words::Add;
  apply(sum, {term.words + 1, term.count - 1});
  if (up) apply(sum, {&one, 1});
}

}  // namespace

double Shortened_Series::Add_Doubt(double doubt) {
  return std::exchange(added_doubt, doubt);
}

Shortened_Series::Shortened_Series(const Series_Rule& rule, const Step_Number& factor, double limit,
                                   std::int64_t last_power, std::uint64_t last_k)
    : rule_(rule), factor_(factor), limit_(limit), last_power_(last_power), last_k_(last_k) {
  is_over_ = !(limit >= lowest_limit && limit <= highest_limit && std::trunc(limit) == limit) ||
             !Is_Number(factor) || factor.is_negative() || factor.leading_power() >= 0 ||
             !Can_Multiply();
}

std::optional<Step_Number> Shortened_Series::sum_from(const Series_State& state) {
  if (is_over_ || !is_ready(state)) return std::nullopt;
  is_over_ = true;
  return run(state);
}

// True if the powers are at least halved by each step, and all that are still to come cannot move
// the sum's leading digit to another place.
bool Shortened_Series::is_ready(const Series_State& state) const {
  if (!Is_Number(state.power) || !Is_Number(state.sum)) return false;
  if (state.power.is_negative() && !rule_.alternates) return false;
  const std::int64_t below = state.sum.leading_power() - state.power.leading_power();
  if (below < places_below) return false;
  const double still_to_come = Power_Of_Ten(1 - below) + margin;
  const double mantissa = Mantissa(state.sum.in_limbs());
  const double divisor =
      rule_.keeps_power ? 1 : static_cast<double>(rule_.divisor(state.k + rule_.stride));
  return mantissa - still_to_come > 1 && mantissa + still_to_come < 10 &&
         Upper_Bound(factor_.in_limbs()) <= divisor / 2;
}

std::optional<Step_Number> Shortened_Series::run(const Series_State& state) const {
  const std::int64_t sum_power = state.sum.leading_power();
  const auto places = static_cast<std::int64_t>(limit_) + 2;
  const std::int64_t shift = places - 1 - sum_power;
  const std::int64_t end = last_power_ + 1 + shift;
  if (end < 0 || end > places) return std::nullopt;

  const std::size_t room = words::Room_For(static_cast<std::size_t>(places));
  limbs::Scratch scratch(6 * room);
  Word* const place = scratch.data();
  const Span whole_sum = words::From_Decimal(state.sum.in_limbs(), shift, place);
  Span power = words::From_Decimal(state.power.in_limbs(), shift, place + room);
  const Span bound = words::From_Decimal(Power_Of_Ten_In_Limbs(static_cast<std::size_t>(end)), 0,
                                         place + 2 * room);
  Word* const factor = place + 3 * room;
  words::Fraction_From_Decimal(factor_.in_limbs(), power.count, factor);
  const Word* const factor_end = factor + power.count;
  Word* const product = place + 4 * room;
  Word* const quotient = place + 5 * room;
  Span sum{whole_sum.words + 1, whole_sum.count - 1};

  const double factor_size = Upper_Bound(factor_.in_limbs());
  // Of a power, where the sum's leading digit counts ones.
  double size = Mantissa(state.power.in_limbs()) *
                Power_Of_Ten(state.power.leading_power() - sum_power) * (1 + margin);
  const double cut_off = static_cast<double>(4 * power.count + 64) * 0x1p-64;
  double steps = 1;
  bool subtract = state.power.is_negative() != state.sum.is_negative();
  for (std::uint64_t k = state.k + rule_.stride; k <= last_k_; k += rule_.stride) {
    Yield();
    const limbs::Divisor divisor(rule_.divisor(k));
    words::Multiply_By_Fraction(power, factor_end, product);
    const Span term = words::Divide(power, divisor, rule_.keeps_power ? quotient : power.words);
    size *= factor_size;
    if (!rule_.keeps_power) {
      power = term;
      size /= static_cast<double>(divisor.number());
    }
    const double units_of_leading_digit = 20;  // twice those of digit limit + 2
    steps += 1;
    const double error = steps * size * units_of_leading_digit + cut_off + added_doubt;
    const Answer up = Rounds_Up(*term.words, error);
    const Answer ends = Is_Below(rule_.ends_by_power ? power : term, bound, error);
    if (up == Answer::in_doubt || ends == Answer::in_doubt) return std::nullopt;
    subtract = subtract != rule_.alternates;
    Add_Rounded(sum, term, up == Answer::yes, subtract);
    if (ends == Answer::yes) break;
  }
  return Step_Number(words::To_Decimal(sum, shift, state.sum.is_negative()));
}

}  // namespace quorvex
