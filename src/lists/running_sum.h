// The running sum of a list.
#pragma once

#include <cstddef>
#include <string_view>

#include "host/host_value.h"
#include "lists/column_sum.h"
#include "lists/magnitude_sum.h"
#include "text/operand.h"

namespace quorvex {

/// What a chain of additions gives, `Do_Operation(add, sum, element)` from "0" on, without formats,
/// as an intermediate value.
///
/// While no limit can cut a sum it is not written out: positive and negative elements are summed
/// apart, in place, and plain short ones apart from all others. From the first addition that a
/// limit might cut on, it is the chain itself.
class Running_Sum {
 public:
  /// Adds an element, with so many significant digits as the limit. False if it is no number, which
  /// leaves the sum as it was. Fails with out_of_memory for one that has no room: passed over, it
  /// would make the sum wrong.
  bool add(std::string_view element, double msd);

  /// The same for a plain number. False, and nothing is added, where this is not the way to do it.
  bool add_plain(const Plain_Number& number, double msd) {
    const bool is_admitted = number.parts.integer.size() <= admitted_integer_ &&
                             number.parts.fraction.size() <= admitted_fraction_ &&
                             msd == admitted_msd_ && admitted_count_ > 0;
    if (!is_admitted && !admit(number.parts, msd)) return false;
    --admitted_count_;
    (number.negative ? negative_columns_ : positive_columns_).add(number.parts);
    return true;
  }

  /// The sum as plain text.
  NumberText text();

 private:
  bool admit(const Decimal_Parts& parts, double msd);
  std::size_t integer_digits() const;
  std::size_t fraction_digits() const;
  void pour_columns();
  bool add_in_place(const Operand& element, double msd);
  bool add_in_chain(std::string_view element, double msd);

  Column_Sum positive_columns_;
  Column_Sum negative_columns_;
  Magnitude_Sum positive_;
  Magnitude_Sum negative_;
  bool in_chain_ = false;
  NumberText chain_;  // the sum as text, once it is a chain

  // So many elements of such lengths, at this limit, can go into the columns: none is cut.
  std::size_t admitted_count_ = 0;
  std::size_t admitted_integer_ = 0;
  std::size_t admitted_fraction_ = 0;
  double admitted_msd_ = 0;
};

/// A limit as a count of digits that no operation under it cuts.
std::size_t Digits_Never_Cut(double msd);

}  // namespace quorvex
