// The recalculation of a workbook.
#pragma once

#include "frame/class/cls_Quorvex.h"
#include "sheet/recalculation.h"
#include "sheet/workbook.h"

namespace quorvex {

/// Calculates every formula, after those that it depends on; all of them again where the array of
/// one has filled other cells with new values. Cells on a circular reference get a problem that
/// spells it out; a method's failure makes the cell #VALUE!, with its message as the problem. A
/// host that breaks the calculation off (`Run_Time_Failure` 18, let through) leaves values as they
/// were in the cells not yet reached; calculating again mends them.
void Recalculate_All(const Workbook& workbook, cls_Quorvex& engine, const Progress& progress = {});

/// The same for the formulas alone that were set or marked stale since they were calculated, for
/// the names that these use, and for all that depends on any of them.
void Recalculate_Stale(const Workbook& workbook, cls_Quorvex& engine,
                       const Progress& progress = {});

}  // namespace quorvex
