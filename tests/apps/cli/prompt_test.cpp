// The prompt, driven through a terminal of its own.
#include "cli/prompt.h"

#include <gtest/gtest.h>
#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <string>

#include "apps/cli/run_tool.h"

namespace quorvex {
namespace {

TEST(Prompt, CompletesNames) {
  struct Completion_Case {
    const char* typed;
    const char* replacement;
    std::size_t candidates;
  };
  const std::vector<Completion_Case> cases = {
      {"qvxad", "qvxADD(", 0},       {"=qvxADD(QVXSUB", "qvxSUBTRACT(", 0},
      {"help qvxad", "qvxADD", 0},   {"qvxis", "qvxIS", 10},
      {"qvxisg", "qvxISGREATER", 2}, {"fun", "functions", 0},
      {"qvxADD(fun", "", 0},         {"nothing", "", 0},
  };
  for (const auto& [typed, replacement, candidates] : cases) {
    const Completion completion = Complete_Word(typed);
    EXPECT_EQ(completion.replacement, replacement) << typed;
    EXPECT_EQ(completion.candidates.size(), candidates) << typed;
  }
}

// The tool on a terminal.
class Terminal {
 public:
  explicit Terminal(const std::filesystem::path& state_folder) {
    winsize size{24, 200, 0, 0};
    process_ = ::forkpty(&terminal_, nullptr, nullptr, &size);
    if (process_ == 0) {
      // Tests may run in the background, where Ctrl-C is ignored; on a terminal it never is.
      ::signal(SIGINT, SIG_DFL);
      ::setenv("XDG_STATE_HOME", state_folder.c_str(), 1);
      ::setenv("HOME", state_folder.c_str(), 1);
      ::setenv("LC_ALL", "C", 1);
      ::setenv("TERM", "vt100", 1);
      ::execl(QUORVEX_TOOL, "quorvex", nullptr);
      ::_exit(127);
    }
  }
  ~Terminal() {
    ::close(terminal_);
    if (process_ > 0) {
      ::kill(process_, SIGKILL);
      ::waitpid(process_, nullptr, 0);
    }
  }
  Terminal(const Terminal&) = delete;
  Terminal& operator=(const Terminal&) = delete;

  // Keys typed before the prompt is there would meet a terminal in another mode.
  void type_at_prompt(std::string_view keys) {
    EXPECT_TRUE(shows("> ")) << shown_;
    type(keys);
  }

  void type(std::string_view keys) {
    EXPECT_EQ(::write(terminal_, keys.data(), keys.size()), static_cast<ssize_t>(keys.size()));
  }

  // Waits until these words are shown, and forgets what is shown up to them.
  bool shows(std::string_view words) {
    for (;;) {
      const auto found = shown_.find(words);
      if (found != std::string::npos) {
        shown_.erase(0, found + words.size());
        return true;
      }
      pollfd event{terminal_, POLLIN, 0};
      std::array<char, 4096> buffer{};
      if (::poll(&event, 1, 20000) <= 0) return false;
      const ssize_t got = ::read(terminal_, buffer.data(), buffer.size());
      if (got <= 0) return false;
      shown_.append(buffer.data(), static_cast<std::size_t>(got));
    }
  }

  // The exit code, once it has ended; less than 0 if a signal ended it.
  int end() {
    shows("(whatever comes before the end)");
    int status = 0;
    for (int tries = 0; ::waitpid(process_, &status, WNOHANG) == 0; ++tries) {
      if (tries == 500) ::kill(process_, SIGKILL);
      ::usleep(10'000);
    }
    process_ = -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
  }

  const std::string& shown() const { return shown_; }

 private:
  int terminal_ = -1;
  pid_t process_ = -1;
  std::string shown_;
};

TEST(Prompt, CalculatesExplainsAndLeaves) {
  const Temporary_Folder folder;
  Terminal terminal(folder.path());
  terminal.type_at_prompt("qvxADD(\"12345678901234567890\",1)\n");
  EXPECT_TRUE(terminal.shows("\n12345678901234567891")) << terminal.shown();
  terminal.type_at_prompt("qvxADDD(1)\n");
  EXPECT_TRUE(terminal.shows("did you mean qvxADD?")) << terminal.shown();
  terminal.type_at_prompt("help qvxSIGN\n");
  EXPECT_TRUE(terminal.shows("qvxSIGN(-273.15)")) << terminal.shown();
  terminal.type_at_prompt("HELP nothing\n");
  EXPECT_TRUE(terminal.shows("there is no function \"nothing\"")) << terminal.shown();
  terminal.type_at_prompt("functions\n");
  EXPECT_TRUE(terminal.shows("qvxFORMAT")) << terminal.shown();
  terminal.type_at_prompt("qvxsub\t7,\"0.5\")\n");
  EXPECT_TRUE(terminal.shows("\n6.5")) << terminal.shown();
  terminal.type_at_prompt("\"\xE2\x82\xAC\"\n");
  EXPECT_TRUE(terminal.shows("\n\xE2\x82\xAC")) << terminal.shown();
  terminal.type_at_prompt("quit\n");
  EXPECT_EQ(terminal.end(), 0);
}

TEST(Prompt, InterruptGivesUpTheLineAndCtrlDLeaves) {
  const Temporary_Folder folder;
  Terminal terminal(folder.path());
  terminal.type_at_prompt("qvxADD(1,");
  EXPECT_TRUE(terminal.shows("qvxADD(1,"));
  terminal.type("\x03");
  EXPECT_TRUE(terminal.shows("^C")) << terminal.shown();
  terminal.type_at_prompt("qvxADD(2,3)\n");
  EXPECT_TRUE(terminal.shows("\n5")) << terminal.shown();
  // Between two lines the terminal itself takes Ctrl-D, and nobody is told.
  terminal.type_at_prompt("\x04");
  EXPECT_EQ(terminal.end(), 0);
}

TEST(Prompt, KeepsItsHistory) {
  const Temporary_Folder folder;
  {
    Terminal first(folder.path());
    first.type_at_prompt("qvxADD(40,2)\n");
    EXPECT_TRUE(first.shows("\n42")) << first.shown();
    first.type_at_prompt("exit\n");
    EXPECT_EQ(first.end(), 0);
  }
  EXPECT_NE(File_Text(folder.path() / "quorvex" / "history").find("qvxADD(40,2)"),
            std::string::npos);
  Terminal second(folder.path());
  second.type_at_prompt("\x10\x10\n");  // back two lines, beyond "exit"
  EXPECT_TRUE(second.shows("\n42")) << second.shown();
}

}  // namespace
}  // namespace quorvex
