// Stands in for GMP where that isn't: the oracle has it.
#pragma once

#include <cstddef>
#include <cstring>

#include "ask.h"
#include "operations.h"

using mpz_ptr = quorvex::oracle::Held*;
using mpz_srcptr = const quorvex::oracle::Held*;
using mpz_t = quorvex::oracle::Held[1];

inline void mpz_init(mpz_ptr number) {
  number->id = quorvex::oracle::New_Id();
  quorvex::oracle::Tell("mpz_init", number);
}
inline void mpz_clear(mpz_ptr number) {
  quorvex::oracle::Tell("mpz_clear", number);
}

#define ASK(name)                                              \
  inline void name(mpz_ptr made, mpz_srcptr a, mpz_srcptr b) { \
    quorvex::oracle::Tell(#name, made, a, b);                  \
  }
WHOLE_BY_TWO(ASK)
#undef ASK
#define ASK(name)                                \
  inline void name(mpz_ptr made, mpz_srcptr a) { \
    quorvex::oracle::Tell(#name, made, a);       \
  }
WHOLE_BY_ONE(ASK)
#undef ASK
#define ASK(name)                                                   \
  inline void name(mpz_ptr made, mpz_srcptr a, std::size_t count) { \
    quorvex::oracle::Tell(#name, made, a, count);                   \
  }
WHOLE_BY_ONE_AND_COUNT(ASK)
#undef ASK
#define ASK(name)                                     \
  inline void name(mpz_ptr made, std::size_t count) { \
    quorvex::oracle::Tell(#name, made, count);        \
  }
WHOLE_BY_COUNT(ASK)
#undef ASK
#define ASK(name)                                    \
  inline int name(mpz_srcptr a, mpz_srcptr b) {      \
    return quorvex::oracle::Ask_Number(#name, a, b); \
  }
WHOLE_COMPARED(ASK)
#undef ASK

inline void mpz_init_set(mpz_ptr number, mpz_srcptr value) {
  mpz_init(number);
  mpz_set(number, value);
}
inline int mpz_set_str(mpz_ptr number, const char* text, int /*base*/) {
  return quorvex::oracle::Ask_Number("mpz_set_str", number, text);
}
inline int mpz_init_set_str(mpz_ptr number, const char* text, int base) {
  mpz_init(number);
  return mpz_set_str(number, text, base);
}
inline int mpz_sgn(mpz_srcptr number) {
  return quorvex::oracle::Ask_Number("mpz_sgn", number);
}
inline std::size_t mpz_sizeinbase(mpz_srcptr number, int /*base*/) {
  return std::stoull(quorvex::oracle::Ask("mpz_sizeinbase", number));
}
inline char* mpz_get_str(char* text, int /*base*/, mpz_srcptr number) {
  return std::strcpy(text, quorvex::oracle::Ask("mpz_get_str", number).c_str());
}
