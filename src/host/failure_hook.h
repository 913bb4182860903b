// Who is told of failures as they are made.
#pragma once

namespace quorvex {

class Run_Time_Failure;

using Failure_Hook = void (*)(const Run_Time_Failure& failure);

/// Told of every failure on its thread; null for nobody.
extern thread_local constinit Failure_Hook failure_hook;

}  // namespace quorvex
