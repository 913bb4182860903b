#include "arith/powers/exponent_split.h"

#include <charconv>
#include <cstdint>
#include <limits>
#include <string>
#include <utility>

#include "arith/operation/four_operations.h"
#include "arith/operation/operation_codes.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "text/compare_numbers.h"
#include "text/primitives.h"

namespace quorvex {
namespace {

// Intermediate values at one limit.
class Calculation {
 public:
  explicit Calculation(double maxSD) : limit_(maxSD) {}

  NumberText operator()(std::int16_t code, const NumberText& a, const NumberText& b) const {
    return Intermediate(code, a, b, limit_);
  }

  NumberText whole_quotient(const NumberText& a, const NumberText& b) const {
    return NumberText(Integer_Part_Text((*this)(operation::divide, a, b)));
  }

 private:
  double limit_;
};

// The exponent's own digits, a half of it, and what divisions need so that they never round up to
// a whole number: the fraction of n / a is at most 1 - 1/a.
bool Is_Exact(const NumberText& n, double maxSD) {
  return n.size() <= std::numeric_limits<std::uint64_t>::digits10 - 1 &&
         maxSD >= static_cast<double>(n.size()) + 2;
}

Exponent_Split Split_Exactly(const NumberText& text) {
  std::uint64_t n = 0;
  std::from_chars(text.data(), text.data() + text.size(), n);
  std::uint64_t best = n;
  std::uint64_t A = n;
  // Ends before the half is 0: by 1 the split costs n - 1, and by n / 2 it cost less than that.
  for (std::uint64_t a = n / 2; a > 0; a /= 2) {
    const std::uint64_t cost = a - 1 + (n / a - 1) + n % a;
    if (best <= cost) break;
    best = cost;
    A = a;
  }
  return {std::to_string(A), std::to_string(n / A), std::to_string(n % A)};
}

}  // namespace

Exponent_Split Split_Exponent_By_Text(const NumberText& n, double maxSD) {
  const Calculation calculate(maxSD);
  Exponent_Split split;
  NumberText best = n;
  NumberText m = n;
  for (;;) {
    Yield();
    NumberText a = calculate.whole_quotient(m, "2");
    NumberText b = calculate.whole_quotient(n, a);
    NumberText c = calculate(operation::subtract, n, calculate(operation::multiply, a, b));
    NumberText cost = calculate(operation::add, calculate(operation::add, a, c), b);
    if (Is_Greater(a, "0")) cost = calculate(operation::subtract, cost, "1");
    if (Is_Greater(b, "0")) cost = calculate(operation::subtract, cost, "1");
    if (!Is_Greater(best, cost)) return split;
    best = std::move(cost);
    m = a;
    split = {std::move(a), std::move(b), std::move(c)};
  }
}

Exponent_Split Split_Exponent(const NumberText& n, double maxSD) {
  return Is_Exact(n, maxSD) ? Split_Exactly(n) : Split_Exponent_By_Text(n, maxSD);
}

}  // namespace quorvex
