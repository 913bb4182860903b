// Numbers of the library that judges the functions of the engine.
#pragma once

#include <mpfr.h>

#include <string>

namespace quorvex {

class High_Precision {
 public:
  /// 0, with so many bits.
  explicit High_Precision(mpfr_prec_t bits) {
    mpfr_init2(number_, bits);
    mpfr_set_zero(number_, 1);
  }
  High_Precision(mpfr_prec_t bits, const std::string& text) {
    mpfr_init2(number_, bits);
    if (mpfr_set_str(number_, text.c_str(), 10, MPFR_RNDN) != 0) mpfr_set_nan(number_);
  }
  High_Precision(const High_Precision&) = delete;
  High_Precision& operator=(const High_Precision&) = delete;
  ~High_Precision() { mpfr_clear(number_); }

  mpfr_ptr get() { return number_; }
  double value() const { return mpfr_get_d(number_, MPFR_RNDN); }

  /// How far the text is away, in units of ten to the `power`. Not a number for text that is none.
  double distance(const std::string& text, long power) const {
    High_Precision difference(mpfr_get_prec(number_), text);
    mpfr_sub(difference.get(), difference.get(), number_, MPFR_RNDN);
    High_Precision unit(mpfr_get_prec(number_));
    mpfr_set_si(unit.get(), -power, MPFR_RNDN);
    mpfr_exp10(unit.get(), unit.get(), MPFR_RNDN);
    mpfr_mul(difference.get(), difference.get(), unit.get(), MPFR_RNDN);
    return mpfr_get_d(difference.get(), MPFR_RNDA) < 0 ? -difference.value() : difference.value();
  }

 private:
  mpfr_t number_;
};

}  // namespace quorvex
