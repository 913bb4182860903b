// Long products in portable instructions.
#include "native/generic/kernels.h"
#include "native/generic/points.h"
#include "native/generic/vector_portable.h"
// The vectors come first.
#include "native/generic/grains.h"
#include "native/generic/recombine.h"
#include "native/generic/transform_pieces.h"
#include "native/generic/wave_carry.h"

namespace quorvex::native {

const Kernels& Portable_Kernels() {
  static constexpr Kernels kernels = {nullptr,      nullptr,     nullptr,      2200,
                                      Lanes::count, Read_Points, Forward,      Multiply_Points,
                                      Inverse,      Recombine,   Write_Points, true,
                                      Read_Grains,  Fold_Waves,  Split_Waves,  Multiply_Waves,
                                      Carry_Wave};
  return kernels;
}

}  // namespace quorvex::native
