#include "arith/powers/exponent_split.h"

#include <bit>
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

// The search for a split, from the halves of `m` on.
Exponent_Split Search(const NumberText& text, Step_Number m, double maxSD) {
  const Steps steps(maxSD);
  const Step_Number zero(0);
  const Step_Number one(1);
  const Step_Number n(text);
  // Written out at the end alone: exponents of a few characters have texts of millions.
  Step_Number best_a("");
  Step_Number best_b("");
  Step_Number best_c("");
  Step_Number best = n;
  for (;;) {
    Yield();
    Step_Number a = Whole_Quotient(m, Step_Number(2), steps);
    Step_Number b = Whole_Quotient(n, a, steps);
    Step_Number c = steps.difference(n, steps.product(a, b));
    Step_Number cost = steps.sum(steps.sum(a, c), b);
    if (Is_Greater(a, zero)) steps.subtract(cost, one);
    if (Is_Greater(b, zero)) steps.subtract(cost, one);
    if (!Is_Greater(best, cost)) return {best_a.text(), best_b.text(), best_c.text()};
    best = std::move(cost);
    best_a = a;
    best_b = std::move(b);
    best_c = std::move(c);
    m = std::move(a);
  }
}

// What divisions need so that they never round up to a whole number, beside the exponent's own
// digits and a half of it: the fraction of n / a is at most 1 - 1/a.
bool Is_Exact(const NumberText& n, double maxSD) {
  return !n.empty() && !Has_Non_Digit(n) && maxSD >= static_cast<double>(n.size()) + 2;
}

// A number on the way of the search from which on the halves are tried. With a = floor(n / 2^k) and
// r = n mod 2^k, b is 2^k as long as a is greater, c is r, and the split costs a + 2^k + r - 2. The
// next one has half of a, twice 2^k, and r or r + 2^k: as long as a is above 4 * 2^k it costs less.
// So no split before is the end.
Step_Number Far_Half(const NumberText& n, double maxSD) {
  constexpr double bits_a_digit = 3.3219280948873623;
  constexpr std::int64_t spare_bits = 6;
  const Steps steps(maxSD);
  const double bits = static_cast<double>(n.size() - 1) * bits_a_digit;
  const std::int64_t halvings = static_cast<std::int64_t>(bits / 2) - spare_bits;
  Step_Number number(n);
  if (halvings < 1) return number;
  Step_Number power(1);
  for (auto bit = std::bit_floor(static_cast<std::uint64_t>(halvings)); bit > 0; bit /= 2) {
    Yield();
    steps.multiply(power, Step_Number(power));
    if ((static_cast<std::uint64_t>(halvings) & bit) != 0) steps.multiply(power, Step_Number(2));
  }
  return Whole_Quotient(number, power, steps);
}

}  // namespace

Exponent_Split Split_Exponent_By_Steps(const NumberText& text, double maxSD) {
  return Search(text, Step_Number(text), maxSD);
}

std::optional<std::uint64_t> Exactly_Split(const NumberText& n, double maxSD) {
  constexpr std::size_t most_digits = std::numeric_limits<std::uint64_t>::digits10 - 1;
  if (n.size() > most_digits || !Is_Exact(n, maxSD)) return std::nullopt;
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
  if (!exact) {
    if (Is_Exact(n, maxSD)) return Search(n, Far_Half(n, maxSD), maxSD);
    return Split_Exponent_By_Steps(n, maxSD);
  }
  const Short_Split split = Split_Exponent(*exact);
  return {std::to_string(split.A), std::to_string(split.B), std::to_string(split.C)};
}

}  // namespace quorvex
