// Recalculation after a change of the default limit.
#pragma once

#include "host/export.h"

namespace quorvex {

/// Has the host calculate every cell, in all its open workbooks, whose formula holds "qvx" or a
/// name that refers to something with "qvx", in any case of letters. What the host refuses is
/// passed over; without a host nothing happens.
QUORVEX_API void Recalculate_Formulas();

}  // namespace quorvex
