// What ends a call that takes too long.
#include "host/deadline.h"

#include <gtest/gtest.h>

#include <thread>

#include "support/failures.h"

namespace quorvex {
namespace {

TEST(Deadline, EachCallHasTheWholeTime) {
  Deadline deadline(Seconds(0.05));
  for (int call = 0; call < 3; ++call) {
    deadline.begin_call();
    EXPECT_NO_THROW(deadline.yield());
    std::this_thread::sleep_for(std::chrono::milliseconds(60));
    EXPECT_EQ(Failure_Of([&] { deadline.yield(); }), Failure_Number::interrupted);
  }
}

TEST(Deadline, WithoutALimitNothingEnds) {
  Deadline deadline(std::nullopt);
  std::this_thread::sleep_for(std::chrono::milliseconds(5));
  EXPECT_NO_THROW(deadline.yield());
}

}  // namespace
}  // namespace quorvex
