#include "elementary/steps/reduce_to_90.h"

#include <utility>

#include "numbers/signs.h"
#include "numbers/whole_part.h"

namespace quorvex {
namespace {

// n - 4 floor(n / 4) + 1
NumberText Quadrant_Of(const NumberText& n, const Text_Steps& steps) {
  const NumberText turns = Int_Function(steps.quotient(n, "4"));
  return steps.sum(steps.difference(n, steps.product("4", turns)), "1");
}

// (halfpi - num / count) factor
NumberText Distance(const NumberText& num, const NumberText& halfpi, const NumberText& count,
                    const NumberText& factor, const Text_Steps& steps) {
  return steps.product(steps.difference(halfpi, steps.quotient(num, count)), factor);
}

NumberText Alpha_Of(const NumberText& num, const NumberText& halfpi, const NumberText& n,
                    const NumberText& quadrant, const Text_Steps& steps) {
  const bool is_first = Is_Equal(n, "0");
  if (!is_first && (quadrant == "1" || quadrant == "3")) {
    // The forced minus is right for positive n. For negative n, Alpha comes out negative, and so
    // the sine in quadrant 1 and the tangent have the wrong sign there. Worksheets written over the
    // years correct for that on their side, so it stays.
    return Distance(num, halfpi, n, Neg_Function(n), steps);
  }
  const bool is_last = Is_Equal(n, "-1");
  if (!is_last && (quadrant == "2" || quadrant == "4")) {
    const NumberText next = steps.sum(n, "1");
    return Distance(num, halfpi, next, next, steps);
  }
  if (is_first) return num;
  return is_last ? ChangeSign_Function(num) : "0";
}

}  // namespace

type_Reduce90 Reduce_To_90(const NumberText& num, const NumberText& halfpi,
                           const Text_Steps& steps) {
  const NumberText n = Int_Function(steps.quotient(num, halfpi));
  NumberText quadrant = Quadrant_Of(n, steps);
  NumberText alpha = Alpha_Of(num, halfpi, n, quadrant, steps);
  return {std::move(alpha), std::move(quadrant)};
}

}  // namespace quorvex
