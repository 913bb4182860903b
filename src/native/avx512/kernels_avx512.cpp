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
      .multiply_tiny = Multiply_Tiny,
      .multiply_short = Multiply_In_Lanes,
      .short_scratch = Short_Scratch,
      .short_from = 0,
      .transform_from = 2300,
      .square_from = 1750,
      .lanes = Lanes::count,
      .read_points = Read_Eights,
      .forward = Forward,
      .multiply_points = Multiply_Points,
      .inverse = Inverse,
      .recombine = Recombine_Eights,
      .write_points = Write_Eights,
      .read_grains = Read_Grain_Eights,
      .fold = Fold_Waves,
      .split = Split_Waves,
      .multiply_waves = Multiply_Waves,
      .carry_wave = Carry_Wave_Eights,
  };
  return kernels;
}

}  // namespace quorvex::native
