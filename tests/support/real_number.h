// Numbers of an independent library, to so many digits that they count as exact.
#pragma once

#include <mpfr.h>

#include <cmath>
#include <string>

namespace quorvex {

class Real_Number {
 public:
  explicit Real_Number(mpfr_prec_t bits) { mpfr_init2(value_, bits); }
  Real_Number(const std::string& text, mpfr_prec_t bits) : Real_Number(bits) {
    is_number_ = mpfr_set_str(value_, text.c_str(), 10, MPFR_RNDN) == 0;
  }
  Real_Number(const Real_Number&) = delete;
  Real_Number& operator=(const Real_Number&) = delete;
  ~Real_Number() { mpfr_clear(value_); }

  mpfr_ptr value() { return value_; }
  mpfr_srcptr value() const { return value_; }
  double number() const { return mpfr_get_d(value_, MPFR_RNDN); }

  /// How far a result lies from this number, in units of the last digit of pi at the limit; far for
  /// what is no number.
  double distance(const std::string& result, double limit) const {
    Real_Number difference(result, mpfr_get_prec(value_));
    if (!difference.is_number_) return HUGE_VAL;
    mpfr_sub(difference.value_, difference.value_, value_, MPFR_RNDN);
    Real_Number unit(mpfr_get_prec(value_));
    mpfr_ui_pow_ui(unit.value_, 10, static_cast<unsigned long>(limit - 1), MPFR_RNDN);
    mpfr_mul(difference.value_, difference.value_, unit.value_, MPFR_RNDN);
    return std::fabs(difference.number());
  }

 private:
  mpfr_t value_;
  bool is_number_ = true;
};

/// Bits for working with texts of so many digits.
inline mpfr_prec_t Bits_For(double digits) {
  return static_cast<mpfr_prec_t>(4 * digits) + 64;
}

}  // namespace quorvex
