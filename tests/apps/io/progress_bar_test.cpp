// The bar of long work, on a terminal and elsewhere.
#include "io/progress_bar.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <string>
#include <thread>

#include "support/terminal.h"

namespace quorvex {
namespace {

// Standard error leads elsewhere while it lives.
class Error_Guard {
 public:
  explicit Error_Guard(int descriptor) : before_(::dup(STDERR_FILENO)) {
    ::dup2(descriptor, STDERR_FILENO);
  }
  ~Error_Guard() {
    ::dup2(before_, STDERR_FILENO);
    ::close(before_);
  }
  Error_Guard(const Error_Guard&) = delete;
  Error_Guard& operator=(const Error_Guard&) = delete;

 private:
  int before_;
};

void Work_Long(std::size_t done, std::size_t all) {
  Progress_Bar bar("Working");
  bar.show(1, 2);
  std::this_thread::sleep_for(std::chrono::milliseconds(510));
  bar.show(done, all);
  bar.show(done, all);  // so soon again it isn't drawn anew
}

TEST(ProgressBar, ComesAfterHalfASecondAndGoesWithTheWork) {
  Terminal terminal;
  {
    const Error_Guard to_terminal(terminal.screen());
    Work_Long(1, 4);
    Work_Long(0, 0);  // of nothing to do there is nothing to show
  }
  EXPECT_TRUE(terminal.shows("Working [##########" + std::string(30, '.') + "] 25 %\r\033[K"))
      << terminal.shown();
  EXPECT_EQ(terminal.shown(), "");
}

TEST(ProgressBar, StaysAwayFromFiles) {
  std::FILE* const file = std::tmpfile();
  {
    const Error_Guard to_file(::fileno(file));
    Work_Long(1, 4);
  }
  EXPECT_EQ(std::fseek(file, 0, SEEK_END), 0);
  EXPECT_EQ(std::ftell(file), 0);
  std::fclose(file);
}

}  // namespace
}  // namespace quorvex
