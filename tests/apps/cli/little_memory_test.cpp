// The tool where the system gives it hardly any memory.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdio>
#include <string>

#include "support/environment.h"

namespace quorvex {
namespace {

struct Little_Run {
  std::string told;    // results and errors alike
  int exit_code = -1;  // unless a signal ended it
};

Little_Run Run_With(int kilobytes, const std::string& formula, const std::string& settings) {
  const std::string command = "ulimit -v " + std::to_string(kilobytes) + "; XDG_CONFIG_HOME='" +
                              settings + "' LC_ALL=C exec '" QUORVEX_TOOL "' '" + formula +
                              "' 2>&1";
  std::FILE* const stream = ::popen(command.c_str(), "r");
  Little_Run run;
  for (int read = std::fgetc(stream); read != EOF; read = std::fgetc(stream))
    run.told += static_cast<char>(read);
  const int status = ::pclose(stream);
  if (WIFEXITED(status)) run.exit_code = WEXITSTATUS(status);
  return run;
}

bool Is_Right(const Little_Run& run) {
  switch (run.exit_code) {
    case 0:
      return run.told == "6\n";
    case 1:
      return run.told.find("memory") != std::string::npos;
    case 127:  // the system has no room for the program
      return true;
    default:  // nor has the C++ library for what it throws, before the program has begun
      return run.told.starts_with("terminate called");
  }
}

// From too little to start with up to enough. On the way there comes a run that has no room for the
// library of products.
TEST(LittleMemory, GivesTheRightNumberOrSaysWhyNot) {
#ifdef QUORVEX_SANITIZED
  GTEST_SKIP() << "Sanitizers take more addresses than are left here.";
#endif
  constexpr int most = 16'000;
  const Temporary_Folder folder;
  Little_Run run;
  for (int kilobytes = 8'000; kilobytes < most && run.exit_code != 0; kilobytes += 20) {
    run = Run_With(kilobytes, "qvxPRODUCT(2,3)", folder.path().string());
    EXPECT_TRUE(Is_Right(run)) << kilobytes << ": " << run.exit_code << ' ' << run.told;
  }
  EXPECT_EQ(run.exit_code, 0);
}

}  // namespace
}  // namespace quorvex
