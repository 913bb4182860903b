// Long products in portable instructions.
#include <algorithm>

#include "native/generic/karatsuba.h"
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
  static constexpr Kernels kernels = {
      .multiply_tiny = nullptr,
      .multiply_short = nullptr,
      .short_scratch = nullptr,
      .short_from = 0,
      .transform_from = 2600,
      .square_from = 4200,
      .lanes = Lanes::count,
      .read_points = Read_Points,
      .forward = Forward,
      .multiply_points = Multiply_Points,
      .inverse = Inverse,
      .recombine = Recombine,
      .write_points = Write_Points,
      .read_grains = Read_Grains,
      .fold = Fold_Waves,
      .split = Split_Waves,
      .multiply_waves = Multiply_Waves,
      .carry_wave = Carry_Wave,
  };
  // The shorter operand is below their mean, and is filled up to one an eighth longer at most.
  static_assert(Limbs_For(std::max(kernels.transform_from, kernels.square_from)) * 8 / 7 <=
                karatsuba_ceiling);
  return kernels;
}

}  // namespace quorvex::native
