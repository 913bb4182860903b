// The first engines of a process, made in many threads at the same moment, under the thread
// sanitizer.
#include <gtest/gtest.h>

#include <atomic>
#include <barrier>
#include <cstdlib>
#include <thread>
#include <vector>

#include "frame/class/cls_Quorvex.h"

namespace quorvex {
namespace {

constexpr int threads = 16;

// How many threads were given a wrong sum.
int Wrong_Of_First_Engines() {
  std::atomic<int> wrong = 0;
  std::barrier start(threads);
  std::vector<std::thread> running;
  running.reserve(threads);
  for (int thread = 0; thread < threads; ++thread) {
    running.emplace_back([&] {
      start.arrive_and_wait();
      cls_Quorvex engine;
      if (engine.qvxADD("0.1", 2) != "2.1") ++wrong;
    });
  }
  for (std::thread& thread : running) thread.join();
  return wrong;
}

// Each time in a process of its own, in which no engine has been made before.
TEST(FirstEnginesDeathTest, AreMadeByManyThreadsAtOnce) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  for (int round = 0; round < 10; ++round)
    EXPECT_EXIT(std::exit(Wrong_Of_First_Engines()), testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace quorvex
