#include "arith/powers/exponent_split.h"

#include <charconv>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <utility>

#include "arith/limbs/limb_number.h"
#include "arith/operation/steps.h"
#include "expects.h"
#include "host/platform.h"
#include "text/digit_runs.h"
#include "text/primitives.h"

namespace quorvex {
namespace {

// Of a token it is the token.
Step_Number Whole_Quotient(const Step_Number& a, const Step_Number& b, const Steps& steps) {
  const Step_Number quotient = steps.quotient(a, b);
  if (!quotient.is_in_limbs()) return Step_Number(Integer_Part_Text(quotient.text()));
  return Step_Number(limbs::Floor(quotient.in_limbs()));
}

}  // namespace

Exponent_Split Split_Exponent_By_Steps(const NumberText& text, double maxSD) {
  const Steps steps(maxSD);
  const Step_Number zero(0);
  const Step_Number one(1);
  const Step_Number n(text);
  Exponent_Split split;
  Step_Number best = n;
  Step_Number m = n;
  for (;;) {
    Yield();
    Step_Number a = Whole_Quotient(m, Step_Number(2), steps);
    const Step_Number b = Whole_Quotient(n, a, steps);
    const Step_Number c = steps.difference(n, steps.product(a, b));
    Step_Number cost = steps.sum(steps.sum(a, c), b);
    if (Is_Greater(a, zero)) steps.subtract(cost, one);
    if (Is_Greater(b, zero)) steps.subtract(cost, one);
    if (!Is_Greater(best, cost)) return split;
    best = std::move(cost);
    split = {a.text(), b.text(), c.text()};
    m = std::move(a);
  }
}

// The exponent's own digits, a half of it, and what divisions need so that they never round up to
// a whole number: the fraction of n / a is at most 1 - 1/a.
std::optional<std::uint64_t> Exactly_Split(const NumberText& n, double maxSD) {
  constexpr std::size_t most_digits = std::numeric_limits<std::uint64_t>::digits10 - 1;
  const bool is_plain = !n.empty() && n.size() <= most_digits && !Has_Non_Digit(n);
  if (!is_plain || maxSD < static_cast<double>(n.size()) + 2) return std::nullopt;
  std::uint64_t number = 0;
  std::from_chars(n.data(), n.data() + n.size(), number);
  return number;
}

Short_Split Split_Exponent(std::uint64_t n) {
  Expects(n > 3);
  std::uint64_t best = n;
  std::uint64_t A = n;
  // Ends before the half is 0: by 1 the split costs n - 1, and by n / 2 it cost less than that.
  for (std::uint64_t a = n / 2; a > 0; a /= 2) {
    const std::uint64_t cost = a - 1 + (n / a - 1) + n % a;
    if (best <= cost) break;
    best = cost;
    A = a;
  }
  return {A, n / A, n % A};
}

Exponent_Split Split_Exponent(const NumberText& n, double maxSD) {
  const std::optional<std::uint64_t> exact = Exactly_Split(n, maxSD);
  if (!exact) return Split_Exponent_By_Steps(n, maxSD);
  const Short_Split split = Split_Exponent(*exact);
  return {std::to_string(split.A), std::to_string(split.B), std::to_string(split.C)};
}

}  // namespace quorvex
