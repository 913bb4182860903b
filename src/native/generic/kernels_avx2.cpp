// Long products in avx2 instructions.
#include "native/generic/grains.h"
#include "native/generic/kernels.h"
#include "native/generic/points.h"
#include "native/generic/vector_avx2.h"
// The vectors come first.
#include "native/generic/recombine.h"
#include "native/generic/transform_pieces.h"
#include "native/generic/wave_fold.h"

namespace quorvex::native {
namespace {

void Carry_Wave(const double* x, const Wave_Length& length, const Grain& /*grain*/,
                std::size_t count, double* groups) {
  Unfold_Waves(x, length, groups);
  Carry_Grains(groups, count);
}

}  // namespace

const Kernels& Avx2_Kernels() {
  static constexpr Kernels kernels = {
      nullptr,     nullptr,         nullptr,     1050,           Lanes::count, Read_Points,
      Forward,     Multiply_Points, Inverse,     Recombine,      Write_Points, false,
      Read_Grains, Fold_Waves,      Split_Waves, Multiply_Waves, Carry_Wave};
  return kernels;
}

}  // namespace quorvex::native
