// Numbers of an independent library, to so many digits that they count as exact.
#pragma once

#include <mpfr.h>

#include <cmath>
#include <string>

namespace quorvex {

class Real_Number {
 public:
  explicit Real_Number(mpfr_prec_t bits) { mpfr_init2(value_, bits); }
  /// Not a number for text that is none.
  Real_Number(const std::string& text, mpfr_prec_t bits) : Real_Number(bits) {
    if (mpfr_set_str(value_, text.c_str(), 10, MPFR_RNDN) != 0) mpfr_set_nan(value_);
  }
  Real_Number(const Real_Number&) = delete;
  Real_Number& operator=(const Real_Number&) = delete;
  ~Real_Number() { mpfr_clear(value_); }

  mpfr_ptr value() { return value_; }
  mpfr_srcptr value() const { return value_; }
  double number() const { return mpfr_get_d(value_, MPFR_RNDN); }

  /// How far a result lies from this number, in units of ten to the `power`; far for what is no
  /// number.
  template <typename Power>
  double distance(const std::string& result, Power power) const {
    Real_Number difference(result, mpfr_get_prec(value_));
    if (mpfr_nan_p(difference.value_) != 0) return HUGE_VAL;
    mpfr_sub(difference.value_, difference.value_, value_, MPFR_RNDN);
    Real_Number unit(mpfr_get_prec(value_));
    mpfr_set_d(unit.value_, -static_cast<double>(power), MPFR_RNDN);
    mpfr_exp10(unit.value_, unit.value_, MPFR_RNDN);
    mpfr_mul(difference.value_, difference.value_, unit.value_, MPFR_RNDN);
    return std::fabs(difference.number());
  }

  /// The number in digits, with so many decimals: nearest, or cut.
  std::string text(int decimals, mpfr_rnd_t rounding) const {
    char* written = nullptr;
    mpfr_asprintf(&written, "%.*R*f", decimals, rounding, value_);
    std::string text = written;
    mpfr_free_str(written);
    return text;
  }

 private:
  mpfr_t value_;
};

/// Bits for working with texts of so many digits.
inline mpfr_prec_t Bits_For(double digits) {
  return static_cast<mpfr_prec_t>(4 * digits) + 64;
}

}  // namespace quorvex
