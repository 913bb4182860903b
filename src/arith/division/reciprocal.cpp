#include "arith/division/reciprocal.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <string>
#include <utility>

#include "arith/digits/multiply_digits.h"
#include "arith/division/quick_reciprocal.h"
#include "host/conversions.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "text/digit_runs.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

// Constants as 64-bit floats of 15 digits. That of ln 2 is a little low, which lifts the logarithm
// of an exact power of two above the whole number and rounds it up.
constexpr double ln_2 = 0.693147180559945;
constexpr double ln_10 = 2.30258509299405;
constexpr double log10_5 = 0.698970004336019;
constexpr std::size_t float_digits = 17;

constexpr std::string_view endless_token = "#EXPR!";

double Log_2(const NumberText& k) {
  const double leading = Text_To_Number(k.substr(0, float_digits));
  if (!(leading > 0)) {
    throw Run_Time_Failure(Failure_Number::invalid_call, "A number has no logarithm.");
  }
  const double logarithm = std::log(leading) / ln_2;
  if (k.size() <= float_digits) return logarithm;
  return logarithm + static_cast<double>(k.size() - float_digits) * ln_10 / ln_2;
}

// An approximation of 1/k: 0.digits times ten to the -scale. The first digit is never 0.
//
// No `Decimal`: rounds cut and fill the digits to lengths of their own, zeros at the end and all,
// and the scale of the first digit stays the same through that. It is a float since it comes from
// one, which may be anything for a divisor that is no digits.
struct Approximation {
  NumberText digits;
  double scale = 0;
};

// 2^-n2 as 5^n2 / 10^n2, its digits cut to about half of what a float could give.
Approximation Power_Of_Half(double n2) {
  const double exponent = n2 * log10_5;
  const double whole = std::floor(exponent);
  double digits = std::pow(10.0, exponent - whole);
  const double more = Nearest(std::fmin(16.0, whole) / 2.0);

  Approximation start;
  start.scale = n2 - (whole + 1);
  for (int place = 0; place <= more; ++place) {
    const double digit = std::floor(digits);
    start.digits += static_cast<char>('0' + static_cast<int>(digit));
    digits = (digits - digit) * 10.0;
  }
  return start;
}

Approximation Start(const NumberText& k, double& n2) {
  const double logarithm = Log_2(k);
  n2 = std::ceil(logarithm);
  for (;; n2 += 1) {
    Approximation start = Power_Of_Half(n2);
    if (static_cast<double>(Multiply_Digits(k, start.digits).size()) <= n2) return start;
  }
}

// 2 - k*x as a 1 and decimals, from the decimals of k*x. The last digit takes the tens complement;
// where it is 0, it stays, no borrow runs on, and the number comes out ten units short.
NumberText Two_Less(const NumberText& product) {
  NumberText complement;
  complement.reserve(product.size() + 1);
  complement += '1';
  for (const char digit : product) complement += static_cast<char>('0' + '9' - digit);
  if (product.back() == '0') {
    complement.back() = '0';
  } else {
    ++complement.back();
  }
  return complement;
}

// One step of the iteration: x (2 - k x), whose scale falls by one when it passes a power of ten.
// The mark of a token counts as below every digit.
NumberText Step(const NumberText& k, const Approximation& x, double& scale) {
  Yield();
  NumberText next = Multiply_Digits(k, x.digits);
  if (!Has_Token_Mark(next)) next = Multiply_Digits(x.digits, Two_Less(next));
  if (next.front() < x.digits.front()) scale -= 1;
  return next;
}

// Notices when the iteration comes back to a state that it has been in (R. P. Brent, An improved
// Monte Carlo factorization algorithm, BIT 20, 1980: the state is kept at rounds that double).
class Cycle_Watch {
 public:
  bool comes_back(const NumberText& state) {
    if (state == kept_) return true;
    if (++round_ == next_kept_) {
      kept_ = state;
      next_kept_ *= 2;
    }
    return false;
  }

 private:
  NumberText kept_;
  std::int64_t round_ = 0;
  std::int64_t next_kept_ = 4;
};

std::size_t First_Difference(const NumberText& a, const NumberText& b, std::size_t from,
                             std::size_t end) {
  const auto at = [](const NumberText& text, std::size_t place) {
    return place < text.size() ? text[place] : '\0';
  };
  while (from < end && at(a, from) == at(b, from)) ++from;
  return from;
}

// Runs the step until all digits agree with those of the round before.
type_Division_Recip Polish(const NumberText& k, Approximation x, std::size_t p) {
  const std::size_t kept = p + 2;
  NumberText result;
  Cycle_Watch watch;
  for (std::size_t agreeing = 1; agreeing < p;) {
    result = Step(k, x, x.scale);
    const std::size_t before = agreeing;
    agreeing = First_Difference(result, x.digits, agreeing, p + 1);
    // The first digit has stopped changing and is not copied.
    x.digits.replace(1, std::string::npos, result, 1, kept - 1);
    if (agreeing == before && watch.comes_back(x.digits)) return {NumberText(endless_token), 0};
  }
  result.resize(std::min(result.size(), p));
  return {std::move(result), To_Int32(-(static_cast<double>(p) + x.scale))};
}

type_Division_Recip Iterate(const NumberText& k, std::int32_t p) {
  if (p < 1) throw Run_Time_Failure(Failure_Number::invalid_call, "No digits are asked for.");
  const auto length = static_cast<std::size_t>(p);
  double n2 = 0;
  Approximation x = Start(k, n2);
  Require_Memory(4.0 * static_cast<double>(length + k.size()));
  if (x.digits.size() < length) x.digits.resize(length, '0');
  const double rounds = Nearest(std::log(p) / ln_2 + std::log(n2));
  for (int round = 0; round < rounds; ++round) {
    x.digits = Step(k, x, x.scale);
    x.digits.resize(std::min(x.digits.size(), length + 2));
  }
  return Polish(k, std::move(x), length);
}

type_Division_Recip Failed_Reciprocal(const Run_Time_Failure&) {
  return {};
}

}  // namespace

type_Division_Recip Iterated_Reciprocal(const NumberText& k, std::int32_t p) {
  return With_Handler([&] { return Iterate(k, p); }, Failed_Reciprocal);
}

type_Division_Recip myInverse5(const NumberText& k, std::int32_t p) {
  if (k == "1") return {"1", 0};
  if (k == "0") {
    return {NumberText(static_cast<std::size_t>(std::max(p, 1)), '9'),
            std::numeric_limits<std::int32_t>::max()};
  }
  if (Are_Significant(k) && Can_Multiply()) {
    const auto quick = With_Handler(
        [&]() -> std::optional<type_Division_Recip> {
          auto digits = Quick_Reciprocal(k, p);
          if (!digits) return std::nullopt;
          return type_Division_Recip{std::move(*digits), Power_Of_Reciprocal(k.size(), p)};
        },
        [](const Run_Time_Failure& failure) { return std::optional(Failed_Reciprocal(failure)); });
    if (quick) return *quick;
  }
  return Iterated_Reciprocal(k, p);
}

std::int32_t Power_Of_Reciprocal(std::size_t length, std::int32_t p) {
  const std::int64_t power = -(std::int64_t{p} + static_cast<std::int64_t>(length) - 1);
  if (power < std::numeric_limits<std::int32_t>::min()) {
    throw Run_Time_Failure(Failure_Number::overflow, "A power of ten is too large.");
  }
  return static_cast<std::int32_t>(power);
}

}  // namespace quorvex
