// From the pieces of a product by waves to its groups of digits. Follows wave_fold.h.
#pragma once

#include "native/generic/group_carry.h"
#include "native/generic/wave_fold.h"

namespace quorvex::native {
namespace {

template <std::size_t D, typename Get>
void Carry_Coefficients(const Get& get, std::size_t count, double* groups) {
  Group_Carry<D> carry;
  for (std::size_t i = 0; i < count; i += Lanes::count)
    carry.take(get(2 * i), get(2 * i + Lanes::count)).store(groups + i);
  if (!carry.is_settled()) Settle_Groups(groups, count, Power_Of_Ten(D));
}

// Coefficients of one piece are taken where they stand.
template <std::size_t D>
void Carry_Wave_Of(const double* x, const Wave_Length& length, std::size_t count, double* groups) {
  if (length.units == 4) {
    const Rounded_Piece piece(x, Pieces_Of(length).piece[0]);
    return Carry_Coefficients<D>([&piece](std::size_t k) { return piece.get(k); }, count, groups);
  }
  Unfold_Waves(x, length, groups);
  Carry_Coefficients<D>([groups](std::size_t k) { return Lanes::Load(groups + k); }, count, groups);
}

inline void Carry_Wave(const double* x, const Wave_Length& length, const Grain& grain,
                       std::size_t count, double* groups) {
  if (grain.digits == coarse_grain.digits) {
    Carry_Wave_Of<coarse_grain.digits>(x, length, count, groups);
  } else {
    Carry_Wave_Of<fine_grain.digits>(x, length, count, groups);
  }
}

}  // namespace
}  // namespace quorvex::native
