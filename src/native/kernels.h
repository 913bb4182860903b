// The routines behind long products for each kind of instructions.
#pragma once

#include <cstddef>

#include "native/field.h"
#include "native/length.h"
#include "native/multiply.h"
#include "native/twiddles.h"

namespace quorvex::native {

struct Kernels {
  std::size_t lanes;
  bool (*read_points)(const char* text, std::size_t count, const Cut& cut, double* points);
  void (*forward)(double* x, const Length& length, const Twiddles& tables);
  void (*multiply_points)(double* a, const double* b, const Length& length, const Twiddles& tables);
  void (*inverse)(double* x, const Length& length, const Twiddles& tables, const Twiddles& forward);
  void (*recombine)(double* c1, double* c2, std::size_t count, const Cut& cut);
  std::size_t (*write_points)(const double* points, std::size_t count, const Cut& cut, char* out);
};

const Kernels& Portable_Kernels();
#if defined(QUORVEX_NATIVE_X86)
const Kernels& Avx2_Kernels();
const Kernels& Avx512_Kernels();
#endif

const Kernels& Kernels_Of(Instructions kind);

}  // namespace quorvex::native
