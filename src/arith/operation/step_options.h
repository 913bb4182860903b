// What roots and powers are asked for beside their operands, and how they read them.
#pragma once

#include "arith/operation/step_number.h"
#include "host/host_value.h"
#include "text/operand.h"

namespace quorvex {

struct Step_Options {
  double maxSD = 0;  // the limit of the operation, with the guard digit that it adds
  /// Refuses operands that have more than half the ceiling of digits together.
  bool restrict_input_lengths = false;
  /// The guard digits of the steps; missing, as many as both operands have.
  const HostValue& working_digits = Missing;
};

/// A number in normal form with its sign, or the token that clean-up gives.
NumberText Clean_Text(const Operand& operand);

/// The same as a number between steps.
Step_Number Clean_Number(const Operand& operand);

/// True for a text that holds the decimal separator.
bool Has_Fraction(const NumberText& number);

/// The characters of a number in normal form but for its separator, its sign among them.
double Length_Without_Separator(const NumberText& number);
double Length_Without_Separator(const Step_Number& number);

/// The guard digits of the steps, for operands that have so many characters together.
double Working_Digits(const Step_Options& options, double characters);

/// True where there are more guard digits than a restricted operation may have.
bool Are_Too_Long(const Step_Options& options, double working_digits);

}  // namespace quorvex
