// The default limit of significant digits, for a scope.
#pragma once

#include "text/options.h"

namespace quorvex {

/// Sets the limit until the end of the scope.
class Default_Limit {
 public:
  explicit Default_Limit(double digits) { Set_Default_MaxSD(digits); }
  ~Default_Limit() { Set_Default_MaxSD(before_); }
  Default_Limit(const Default_Limit&) = delete;
  Default_Limit& operator=(const Default_Limit&) = delete;

 private:
  double before_ = Default_MaxSD();
};

}  // namespace quorvex
