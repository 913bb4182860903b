// Calculating one formula of a worksheet.
#pragma once

#include "frame/class/cls_Quorvex.h"
#include "sheet/workbook.h"

namespace quorvex {

/// Calculates a formula from the values of what it depends on and keeps its value and problem. Lets
/// `Run_Time_Failure` number 18 through, and then keeps what was there.
void Calculate(const Workbook& workbook, cls_Quorvex& engine, Calculation& calculation);

}  // namespace quorvex
