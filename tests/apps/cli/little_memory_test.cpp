// The tool where the system gives it hardly any memory.
#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "support/environment.h"

namespace quorvex {
namespace {

// What a run with so many kilobytes of address space writes to standard output.
std::string Output_With(int kilobytes, const std::string& formula, const std::string& settings) {
  const std::string command = "ulimit -v " + std::to_string(kilobytes) + "; XDG_CONFIG_HOME='" +
                              settings + "' LC_ALL=C exec '" QUORVEX_TOOL "' '" + formula +
                              "' 2>/dev/null";
  std::FILE* const run = ::popen(command.c_str(), "r");
  std::string output;
  for (int read = std::fgetc(run); read != EOF; read = std::fgetc(run))
    output += static_cast<char>(read);
  ::pclose(run);
  return output;
}

// From too little to start with up to enough. On the way there comes a run that has no room for the
// library of products.
TEST(LittleMemory, GivesNoNumberOrTheRightOne) {
  constexpr int most = 16'000;
  const Temporary_Folder folder;
  std::string output;
  for (int kilobytes = 8'000; kilobytes < most && output.empty(); kilobytes += 100) {
    output = Output_With(kilobytes, "qvxPRODUCT(2,3)", folder.path().string());
    EXPECT_TRUE(output.empty() || output == "6\n") << kilobytes << ": " << output;
  }
}

}  // namespace
}  // namespace quorvex
