#include "elementary/steps/step_constants.h"

#include "elementary/constants.h"
#include "host/conversions.h"

namespace quorvex {

Step_Number Pi_Of(double digits) {
  return Step_Number(To_Text(Pi_Digits(digits)));
}

}  // namespace quorvex
