// A bar that shows how far long work has come.
#pragma once

#include <chrono>
#include <cstddef>
#include <string>

namespace quorvex {

/// Draws on standard error, if that is a terminal and once the work has taken half a second; goes
/// away when the work is done.
class Progress_Bar {
 public:
  explicit Progress_Bar(std::string label);
  ~Progress_Bar();
  Progress_Bar(const Progress_Bar&) = delete;
  Progress_Bar& operator=(const Progress_Bar&) = delete;

  void show(std::size_t done, std::size_t all);

 private:
  using Clock = std::chrono::steady_clock;

  void draw(std::size_t done, std::size_t all);

  std::string label_;
  bool is_wanted_;
  bool is_drawn_ = false;
  Clock::time_point next_;
};

}  // namespace quorvex
