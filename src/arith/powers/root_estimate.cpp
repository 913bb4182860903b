#include "arith/powers/root_estimate.h"

#include <cmath>
#include <optional>

#include "host/conversions.h"
#include "host/run_time_failure.h"
#include "text/expand_exponent.h"

namespace quorvex {
namespace {

// In plain digits; nothing where floats have no root.
std::optional<NumberText> Float_Root(double radicand, double degree) {
  if (degree == 0) return std::nullopt;
  const double root = std::pow(radicand, 1 / degree);
  if (!std::isfinite(root) || root == 0) return std::nullopt;
  return Expand_Exponent(Number_To_Text(root));
}

std::optional<NumberText> Signed_Root(double radicand, double degree) {
  if (auto root = Float_Root(radicand, degree)) return root;
  auto opposite = Float_Root(-radicand, degree);
  if (!opposite) return std::nullopt;
  if (opposite->starts_with('-')) return opposite->substr(1);
  return "-" + *opposite;
}

}  // namespace

NumberText Root_Estimate(const NumberText& radicand, const NumberText& degree) {
  const auto root =
      With_Handler([&] { return Signed_Root(Text_To_Number(radicand), Text_To_Number(degree)); },
                   [](const Run_Time_Failure&) { return std::optional<NumberText>(); });
  return root.value_or("1");
}

}  // namespace quorvex
