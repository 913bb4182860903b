#include "arith/division/limb_remainder.h"

#include <algorithm>
#include <cstddef>

#include "arith/limbs/limb_division.h"
#include "arith/limbs/limb_long_division.h"
#include "arith/limbs/limbs.h"
#include "expects.h"
#include "host/platform.h"
#include "text/digit_runs.h"

namespace quorvex::limbs {
namespace {

NumberText By_One_Limb(std::string_view dividend, const Divisor& divisor) {
  Limb rest = 0;
  std::size_t length = (dividend.size() - 1) % digits + 1;
  for (std::size_t read = 0; !dividend.empty(); length = digits) {
    divisor.divide(rest, Read(dividend.substr(0, length)));
    dividend.remove_prefix(length);
    if (++read % between_yields == 0) Yield();
  }
  if (rest == 0) return {};
  NumberText text(digits, '0');
  Write(text.data(), rest);
  return text.erase(0, digits - Count_Digits(rest));
}

// Limbs of a number with some zeros behind, from the left.
class Limb_Reader {
 public:
  Limb_Reader(std::string_view number, std::size_t zeros) : number_(number), zeros_(zeros) {}

  bool has_more() const { return !number_.empty(); }

  Limb next() {
    const std::size_t length = (number_.size() + zeros_ - 1) % digits + 1;
    const bool is_last = length >= number_.size();
    const std::size_t count = is_last ? number_.size() : length;
    const Limb limb = Read(number_.substr(0, count));
    number_.remove_prefix(count);
    return is_last ? limb * Ten_To(zeros_) : limb;
  }

 private:
  std::string_view number_;
  std::size_t zeros_;
};

NumberText Text_Of_Limbs(const Signed_Limb* number, std::size_t n, std::size_t zeros) {
  NumberText text(n * digits, '0');
  for (std::size_t place = 0; place < n; ++place) {
    Write(text.data() + (n - 1 - place) * digits, static_cast<Limb>(number[place]));
  }
  text.resize(text.size() - zeros);
  return text.erase(0, Count_Leading_Zeros(text));
}

}  // namespace

NumberText Remainder(std::string_view dividend, std::string_view divisor) {
  Expects(!divisor.empty() && !divisor.starts_with('0') && !dividend.starts_with('0') &&
          dividend.size() >= divisor.size());
  if (divisor.size() <= digits) return By_One_Limb(dividend, Divisor(Read(divisor)));
  const std::size_t n = Count_For(divisor.size());
  // Both get so many zeros behind that the divisor's first digit stands first in its limb.
  const std::size_t zeros = n * digits - divisor.size();
  Scratch scratch(2 * n);
  Limb* const divisor_limbs = scratch.data();
  Read_Fraction(divisor, n, divisor_limbs);
  auto* const rest = reinterpret_cast<Signed_Limb*>(divisor_limbs + n);

  Limb_Reader limbs(dividend, zeros);
  rest[n - 1] = 0;
  for (std::size_t place = n - 1; place-- > 0;)
    rest[place] = static_cast<Signed_Limb>(limbs.next());
  Long_Division division(divisor_limbs, n, rest);
  for (std::size_t done = 0; limbs.has_more();) {
    division.next(limbs.next());
    if ((done += n) < between_yields) continue;
    done = 0;
    Yield();
  }
  division.settle();
  return Text_Of_Limbs(rest, n, zeros);
}

}  // namespace quorvex::limbs
