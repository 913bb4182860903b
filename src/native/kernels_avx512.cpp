// Long products in avx512 instructions.
#include "native/kernels.h"
#include "native/points.h"
#include "native/vector_avx512.h"
// The vectors come first.
#include "native/recombine.h"
#include "native/transform_pieces.h"

namespace quorvex::native {

const Kernels& Avx512_Kernels() {
  static constexpr Kernels kernels = {Lanes::count, Read_Points, Forward,     Multiply_Points,
                                      Inverse,      Recombine,   Write_Points};
  return kernels;
}

}  // namespace quorvex::native
