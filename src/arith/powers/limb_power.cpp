#include "arith/powers/limb_power.h"

#include "arith/powers/exponent_split.h"
#include "expects.h"
#include "host/platform.h"
#include "text/guard_digits.h"

namespace quorvex {
namespace {

using limbs::Number;

class Limb_Chain {
 public:
  explicit Limb_Chain(std::size_t maxSD) : digits_(Digits_Of_Result(maxSD)) {}

  // base to the n = A * B + C.
  void raise(const Number& base, std::uint64_t n, Number& power) const {
    Yield();
    const Short_Split split = Split_Exponent(n);
    Number part;
    raise_any(base, split.A, part);
    if (split.C == 0) return raise_any(part, split.B, power);
    Number multiple;
    raise_any(part, split.B, multiple);
    raise_any(base, split.C, part);
    limbs::Multiply(multiple, part, digits_, power);
  }

 private:
  void raise_any(const Number& base, std::uint64_t n, Number& power) const {
    if (n > 3) return raise(base, n, power);
    if (n == 1) {
      power = base;
    } else if (n == 2) {
      limbs::Multiply(base, base, digits_, power);
    } else {
      raise_to_third(base, power);
    }
  }

  // Squares and cubes are steps of their own, which carry as many guard digits as their base is
  // long, and two: a square is exact with them, and is rounded once; a cube is rounded twice.
  void raise_to_third(const Number& base, Number& power) const {
    const std::size_t guarded = digits_ + static_cast<std::size_t>(limbs::Plain_Length(base)) + 2;
    Number cube;
    limbs::Multiply(base, base, guarded, cube);
    limbs::Multiply(cube, base, guarded, cube);
    limbs::Add(cube, Number(), cube.negative, digits_, power);
  }

  std::size_t digits_;
};

}  // namespace

Number Limb_Power(const Number& base, std::uint64_t exponent, std::size_t maxSD) {
  Expects(exponent > 3 && !base.is_zero());
  Number power;
  Limb_Chain(maxSD).raise(base, exponent, power);
  return power;
}

}  // namespace quorvex
