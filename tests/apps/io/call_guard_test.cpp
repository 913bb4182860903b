// What ends a calculation.
#include "io/call_guard.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include "host/run_time_failure.h"

namespace quorvex {
namespace {

bool Is_Ended(Call_Guard& guard) {
  try {
    guard.yield();
  } catch (const Run_Time_Failure& failure) {
    return failure.number() == Failure_Number::interrupted;
  }
  return false;
}

TEST(CallGuard, AnInterruptionEndsOneCallOnly) {
  Call_Guard guard(std::nullopt);
  guard.begin_call();
  EXPECT_FALSE(Is_Ended(guard));
  Call_Guard::interrupt();
  EXPECT_TRUE(Is_Ended(guard));
  EXPECT_TRUE(Is_Ended(guard)) << "until the call is over";
  guard.begin_call();
  EXPECT_FALSE(Is_Ended(guard));
}

TEST(CallGuard, ACallThatTakesTooLongEndsAsWell) {
  Call_Guard guard(Seconds(0.02));
  guard.begin_call();
  EXPECT_FALSE(Is_Ended(guard));
  ::usleep(30000);
  EXPECT_TRUE(Is_Ended(guard));
  guard.begin_call();
  EXPECT_FALSE(Is_Ended(guard));
}

}  // namespace
}  // namespace quorvex
