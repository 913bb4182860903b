// Products of numbers in limbs, of which only so many digits are wanted.
#include <algorithm>

#include "arith/digits/multiply_digits.h"
#include "arith/limbs/limb_columns.h"
#include "arith/limbs/limb_number.h"
#include "host/run_time_failure.h"
#include "text/tokens.h"

namespace quorvex::limbs {
namespace {

// Of so many limbs in the shorter factor, products by the library cost less than those of limbs.
constexpr std::size_t long_factor = 100;

Factor Factor_Of(const Number& number) {
  return {number.data(), number.count()};
}

// Limbs that tell so many digits of a product and the first one that is dropped, as the highest
// limb may be 0, and the guard limb and the one below it.
std::size_t Limbs_To_Tell(std::size_t digits_kept) {
  return Count_For(digits_kept) + 4;
}

// The highest columns of a product. What those below them add stays below a unit for each limb of
// the shorter factor in the limb above their lowest: that limb guards those above.
class Top_Product {
 public:
  Top_Product(Factor a, Factor b, std::size_t digits_kept)
      : a_(a), b_(b), count_(a.count + b.count), scratch_(count_ + 1) {
    const std::size_t needed = Limbs_To_Tell(digits_kept);
    // Even, as columns are formed by twos.
    if (count_ > needed + 2) first_ = (count_ - needed) / 2 * 2;
    Multiply_Columns(scratch_.data(), a_, b_, first_);
  }

  bool is_whole() const { return first_ == 0; }

  void make_whole() {
    first_ = 0;
    Multiply_Columns(scratch_.data(), a_, b_, first_);
  }

  // True if the limbs above the guard limb stay as they are where it gets so many units.
  bool is_beyond_doubt(Limb units) { return scratch_.data()[first_ + 1] < base - units; }

  // From the guard limb on, or all of it.
  Factor factor() {
    const Limb* const limbs = scratch_.data();
    const std::size_t end = count_ - static_cast<std::size_t>(limbs[count_ - 1] == 0);
    return {limbs + below_factor(), end - below_factor()};
  }
  std::size_t below_factor() const { return is_whole() ? 0 : first_ + 1; }

  // `low` is what the lowest limb of the whole product counts.
  void round(std::int64_t low, bool negative, std::size_t digits_kept, Number& result) {
    Raw_Number raw{scratch_.data() + first_, count_ - first_,
                   low + static_cast<std::int64_t>(first_), negative};
    Round(raw, digits_kept, result);
  }

 private:
  Factor a_;
  Factor b_;
  std::size_t count_;
  std::size_t first_ = 0;
  Scratch scratch_;
};

// By the highest columns of the square and of the cube; false where they don't tell. Let n be the
// count of limbs. The square is short by less than n + 1 units of its guard limb, and has so many
// limbs from there on that times a number below base^n they fall on the guard limb of the cube, or
// below. That is so short by n units more. What both roundings to `guarded` digits change is less
// than one.
bool Cube_By_Top(const Number& number, std::size_t guarded, std::size_t digits_kept,
                 Number& result) {
  const Factor factor = Factor_Of(number);
  const bool is_guarded = guarded >= Limbs_To_Tell(digits_kept) * digits + 2;
  if (!is_guarded || number.is_zero() || factor.count >= long_factor) return false;
  Top_Product square(factor, factor, digits_kept + 2 * digits);
  Top_Product cube(square.factor(), factor, digits_kept);
  if (cube.is_whole() || !cube.is_beyond_doubt(2 * factor.count + 2)) return false;
  cube.round(3 * number.low + static_cast<std::int64_t>(square.below_factor()), number.negative,
             digits_kept, result);
  return true;
}

// By the library of products.
void Multiply_Long(const Number& a, const Number& b, std::size_t digits_kept, Number& result) {
  const NumberText product = Multiply_Digits(Digits_Of(a), Digits_Of(b));
  if (Has_Token_Mark(product)) {
    throw Run_Time_Failure(Failure_Number::out_of_memory, "There is no room for a product.");
  }
  const std::size_t count = Count_For(product.size());
  Scratch scratch(count + 1);
  Read_Number(product, scratch.data());
  Raw_Number raw{scratch.data(), count, a.low + b.low, a.negative != b.negative};
  Round(raw, digits_kept, result);
}

}  // namespace

void Multiply(const Number& a, const Number& b, std::size_t digits_kept, Number& result) {
  if (a.is_zero() || b.is_zero()) return Trim({}, result);
  const std::size_t shorter = std::min(a.count(), b.count());
  if (shorter >= long_factor) return Multiply_Long(a, b, digits_kept, result);
  Top_Product product(Factor_Of(a), Factor_Of(b), digits_kept);
  if (!product.is_whole() && !product.is_beyond_doubt(shorter + 1)) product.make_whole();
  product.round(a.low + b.low, a.negative != b.negative, digits_kept, result);
}

void Cube(const Number& number, std::size_t guarded, std::size_t digits_kept, Number& result) {
  if (Cube_By_Top(number, guarded, digits_kept, result)) return;
  Number square;
  Multiply(number, number, guarded, square);
  Multiply(square, number, guarded, result);
  Add(result, Number(), result.negative, digits_kept, result);
}

}  // namespace quorvex::limbs
