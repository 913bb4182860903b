// Chains of operations at a limit: roots, powers, series, angles folded and exponents scaled.
#pragma once

#include <cstddef>
#include <cstdint>

#include "arith/operation/step_number.h"

namespace quorvex {

/// The four operations at one limit. Each gives what `Intermediate` gives for the texts, digit for
/// digit, and forms no text where both operands are held in limbs and the limit is a whole number
/// from 1 to a million; products know no upper bound.
///
/// Powers and roots at a limit stand in `powers`. Roots are worked out by these steps; a power is a
/// chain of products of its own, which are rounded alike.
class Steps {
 public:
  explicit Steps(double limit);

  double limit() const { return limit_; }

  // Change the first operand, without a copy.
  void add(Step_Number& a, const Step_Number& b) const;
  void subtract(Step_Number& a, const Step_Number& b) const;
  void multiply(Step_Number& a, const Step_Number& b) const;
  void divide(Step_Number& a, const Step_Number& b) const;

  Step_Number sum(Step_Number a, const Step_Number& b) const {
    add(a, b);
    return a;
  }
  Step_Number difference(Step_Number a, const Step_Number& b) const {
    subtract(a, b);
    return a;
  }
  Step_Number product(Step_Number a, const Step_Number& b) const {
    multiply(a, b);
    return a;
  }
  Step_Number quotient(Step_Number a, const Step_Number& b) const {
    divide(a, b);
    return a;
  }

 private:
  bool are_in_limbs(const Step_Number& a, const Step_Number& b) const;
  void by_text(std::int16_t code, Step_Number& a, const Step_Number& b) const;
  Step_Number long_quotient(const limbs::Number& a, const limbs::Number& b) const;

  double limit_;
  std::size_t digits_ = 0;          // the limit, if steps can be taken in limbs
  std::size_t product_digits_ = 0;  // the same for products
};

}  // namespace quorvex
