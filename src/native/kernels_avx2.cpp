// Long products in avx2 instructions.
#include "native/kernels.h"
#include "native/points.h"
#include "native/vector_avx2.h"
// The vectors come first.
#include "native/recombine.h"
#include "native/transform_pieces.h"

namespace quorvex::native {

const Kernels& Avx2_Kernels() {
  static constexpr Kernels kernels = {nullptr,      nullptr,     nullptr,     1300,
                                      Lanes::count, Read_Points, Forward,     Multiply_Points,
                                      Inverse,      Recombine,   Write_Points};
  return kernels;
}

}  // namespace quorvex::native
