// Products in AVX-512 instructions.
#include "native/grains_avx512.h"
#include "native/kernels.h"
#include "native/points_avx512.h"
#include "native/schoolbook_ifma.h"
#include "native/tiny_avx512.h"
#include "native/vector_avx512.h"
// The vectors come first.
#include "native/transform_pieces.h"
#include "native/wave_fold.h"

namespace quorvex::native {

const Kernels& Avx512_Kernels() {
  static constexpr Kernels kernels = {
      Multiply_Tiny,     Multiply_In_Lanes, Short_Scratch, 3200,
      Lanes::count,      Read_Eights,       Forward,       Multiply_Points,
      Inverse,           Recombine_Eights,  Write_Eights,  true,
      Read_Grain_Eights, Fold_Waves,        Split_Waves,   Multiply_Waves,
      Carry_Wave_Eights};
  return kernels;
}

}  // namespace quorvex::native
