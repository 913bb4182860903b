// The tool on a terminal of its own.
#pragma once

#include <gtest/gtest.h>
#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace quorvex {

class Terminal {
 public:
  // Its settings and its history are kept in the folder.
  explicit Terminal(const std::filesystem::path& folder,
                    const std::vector<std::string>& words = {}) {
    winsize size{24, 200, 0, 0};
    process_ = ::forkpty(&terminal_, nullptr, nullptr, &size);
    if (process_ == 0) {
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
  void type_at_prompt(std::string_view keys) { type_at("> ", keys); }

  void type_at(std::string_view question, std::string_view keys) {
    EXPECT_TRUE(shows(question)) << question << " is not asked: " << shown_;
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

}  // namespace quorvex
