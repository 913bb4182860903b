// The running sum of a list.
#pragma once

#include <cstddef>
#include <string_view>

#include "host/host_value.h"
#include "lists/magnitude_sum.h"

namespace quorvex {

/// What a chain of additions gives, `Do_Operation(add, sum, element)` from "0" on, without formats,
/// as an intermediate value.
///
/// While no limit can cut a sum it is not written out: positive and negative elements are summed
/// apart, in place. From the first addition that a limit might cut on, it is the chain itself.
class Running_Sum {
 public:
  /// Adds an element, with so many significant digits as the limit. False if it is no number, which
  /// leaves the sum as it was. Fails with out_of_memory for one that has no room: passed over, it
  /// would make the sum wrong.
  bool add(std::string_view element, double msd);

  /// The sum as plain text.
  NumberText text();

 private:
  bool add_in_place(const Operand& element, double msd);
  bool add_in_chain(std::string_view element, double msd);

  Magnitude_Sum positive_;
  Magnitude_Sum negative_;
  bool in_chain_ = false;
  NumberText chain_;  // the sum as text, once it is a chain
};

/// A limit as a count of digits that no operation under it cuts.
std::size_t Digits_Never_Cut(double msd);

}  // namespace quorvex
