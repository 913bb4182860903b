// The tool on a terminal of its own.
#pragma once

#include <sys/wait.h>
#include <unistd.h>
#include <utmp.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "support/terminal.h"

namespace quorvex {

class Tool_Terminal : public Terminal {
 public:
  // Its settings and its history are kept in the folder.
  explicit Tool_Terminal(const std::filesystem::path& folder,
                         const std::vector<std::string>& words = {})
      : process_(::fork()) {
    if (process_ == 0) {
      ::login_tty(screen());
      // Tests may run in the background, where Ctrl-C is ignored; on a terminal it never is.
      ::signal(SIGINT, SIG_DFL);
      ::setenv("XDG_STATE_HOME", folder.c_str(), 1);
      ::setenv("XDG_CONFIG_HOME", folder.c_str(), 1);
      ::setenv("HOME", folder.c_str(), 1);
      ::setenv("LC_ALL", "C", 1);
      ::setenv("TERM", "vt100", 1);
      std::vector<std::string> arguments = {"quorvex"};
      arguments.insert(arguments.end(), words.begin(), words.end());
      std::vector<char*> argv;
      for (std::string& argument : arguments) argv.push_back(argument.data());
      argv.push_back(nullptr);
      ::execv(QUORVEX_TOOL, argv.data());
      ::_exit(127);
    }
    leave_to_others();
  }
  ~Tool_Terminal() {
    if (process_ > 0) {
      ::kill(process_, SIGKILL);
      ::waitpid(process_, nullptr, 0);
    }
  }
  Tool_Terminal(const Tool_Terminal&) = delete;
  Tool_Terminal& operator=(const Tool_Terminal&) = delete;

  // Keys typed before the prompt is there would meet a terminal in another mode.
  void type_at_prompt(std::string_view keys) { type_at("> ", keys); }

  void type_at(std::string_view question, std::string_view keys) {
    EXPECT_TRUE(shows(question)) << question << " is not asked: " << shown();
    type(keys);
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

 private:
  pid_t process_;
};

}  // namespace quorvex
