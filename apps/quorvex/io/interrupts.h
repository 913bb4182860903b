// Ctrl-C.
#pragma once

namespace quorvex {

/// From now on Ctrl-C asks the calculation to end, by `Call_Guard`. A second one while a
/// calculation has not yet heeded the first ends the tool, as it ends any other.
void Catch_Interrupts();

}  // namespace quorvex
