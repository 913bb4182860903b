// Calculating one formula of a worksheet.
#pragma once

#include "formula/evaluate.h"
#include "frame/class/cls_Quorvex.h"
#include "sheet/workbook.h"

namespace quorvex {

/// Calculates a formula from the values of what it depends on and keeps its value and problem,
/// and, if wanted, what explains them. Lets
/// `Run_Time_Failure` number 18 through, and then keeps what was there.
void Calculate(const Workbook& workbook, cls_Quorvex& engine, Calculation& calculation,
               Explain explain = Explain::no);

}  // namespace quorvex
