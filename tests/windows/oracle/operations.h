// What tests ask of GMP and MPFR, by shape: the stand-ins for their headers and the program that
// answers are made from these lists. A test that needs another operation adds it here.
#pragma once

// Of whole numbers: the first one becomes what the operation makes of the others.
#define WHOLE_BY_TWO(DO) \
  DO(mpz_add)            \
  DO(mpz_sub)            \
  DO(mpz_mul)            \
  DO(mpz_tdiv_q)         \
  DO(mpz_tdiv_r)         \
  DO(mpz_gcd)
#define WHOLE_BY_ONE(DO) DO(mpz_set) DO(mpz_sqrt)
#define WHOLE_BY_ONE_AND_COUNT(DO) DO(mpz_pow_ui) DO(mpz_root)
#define WHOLE_BY_COUNT(DO) DO(mpz_fac_ui) DO(mpz_2fac_ui)
#define WHOLE_COMPARED(DO) DO(mpz_cmp) DO(mpz_cmpabs)

// Of real numbers, rounded to nearest.
#define REAL_BY_TWO(DO) DO(mpfr_mul) DO(mpfr_div) DO(mpfr_sub) DO(mpfr_fmod)
#define REAL_BY_ONE(DO) \
  DO(mpfr_acos)         \
  DO(mpfr_asin)         \
  DO(mpfr_atan)         \
  DO(mpfr_exp)          \
  DO(mpfr_exp10)        \
  DO(mpfr_expm1)        \
  DO(mpfr_log)          \
  DO(mpfr_log10)        \
  DO(mpfr_neg)
#define REAL_BY_ONE_AND_COUNT(DO) DO(mpfr_div_ui)
#define REAL_BY_COUNT(DO) DO(mpfr_fac_ui) DO(mpfr_log_ui) DO(mpfr_set_ui)
#define REAL_CONSTANT(DO) DO(mpfr_const_log2) DO(mpfr_const_pi)
