// Long products in portable instructions.
#include "native/grains.h"
#include "native/kernels.h"
#include "native/points.h"
#include "native/vector_portable.h"
// The vectors come first.
#include "native/recombine.h"
#include "native/transform_pieces.h"
#include "native/wave_fold.h"

namespace quorvex::native {

const Kernels& Portable_Kernels() {
  static constexpr Kernels kernels = {
      nullptr,    nullptr,         nullptr,        15'000,       Lanes::count, Read_Points,
      Forward,    Multiply_Points, Inverse,        Recombine,    Write_Points, Read_Grains,
      Fold_Waves, Split_Waves,     Multiply_Waves, Unfold_Waves, Carry_Grains};
  return kernels;
}

}  // namespace quorvex::native
