// Short calls that ask for much: exponents, limits, degrees and counts of any size. Each ends
// within a bound of the work done, which is counted by its yields, and within a bound of memory.
#include <gtest/gtest.h>

#include <cstddef>
#include <string>

#include "allocation/calls.h"
#include "allocation/failing_memory.h"
#include "frame/catalogue.h"
#include "support/failures.h"
#include "support/locales.h"
#include "support/surroundings.h"

namespace quorvex {
namespace {

TEST(ShortCalls, EndWithinABoundOfWorkAndMemory) {
  constexpr std::size_t most_yields = 500'000;
  constexpr long most_bytes = 1'000'000'000;
  constexpr std::size_t granted = 200'000'000;  // what a text of 50 million digits takes
  const Locale_Guard locale(Point_Locale());
  const Memory_Guard memory(granted);
  cls_Quorvex engine;
  const auto calls = Calls_Of(QUORVEX_SOURCE "/tests/allocation/short_calls.jsonl");
  EXPECT_GE(calls.size(), 300U);
  for (const Tried_Call& call : calls) {
    Forget_Most_Bytes();
    const Interruption_Guard impatient(most_yields);
    const auto failure =
        Failure_Of([&] { Invoke(engine, *call.method, std::vector<HostValue>(call.arguments)); });
    EXPECT_NE(failure, Failure_Number::interrupted) << call.method->name << ", " << call.name;
    EXPECT_LT(Most_Bytes_In_Use(), most_bytes) << call.method->name << ", " << call.name;
  }
}

}  // namespace
}  // namespace quorvex
