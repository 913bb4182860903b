// Timers that the host drives.
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "host/timer_queue.h"

namespace quorvex {
namespace {

using std::chrono::milliseconds;

class Timers : public testing::Test {
 protected:
  std::unique_ptr<Timer> make(char letter) {
    return service_->make([this, letter] { log_ += letter; });
  }
  /// What runs once so much time has passed.
  std::string after(milliseconds time) {
    now_ += time;
    log_.clear();
    service_->run_due();
    return log_;
  }

  std::chrono::steady_clock::time_point now_;
  std::shared_ptr<Timer_Service> service_ = Timer_Queue([this] { return now_; });
  std::string log_;
};

TEST_F(Timers, RunOnceWhenDueTheEarliestFirst) {
  const auto a = make('a');
  const auto b = make('b');
  const auto never = make('x');
  a->arm(milliseconds(500));
  b->arm(milliseconds(400));
  EXPECT_EQ(after(milliseconds(399)), "");
  EXPECT_EQ(after(milliseconds(1)), "b");
  EXPECT_EQ(after(milliseconds(1)), "");
  a->arm(milliseconds(1000));  // moves it
  EXPECT_EQ(after(milliseconds(999)), "");
  b->arm(milliseconds(-5));
  EXPECT_EQ(after(milliseconds(1)), "ba");
  a->arm(milliseconds(0));
  a->cancel();
  b->arm(milliseconds::max());
  EXPECT_EQ(after(milliseconds(1000)), "");
}

TEST_F(Timers, AnArmedTimerThatIsDestroyedNeverRuns) {
  make('a')->arm(milliseconds(0));
  auto orphan = make('b');
  orphan->arm(milliseconds(0));
  EXPECT_EQ(after(milliseconds(1)), "b");
  service_.reset();
  orphan->arm(milliseconds(0));
}

TEST_F(Timers, ACallMayArmItsTimerAnew) {
  std::unique_ptr<Timer> timer;
  timer = service_->make([&] {
    log_ += 'a';
    timer->arm(milliseconds(0));
  });
  timer->arm(milliseconds(0));
  EXPECT_EQ(after(milliseconds(0)), "a");  // and doesn't keep the host for ever
  EXPECT_EQ(after(milliseconds(0)), "a");
}

TEST_F(Timers, ACallMayDestroyOrCancelAnyTimer) {
  // The captured text is read after the destruction: the sanitizer sees a call that was freed.
  const std::string own_text(100, 'a');
  std::unique_ptr<Timer> first;
  auto second = make('b');
  auto third = make('c');
  first = service_->make([&, own_text] {
    first.reset();
    second.reset();
    third->cancel();
    log_ += own_text.substr(99);
  });
  first->arm(milliseconds(0));
  second->arm(milliseconds(1));
  third->arm(milliseconds(1));
  EXPECT_EQ(after(milliseconds(2)), "a");
  EXPECT_EQ(after(milliseconds(2)), "");
}

TEST_F(Timers, AFailedCallLeavesTheOthersForTheNextRound) {
  const auto bad = service_->make([] { throw std::runtime_error("bad"); });
  const auto good = make('g');
  bad->arm(milliseconds(0));
  good->arm(milliseconds(1));
  now_ += milliseconds(1);
  EXPECT_THROW(service_->run_due(), std::runtime_error);
  EXPECT_EQ(after(milliseconds(0)), "g");
}

TEST_F(Timers, ACallMayRunWhatIsDue) {
  const auto inner = make('i');
  const auto outer = service_->make([&] {
    service_->run_due();
    log_ += 'o';
  });
  outer->arm(milliseconds(0));
  inner->arm(milliseconds(1));
  EXPECT_EQ(after(milliseconds(2)), "io");
}

}  // namespace
}  // namespace quorvex
