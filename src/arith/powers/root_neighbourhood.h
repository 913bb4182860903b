// What the mean iteration does near the root, told from the root.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "arith/limbs/limb_number.h"
#include "arith/operation/steps.h"
#include "text/decimal.h"

namespace quorvex {

/// The values of later rounds that a value leads to, one or two, of which one is right, and how
/// many rounds there are to them.
struct Later_Values {
  std::vector<Step_Number> values;
  int rounds = 0;
};

/// Knows the square root of a radicand to more digits than the steps keep, and so what a step gives
/// without taking it. Nothing where that can't be told.
class Root_Neighbourhood {
 public:
  /// Whether limits are neither too short, where two divisions cost less, nor too long.
  static bool Is_For(double limit);

  /// Nothing for radicands and limits that this is not for.
  static std::optional<Root_Neighbourhood> Of(const Step_Number& radicand, double limit);

  /// What the iteration from `start` ends with at a limit of `maxSD`, told by `Mean_End`.
  std::optional<Decimal> end(const Step_Number& start, double maxSD) const;

  /// The quotient of the radicand by a value near its root.
  std::optional<Step_Number> quotient(const Step_Number& value) const;

  /// The mean of a value and its `quotient`.
  Step_Number mean(const Step_Number& value, const Step_Number& quotient) const;

  /// The first value near the root that rounds from `value` on lead to, and that no round before
  /// which could end the iteration leads to. Nothing where the value is near itself.
  std::optional<Later_Values> later_values(const Step_Number& value) const;

 private:
  Root_Neighbourhood(const limbs::Number& radicand, std::size_t limit);

  struct Offset;

  bool is_told() const;
  const limbs::Number& inverse() const;
  std::optional<Offset> offset_of(const limbs::Number& value) const;
  double lost_by_inverse(const Offset& offset) const;
  Step_Number half_of(const limbs::Number& twice, double to_sum) const;

  std::size_t digits_;  // that a quotient keeps
  std::int64_t last_;   // the power of ten of the last of them
  limbs::Number radicand_;
  limbs::Number root_;
  mutable std::optional<limbs::Number> inverse_;  // found where it is asked for
  double most_lost_ = 0;  // of a product by a reciprocal that is cut, in thousandths of a unit
};

}  // namespace quorvex
