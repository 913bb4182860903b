#include "report.h"

#include <cstdlib>
#include <fstream>

namespace quorvex::windows {

void Report(const std::string& line) {
  const char* const file = std::getenv("QUORVEX_REPORT");
  if (file != nullptr)
    std::ofstream(file, std::ios::app | std::ios::binary) << "  " << line << "\n";
}

}  // namespace quorvex::windows
