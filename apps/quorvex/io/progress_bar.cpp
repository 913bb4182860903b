// A bar that shows how far long work has come.
#include "io/progress_bar.h"

#include <unistd.h>

#include <iostream>
#include <utility>

#include "io/attended.h"

namespace quorvex {
namespace {

constexpr auto patience = std::chrono::milliseconds(500);
constexpr auto interval = std::chrono::milliseconds(100);
constexpr std::size_t bar_width = 40;

}  // namespace

Progress_Bar::Progress_Bar(std::string label)
    : label_(std::move(label)),
      is_wanted_(Is_Terminal(STDERR_FILENO)),
      next_(Clock::now() + patience) {}

Progress_Bar::~Progress_Bar() {
  if (is_drawn_) std::cerr << "\r\033[K" << std::flush;
}

void Progress_Bar::show(std::size_t done, std::size_t all) {
  if (!is_wanted_ || all == 0) return;
  const auto now = Clock::now();
  if (now < next_) return;
  next_ = now + interval;
  draw(done, all);
}

void Progress_Bar::draw(std::size_t done, std::size_t all) {
  const std::size_t filled = bar_width * done / all;
  std::cerr << '\r' << label_ << " [" << std::string(filled, '#')
            << std::string(bar_width - filled, '.') << "] " << 100 * done / all << " %"
            << std::flush;
  is_drawn_ = true;
}

}  // namespace quorvex
