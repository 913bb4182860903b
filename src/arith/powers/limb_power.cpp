#include "arith/powers/limb_power.h"

#include "arith/powers/exponent_split.h"
#include "expects.h"
#include "host/platform.h"
#include "text/guard_digits.h"

namespace quorvex {
namespace {

using limbs::Number;

// A number, with its square and its cube once one is asked for: both parts of a split often are.
class Base {
 public:
  Base(const Number& number, std::size_t digits) : number_(number), digits_(digits) {}

  const Number& number() const { return number_; }

  const Number& square() {
    if (square_.is_zero()) limbs::Multiply(number_, number_, digits_, square_);
    return square_;
  }

  // Squares and cubes are steps of their own, which carry as many guard digits as their base is
  // long, and two: a square is exact with them, and is rounded once; a cube is rounded twice.
  const Number& cube() {
    if (!cube_.is_zero()) return cube_;
    const std::size_t guarded =
        digits_ + static_cast<std::size_t>(limbs::Plain_Length(number_)) + 2;
    limbs::Cube(number_, guarded, digits_, cube_);
    return cube_;
  }

 private:
  const Number& number_;
  std::size_t digits_;
  Number square_;
  Number cube_;
};

class Limb_Chain {
 public:
  explicit Limb_Chain(std::size_t maxSD) : digits_(Digits_Of_Result(maxSD)) {}

  void raise(const Number& number, std::uint64_t n, Number& power) const {
    Base base(number, digits_);
    raise(base, n, power);
  }

 private:
  // base to the n = A * B + C.
  void raise(Base& base, std::uint64_t n, Number& power) const {
    Yield();
    const Short_Split split = Split_Exponent(n);
    Number part_room;
    Base part(power_of(base, split.A, part_room), digits_);
    Number room;
    const Number& multiple = power_of(part, split.B, room);
    if (split.C == 0) {
      power = multiple;
      return;
    }
    Number rest_room;
    limbs::Multiply(multiple, power_of(base, split.C, rest_room), digits_, power);
  }

  // Stands in the base or in `room`.
  const Number& power_of(Base& base, std::uint64_t n, Number& room) const {
    if (n == 1) return base.number();
    if (n == 2) return base.square();
    if (n == 3) return base.cube();
    raise(base, n, room);
    return room;
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
