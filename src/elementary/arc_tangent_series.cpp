#include "elementary/arc_tangent_series.h"

#include "elementary/series.h"
#include "text/tokens.h"

namespace quorvex {

NumberText ATan_Series(const NumberText& x, double maxSD) {
  if (x == "0") return x;
  Step_Number power(x);
  Step_Number sum(x);
  const Step_Number square = Product(power, power, maxSD);
  Series_Counter k(1, maxSD);
  const Series_End end(maxSD);
  do {
    k.step();
    power.multiply_by(square, maxSD);
    power.negate();
    sum.add(Quotient(power, k.value(), maxSD), maxSD);
    // No later term can change this token, and nobody waits for 2,147,483,647 digits of them.
    if (sum.is_token() && sum.text() == value_token && !power.is_token()) break;
  } while (!end.is_reached(power));
  return sum.text();
}

}  // namespace quorvex
