// Memory, the message box, and replacing what the platform offers.
#include <gtest/gtest.h>
#include <sys/ioctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cmath>
#include <csignal>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <string>

#include "host/platform/posix.h"
#include "support/environment.h"
#include "support/failures.h"
#include "support/locales.h"
#include "support/surroundings.h"
#include "support/terminal.h"

namespace quorvex {
namespace {

constexpr double megabyte = 1048576;

TEST(RequireMemory, RefusesOnlyWhatIsLargeAndNotThere) {
  const Memory_Guard memory(std::size_t{100} << 20U);
  for (const double bytes : {0.0, -1.0, 63 * megabyte, 100 * megabyte})
    EXPECT_EQ(Failure_Of([&] { Require_Memory(bytes); }), std::nullopt) << bytes;
  for (const double bytes : {101 * megabyte, 1E300, HUGE_VAL, std::nan("")})
    EXPECT_EQ(Failure_Of([&] { Require_Memory(bytes); }), Failure_Number::out_of_memory) << bytes;
}

TEST(RequireMemory, GrantsALittleUnaskedAndSaysHowMuchIsMissing) {
  const Memory_Guard memory(0);
  EXPECT_EQ(Failure_Of([] { Require_Memory(63 * megabyte); }), std::nullopt);
  std::string message;
  try {
    Require_Memory(3 * 1024 * megabyte);
  } catch (const Run_Time_Failure& failure) {
    message = failure.what();
  }
  EXPECT_EQ(message, "There is not enough memory: this needs 3 GB, and 0 MB are free.");
}

TEST(SystemMemory, IsMoreThanATestNeedsAndLessThanThereCanBe) {
  const std::size_t available = System_Memory()->available_bytes();
  EXPECT_GT(available, std::size_t{16} << 20U);
#ifdef __linux__
  EXPECT_LT(available, std::size_t{1} << 50U);
#endif
}

TEST(SystemClock, TellsTheTimeOfTheUsersZone) {
  const double day = 86400;
  const auto time_in = [](const char* zone) {
    const Variable_Guard variable("TZ", zone);
    ::tzset();
    return System_Clock()->time_of_day();
  };
  const double greenwich = time_in("UTC0");
  const double expected = std::fmod(static_cast<double>(std::time(nullptr)), day) / day;
  const double later = time_in("XYZ-5:30");
  ::tzset();
  const auto apart = [](double from, double to) {
    const double days = to - from;
    return days - std::floor(days);
  };
  EXPECT_LT(apart(greenwich, expected), 60 / day) << greenwich;
  EXPECT_NEAR(apart(greenwich, later), 5.5 / 24, 60 / day) << greenwich << " " << later;
}

TEST(SystemMemory, KeepsWithinTheLimitOfTheProcess) {
  const std::size_t most = std::size_t{256} << 20U;
  const pid_t child = fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    std::size_t pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    const rlim_t limit = pages * static_cast<std::size_t>(sysconf(_SC_PAGESIZE)) + most;
    const rlimit limits{limit, RLIM_INFINITY};
    const bool set = setrlimit(RLIMIT_AS, &limits) == 0;
    const std::size_t available = System_Memory()->available_bytes();
    _exit(set && available > most / 2 && available <= most ? 0 : 1);
  }
  int status = 0;
  waitpid(child, &status, 0);
  EXPECT_EQ(status, 0);
}

TEST(MessageBox, AsksOnATerminal) {
  const struct {
    const char* keys;
    Message_Answer answer;
  } cases[] = {{"y\n", Message_Answer::yes},
               {"YES\n", Message_Answer::yes},
               {"n\n", Message_Answer::no},
               {"\n", Message_Answer::no},
               {"perhaps\nyes\n", Message_Answer::yes},
               {"\x04", Message_Answer::no}};
  for (const auto& c : cases) {
    Terminal terminal;
    terminal.type(c.keys);
    const auto box = Terminal_Message_Box(terminal.screen(), terminal.screen());
    EXPECT_EQ(box->show("Title", "Go on?", Message_Icon::question, Message_Buttons::yes_no),
              c.answer)
        << c.keys;
    EXPECT_TRUE(terminal.shows("Title\r\nGo on?\r\n")) << c.keys;
  }
}

TEST(MessageBox, ShowsAMessageWithoutWaiting) {
  Terminal terminal;
  const auto box = Terminal_Message_Box(terminal.screen(), terminal.screen());
  EXPECT_EQ(box->show("Quorvex", "Digits only.", Message_Icon::error, Message_Buttons::ok),
            Message_Answer::ok);
  EXPECT_TRUE(terminal.shows("Quorvex: error\r\nDigits only.\r\n"));
}

TEST(MessageBox, WhatItQuotesCommandsNoTerminal) {
  Terminal terminal;
  const auto box = Terminal_Message_Box(terminal.screen(), terminal.screen());
  box->show("T",
            "a\x1B[2Jb\xC2\x9B"
            "c\x7F \xC3\xA4\n2",
            Message_Icon::none, Message_Buttons::ok);
  EXPECT_TRUE(terminal.shows("T\r\na?[2Jb?c? \xC3\xA4\r\n2\r\n"));
}

TEST(MessageBox, WithoutATerminalAnswersAsNobodyWould) {
  int ends[2];
  ASSERT_EQ(pipe(ends), 0);
  ASSERT_EQ(write(ends[1], "y\n", 2), 2);
  const auto box = Terminal_Message_Box(ends[0], ends[1]);
  EXPECT_EQ(box->show("T", "?", Message_Icon::question, Message_Buttons::yes_no),
            Message_Answer::no);
  EXPECT_EQ(box->show("T", "!", Message_Icon::none, Message_Buttons::ok), Message_Answer::ok);
  char kept[8];
  EXPECT_EQ(read(ends[0], kept, sizeof kept), 2);
  close(ends[0]);
  close(ends[1]);
}

// In the background of a terminal of its own. 0 if the question was answered by No without waiting.
int Ask_In_The_Background() {
  setsid();
  Terminal terminal;
  if (ioctl(terminal.screen(), TIOCSCTTY, 0) != 0) return 2;
  terminal.type("y\n");
  const pid_t background = fork();
  if (background == 0) {
    setpgid(0, 0);
    const auto box = Terminal_Message_Box(terminal.screen(), terminal.screen());
    const auto answer = box->show("T", "?", Message_Icon::question, Message_Buttons::yes_no);
    _exit(answer == Message_Answer::no ? 0 : 1);
  }
  int status = 0;
  waitpid(background, &status, WUNTRACED);
  if (WIFSTOPPED(status)) kill(background, SIGKILL);
  return WIFEXITED(status) ? WEXITSTATUS(status) : 3;
}

TEST(MessageBox, WaitsForNobodyInTheBackground) {
  const pid_t child = fork();
  if (child == 0) _exit(Ask_In_The_Background());
  int status = 0;
  waitpid(child, &status, 0);
  EXPECT_EQ(WEXITSTATUS(status), 0);
}

TEST(Platform, HasAWorkingDefaultOfEverything) {
  const Platform platform = Default_Platform();
  EXPECT_EQ(Locale_Problem(platform.locale->current()), std::nullopt);
  EXPECT_EQ(platform.letters->capital(U'\u00E9'), U'\u00C9');
  platform.yielder->yield();
  bool ran = false;
  const auto timer = platform.timers->make([&] { ran = true; });
  timer->arm(std::chrono::milliseconds(0));
  platform.timers->run_due();
  EXPECT_TRUE(ran);
}

}  // namespace
}  // namespace quorvex
