// Products in AVX2 instructions.
#include <algorithm>

#include "native/avx2/digit_lanes_avx2.h"
#include "native/avx2/schoolbook_fma.h"
#include "native/avx2/vector_avx2.h"
#include "native/generic/kernels.h"
#include "native/generic/points.h"
// The vectors come first.
#include "native/generic/recombine.h"
#include "native/generic/transform_pieces.h"
#include "native/generic/wave_carry.h"

namespace quorvex::native {
namespace {

bool Read_Grains(const char* text, std::size_t count, const Grain& grain, double* points) {
  const std::size_t room = Rounded_Up(Grains_For(count, grain), 16);
  return grain.digits == coarse_grain.digits
             ? Read_Balanced<coarse_grain.digits>(text, count, points, room)
             : Read_Balanced<fine_grain.digits>(text, count, points, room);
}

std::size_t Write_Groups(const double* groups, std::size_t count, std::size_t digits, char* out) {
  if (digits == 8) return Write_Groups_Of<8>(groups, count, out);
  return digits == 12 ? Write_Groups_Of<12>(groups, count, out)
                      : Write_Groups_Of<10>(groups, count, out);
}

}  // namespace

const Kernels& Avx2_Kernels() {
  static constexpr Kernels kernels = {
      .multiply_tiny = nullptr,
      .multiply_short = Multiply_In_Doubles,
      .short_scratch = Short_Scratch,
      .short_from = 45,
      .transform_from = 1000,
      .square_from = 740,
      .lanes = Lanes::count,
      .read_points = Read_Points,
      .forward = Forward,
      .multiply_points = Multiply_Points,
      .inverse = Inverse,
      .recombine = Recombine,
      .write_points = Write_Groups,
      .read_grains = Read_Grains,
      .fold = Fold_Waves,
      .split = Split_Waves,
      .multiply_waves = Multiply_Waves,
      .carry_wave = Carry_Wave,
  };
  // The shorter operand is below their mean.
  static_assert(Grains_For(std::max(kernels.transform_from, kernels.square_from), short_grain) <=
                most_short_points);
  return kernels;
}

}  // namespace quorvex::native
