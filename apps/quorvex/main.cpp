// The quorvex command-line tool.
#include "cli/command_line.h"

int main(int argc, char** argv) {
  return quorvex::Run_Command_Line(argc, argv);
}
