// The routines behind long products for each kind of instructions.
#pragma once

#include <cstddef>
#include <cstdint>

#include "native/generic/field.h"
#include "native/generic/grain.h"
#include "native/generic/instructions.h"
#include "native/generic/length.h"
#include "native/generic/twiddles.h"
#include "native/generic/wave_length.h"
#include "native/generic/wave_roots.h"

namespace quorvex::native {

inline constexpr std::size_t tiny_digits = 16;

struct Kernels {
  /// A product of operands of up to `tiny_digits` digits, or null.
  std::size_t (*multiply_tiny)(const char* a_text, std::size_t a_size, const char* b_text,
                               std::size_t b_size, char* out);

  /// A product of short operands, which are those below transform_from, or null. A square has no
  /// second text. `scratch` has as many words of 64 bits as short_scratch tells, on the boundary of
  /// a cache line.
  std::size_t (*multiply_short)(const char* a_text, std::size_t a_size, const char* b_text,
                                std::size_t b_size, char* out, void* scratch);
  std::size_t (*short_scratch)(std::size_t a_size, std::size_t b_size);
  /// From this mean of the lengths on it is faster than limbs, as measured.
  std::size_t short_from;

  /// From this harmonic mean of the lengths on the transform is faster, as measured.
  std::size_t transform_from;
  std::size_t square_from;  ///< the same for squares
  std::size_t lanes;
  bool (*read_points)(const char* text, std::size_t count, const Cut& cut, double* points);
  void (*forward)(double* x, const Length& length, const Twiddles& tables);
  void (*multiply_points)(double* a, const double* b, const Length& length, const Twiddles& tables);
  void (*inverse)(double* x, const Length& length, const Twiddles& tables, const Twiddles& forward);
  void (*recombine)(double* c1, double* c2, std::size_t count, const Cut& cut);
  std::size_t (*write_points)(const double* points, std::size_t count, std::size_t digits,
                              char* out);

  /// Products by waves; where points are complex, they are two doubles.
  bool (*read_grains)(const char* text, std::size_t count, const Grain& grain, double* points);
  void (*fold)(const double* from, std::size_t count, const Wave_Length& length,
               const Wave_Roots* roots, double* x, double* squares);
  void (*split)(double* x, const Wave_Length& length, const Wave_Roots* roots);
  void (*multiply_waves)(double* x, const double* y, const Wave_Length& length,
                         const Wave_Roots* roots);
  /// The groups of a product of points; there is room for all coefficients of the length.
  void (*carry_wave)(const double* x, const Wave_Length& length, const Grain& grain,
                     std::size_t count, double* groups);
};

const Kernels& Portable_Kernels();
#if defined(QUORVEX_NATIVE_X86)
const Kernels& Avx2_Kernels();
const Kernels& Avx512_Kernels();
#endif

const Kernels& Kernels_Of(Instructions kind);

}  // namespace quorvex::native
