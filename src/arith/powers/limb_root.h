// Square roots limb by limb.
#pragma once

#include <cstddef>

#include "arith/limbs/limb_number.h"

namespace quorvex {

/// Of so many limbs, roots limb by limb cost less than those at rising precision.
inline constexpr std::size_t most_limbs_in_turn = 20;

/// The square root of a number above 0, cut behind `count` full limbs of digits, at most
/// `most_limbs_in_turn`: wrong by less than two units of the last of its 18 `count` digits.
limbs::Number Root_In_Turn(const limbs::Number& radicand, std::size_t count);

}  // namespace quorvex
