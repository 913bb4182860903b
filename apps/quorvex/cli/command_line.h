// The command line of the tool.
#pragma once

namespace quorvex {

/// Does what the arguments ask for and gives the exit code: 0 for success, 1 for a failed
/// calculation, 2 for wrong usage. Throws nothing.
int Run_Command_Line(int argc, char** argv);

}  // namespace quorvex
