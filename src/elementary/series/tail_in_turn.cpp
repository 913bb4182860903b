#include "elementary/series/tail_in_turn.h"

#include <cmath>

#include "arith/limbs/binary_words.h"
#include "elementary/series/term_sizes.h"
#include "host/platform.h"
#include "text/guard_digits.h"

namespace quorvex {
namespace {

using limbs::Number;
using words::Span;
using words::Word;

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
  if (number.count > bound.count + 1) return Answer::no;
  const double above = words::Ratio(number, bound) - 1;
  if (std::fabs(above) <= float_margin + error) return Answer::in_doubt;
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

std::optional<Step_Number> Sum_In_Turn(const Series_Tail& tail) {
  const Series_Rule& rule = tail.rule;
  const Number& whole_sum = tail.state.sum.in_limbs();
  const std::int64_t shift = tail.shift();
  const auto places = static_cast<std::size_t>(Digits_Of_Result(tail.limit));
  const auto end = static_cast<std::size_t>(tail.last_power + 1 + shift);

  const std::size_t room = words::Room_For(places);
  limbs::Scratch scratch(5 * room);
  Word* const place = scratch.data();
  const Span fixed_sum = words::From_Decimal(whole_sum, shift, place);
  Span power = words::From_Decimal(tail.state.power.in_limbs(), shift, place + room);
  const Span bound = words::From_Decimal(Power_Of_Ten_In_Limbs(end), 0, place + 2 * room);
  Word* const factor = place + 3 * room;
  words::Fraction_From_Decimal(tail.factor, power.count, factor);
  const Word* const factor_end = factor + power.count;
  Word* const quotient = place + 4 * room;
  Span sum{fixed_sum.words + 1, fixed_sum.count - 1};

  Error_Of_Steps errors(tail);
  const double cut_off = static_cast<double>(4 * power.count + 64) * 0x1p-64;
  bool subtract = tail.state.power.is_negative() != whole_sum.negative;
  for (std::uint64_t k = tail.state.k + rule.stride; k <= tail.last_k; k += rule.stride) {
    Yield();
    words::Multiply_By_Fraction(power, factor_end);
    if (rule.power_divisor != nullptr) {
      power = words::Divide(power, limbs::Divisor(rule.power_divisor(k)), power.words);
    }
    const Span term = rule.term_divisor == nullptr
                          ? power
                          : words::Divide(power, limbs::Divisor(rule.term_divisor(k)), quotient);
    const double error = errors.next() + cut_off + tail.doubt;
    const Answer up = Rounds_Up(*term.words, error);
    const Answer ends = Is_Below(rule.ends_by_power ? power : term, bound, error);
    if (up == Answer::in_doubt || ends == Answer::in_doubt) return std::nullopt;
    subtract = subtract != rule.alternates;
    Add_Rounded(sum, term, up == Answer::yes, subtract);
    if (ends == Answer::yes) break;
  }
  return Step_Number(words::To_Decimal(sum, shift, whole_sum.negative));
}

}  // namespace quorvex
