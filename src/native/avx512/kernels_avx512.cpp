// Products in AVX-512 instructions.
#include "native/avx512/grains_avx512.h"
#include "native/avx512/points_avx512.h"
#include "native/avx512/schoolbook_ifma.h"
#include "native/avx512/tiny_avx512.h"
#include "native/avx512/vector_avx512.h"
#include "native/generic/kernels.h"
// The vectors come first.
#include "native/generic/transform_pieces.h"
#include "native/generic/wave_fold.h"

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
