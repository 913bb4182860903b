// Stands in for MPFR where that isn't: the oracle has it.
#pragma once

#include <cstddef>
#include <cstdlib>
#include <cstring>

#include "ask.h"
#include "operations.h"

struct Held_Real : quorvex::oracle::Held {
  long precision;
};
using mpfr_ptr = Held_Real*;
using mpfr_srcptr = const Held_Real*;
using mpfr_t = Held_Real[1];
using mpfr_prec_t = long;
enum mpfr_rnd_t { MPFR_RNDN, MPFR_RNDZ };

inline void mpfr_init2(mpfr_ptr number, mpfr_prec_t bits) {
  number->id = quorvex::oracle::New_Id();
  number->precision = bits;
  quorvex::oracle::Tell("mpfr_init2", number, bits);
}
inline void mpfr_clear(mpfr_ptr number) {
  quorvex::oracle::Tell("mpfr_clear", number);
}
inline mpfr_prec_t mpfr_get_prec(mpfr_srcptr number) {
  return number->precision;
}

// Where this means anything, the only rounding is the one that the oracle takes.
#define ASK(name)                                                            \
  inline int name(mpfr_ptr made, mpfr_srcptr a, mpfr_srcptr b, mpfr_rnd_t) { \
    quorvex::oracle::Tell(#name, made, a, b);                                \
    return 0;                                                                \
  }
REAL_BY_TWO(ASK)
#undef ASK
#define ASK(name)                                             \
  inline int name(mpfr_ptr made, mpfr_srcptr a, mpfr_rnd_t) { \
    quorvex::oracle::Tell(#name, made, a);                    \
    return 0;                                                 \
  }
REAL_BY_ONE(ASK)
#undef ASK
#define ASK(name)                                                                \
  inline int name(mpfr_ptr made, mpfr_srcptr a, std::size_t count, mpfr_rnd_t) { \
    quorvex::oracle::Tell(#name, made, a, count);                                \
    return 0;                                                                    \
  }
REAL_BY_ONE_AND_COUNT(ASK)
#undef ASK
#define ASK(name)                                                 \
  inline int name(mpfr_ptr made, std::size_t count, mpfr_rnd_t) { \
    quorvex::oracle::Tell(#name, made, count);                    \
    return 0;                                                     \
  }
REAL_BY_COUNT(ASK)
#undef ASK
#define ASK(name)                              \
  inline int name(mpfr_ptr made, mpfr_rnd_t) { \
    quorvex::oracle::Tell(#name, made);        \
    return 0;                                  \
  }
REAL_CONSTANT(ASK)
#undef ASK

inline int mpfr_pow_si(mpfr_ptr made, mpfr_srcptr a, long power, mpfr_rnd_t) {
  quorvex::oracle::Tell("mpfr_pow_si", made, a, power);
  return 0;
}
inline int mpfr_floor(mpfr_ptr made, mpfr_srcptr a) {
  quorvex::oracle::Tell("mpfr_floor", made, a);
  return 0;
}
inline int mpfr_sin_cos(mpfr_ptr sine, mpfr_ptr cosine, mpfr_srcptr angle, mpfr_rnd_t) {
  quorvex::oracle::Tell("mpfr_sin_cos", sine, cosine, angle);
  return 0;
}
inline void mpfr_set_nan(mpfr_ptr number) {
  quorvex::oracle::Tell("mpfr_set_nan", number);
}
inline int mpfr_set_d(mpfr_ptr number, double value, mpfr_rnd_t) {
  quorvex::oracle::Tell("mpfr_set_d", number, value);
  return 0;
}
inline int mpfr_set_str(mpfr_ptr number, const char* text, int /*base*/, mpfr_rnd_t) {
  return quorvex::oracle::Ask_Number("mpfr_set_str", number, text);
}
inline int mpfr_nan_p(mpfr_srcptr number) {
  return quorvex::oracle::Ask_Number("mpfr_nan_p", number);
}
inline double mpfr_get_d(mpfr_srcptr number, mpfr_rnd_t) {
  return std::strtod(quorvex::oracle::Ask("mpfr_get_d", number).c_str(), nullptr);
}
/// For the format of decimals only.
inline int mpfr_asprintf(char** written, const char* /*format*/, int decimals, mpfr_rnd_t rounding,
                         mpfr_srcptr number) {
  const std::string text =
      quorvex::oracle::Ask("mpfr_asprintf", number, decimals, static_cast<int>(rounding));
  *written = static_cast<char*>(std::malloc(text.size() + 1));
  std::strcpy(*written, text.c_str());
  return static_cast<int>(text.size());
}
inline void mpfr_free_str(char* text) {
  std::free(text);
}
