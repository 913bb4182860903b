// Long products in portable instructions.
#include "native/kernels.h"
#include "native/points.h"
#include "native/vector_portable.h"
// The vectors come first.
#include "native/recombine.h"
#include "native/transform_pieces.h"

namespace quorvex::native {

const Kernels& Portable_Kernels() {
  static constexpr Kernels kernels = {nullptr,      nullptr,     nullptr,     15'000,
                                      Lanes::count, Read_Points, Forward,     Multiply_Points,
                                      Inverse,      Recombine,   Write_Points};
  return kernels;
}

}  // namespace quorvex::native
