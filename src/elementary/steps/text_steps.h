// What the elementary functions do with texts before and after their series.
#pragma once

#include <string_view>

#include "host/host_value.h"

namespace quorvex {

/// The digits that a call works with: `Default_MaxSD` where missing, the ceiling for more. There is
/// no lower bound. Fails with type_mismatch for what can't be read, with overflow for text beyond
/// all floats.
double Working_Limit(const HostValue& maxSD);

/// Operations at the limit of a call, each an intermediate value of `Do_Operation`. Unlike a
/// `Step_Number` the operands may be any text.
struct Text_Steps {
  double limit;

  NumberText sum(std::string_view a, std::string_view b) const;
  NumberText difference(std::string_view a, std::string_view b) const;
  NumberText product(std::string_view a, std::string_view b) const;
  NumberText quotient(std::string_view a, std::string_view b) const;
  NumberText root(std::string_view a, std::string_view degree) const;
  NumberText power(std::string_view a, std::string_view exponent) const;
};

// Comparisons that fail with type_mismatch where an operand is a token or no number.
bool Is_Equal(std::string_view a, std::string_view b);
bool Is_Greater(std::string_view a, std::string_view b);
bool Is_At_Least(std::string_view a, std::string_view b);

}  // namespace quorvex
