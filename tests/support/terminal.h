// A terminal of two ends: what is typed at the one is read at the other.
#pragma once

#include <gtest/gtest.h>
#include <poll.h>
#include <pty.h>
#include <unistd.h>

#include <array>
#include <string>
#include <string_view>
#include <utility>

namespace quorvex {

class Terminal {
 public:
  Terminal() {
    winsize size{24, 200, 0, 0};
    EXPECT_EQ(::openpty(&keyboard_, &screen_, nullptr, nullptr, &size), 0);
  }
  ~Terminal() {
    leave_to_others();
    ::close(keyboard_);
  }
  Terminal(const Terminal&) = delete;
  Terminal& operator=(const Terminal&) = delete;

  /// The end where programs read and write.
  int screen() const { return screen_; }

  /// Leaves that end to the process that has it, with which it closes.
  void leave_to_others() {
    if (screen_ >= 0) ::close(std::exchange(screen_, -1));
  }

  void type(std::string_view keys) const {
    EXPECT_EQ(::write(keyboard_, keys.data(), keys.size()), static_cast<ssize_t>(keys.size()));
  }

  /// Waits until these words are shown, and forgets what is shown up to them. What was typed is
  /// echoed before.
  bool shows(std::string_view words) {
    for (;;) {
      const auto found = shown_.find(words);
      if (found != std::string::npos) {
        shown_.erase(0, found + words.size());
        return true;
      }
      pollfd event{keyboard_, POLLIN, 0};
      std::array<char, 4096> buffer{};
      if (::poll(&event, 1, 20000) <= 0) return false;
      const ssize_t got = ::read(keyboard_, buffer.data(), buffer.size());
      if (got <= 0) return false;
      shown_.append(buffer.data(), static_cast<std::size_t>(got));
    }
  }

  const std::string& shown() const { return shown_; }

 private:
  int keyboard_ = -1;
  int screen_ = -1;
  std::string shown_;
};

}  // namespace quorvex
