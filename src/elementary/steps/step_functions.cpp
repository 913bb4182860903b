#include "elementary/steps/step_functions.h"

#include "numbers/signs.h"
#include "numbers/whole_part.h"

namespace quorvex {
namespace {

Step_Number With_Sign(Step_Number number, bool negative) {
  if (number.is_negative() != negative) number.negate();
  return number;
}

}  // namespace

Step_Number Floor_Of(const Step_Number& number) {
  if (number.is_in_limbs()) return Step_Number(limbs::Floor(number.in_limbs()));
  return Step_Number(Int_Function(number.text()));
}

Step_Number Magnitude_Of(const Step_Number& number) {
  if (number.is_in_limbs()) return With_Sign(number, false);
  return Step_Number(Abs_Function(number.text()));
}

Step_Number Negative_Of(const Step_Number& number) {
  if (number.is_in_limbs()) return With_Sign(number, true);
  return Step_Number(Neg_Function(number.text()));
}

Step_Number Opposite_Of(const Step_Number& number) {
  if (number.is_in_limbs()) return With_Sign(number, !number.is_negative());
  return Step_Number(ChangeSign_Function(number.text()));
}

}  // namespace quorvex
