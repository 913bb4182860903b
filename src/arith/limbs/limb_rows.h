// Rows of limbs, least first, that are divided by small numbers and added up, four side by side: a
// division waits for itself at every limb, and four don't wait for each other.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "arith/limbs/limb_number.h"
#include "arith/limbs/row_divisor.h"

namespace quorvex::limbs {

inline constexpr std::size_t rows_at_once = 4;

/// A limb of a row whose carries are not settled, from -1 to 1.5 or from 0 to 2 bases, or one of a
/// sum of some rows.
using Loose_Limb = std::int64_t;

/// Rows of one length.
class Row_Table {
 public:
  /// Fails with out_of_memory.
  Row_Table(std::size_t rows, std::size_t width);

  std::size_t width() const { return width_; }
  Limb* row(std::size_t index) { return limbs_.data() + index * width_; }
  const Limb* row_end(std::size_t index) const { return limbs_.data() + (index + 1) * width_; }

 private:
  std::size_t width_;
  std::vector<Limb> limbs_;
};

/// The product of two numbers, rounded at the limb at the power `low` of the base: wrong by half
/// a unit of it at most.
Number Product_Down_To(std::int64_t low, const Number& a, const Number& b);

/// The limbs of a magnitude from the power `low` of the base on; those below are cut off.
void To_Row(const Number& number, std::int64_t low, std::size_t count, Limb* row);

/// Divides rows of `count` limbs, four at most, each by its own divisor, and cuts the quotients
/// off.
void Divide_Rows(const Limb* const* rows, const Row_Divisor* divisors, std::size_t ways,
                 std::size_t count, Limb* const* quotients);

/// Divides a row, and each quotient again by the next divisor.
void Divide_In_Turn(const Limb* row, const Row_Divisor* divisors, std::size_t ways,
                    std::size_t count, Limb* const* quotients);

/// Turns a sum into (row + sum) / divisor or (row - sum) / divisor, with one row after the other.
/// It is to begin with 0.
void Divide_Sums(Loose_Limb* sum, const Limb* const* rows, const Row_Divisor* divisors,
                 std::size_t ways, std::size_t count, bool subtract);

/// Adds rows to a sum, or subtracts every other one, beginning with the second. A sum takes eight
/// between two settlements.
void Add_Rows(Loose_Limb* sum, const Limb* const* rows, std::size_t ways, std::size_t count,
              bool alternate);

/// Settles the carries of a sum that is not negative and has room for all of it.
void Settle(Loose_Limb* sum, std::size_t count);

/// The first limb behind the point of a product. The row has one such limb itself and `count` above
/// it; the fraction ends, at the point, at `fraction_end`. It has count + 1 limbs, of which
/// the first `zeros` behind the point are 0. What is left out is below 2 count + 4 units, and so
/// much the result may be too small, before it runs round at the base.
Limb Fraction_Of_Product(const Limb* row, std::size_t count, const Limb* fraction_end,
                         std::size_t zeros);

}  // namespace quorvex::limbs
