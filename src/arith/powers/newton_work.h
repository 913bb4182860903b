// How long Newton's iteration for a root is on its way.
#pragma once

#include "arith/operation/step_number.h"

namespace quorvex {

struct Newton_Limits {
  double maxSD = 0;  // how many digits must stand still
  double steps = 0;  // the limit of every step
};

struct Newton_Work {
  double rounds = 0;  // with those of the roots within a round
  double digits = 0;  // that are multiplied in a round, and others by what they cost beside them
};

/// What the iteration takes at least from the estimate of a root until it comes near the root; no
/// rounds where that can't be told, and where it ends before. Takes numbers other than 0.
Newton_Work Least_Work(const Step_Number& radicand, const Step_Number& degree,
                       const Step_Number& start, const Newton_Limits& limits);

}  // namespace quorvex
