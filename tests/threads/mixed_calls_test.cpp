// Calls of all kinds in several threads, under the thread sanitizer: each gives what it gives
// alone.
//   quorvex_thread_tests [CALLS]   so many in each thread
#include <gtest/gtest.h>

#include <array>
#include <barrier>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <thread>
#include <variant>
#include <vector>

#include "allocation/calls.h"
#include "arith/digits/multiply_digits.h"
#include "batch/value_codec.h"
#include "frame/catalogue.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "shell/unload.h"
#include "support/locales.h"
#include "support/surroundings.h"
#include "text/options.h"

namespace quorvex {
namespace {

std::size_t calls_of_each = 3000;

std::string Answer(cls_Quorvex& engine, const Tried_Call& call) {
  std::string text;
  try {
    const Call_Result result = Invoke(engine, *call.method, call.arguments);
    if (const auto* value = std::get_if<HostValue>(&result)) Append_Json(text, *value);
    if (const auto* record = std::get_if<Record>(&result)) {
      for (const auto& field : record->fields) Append_Json(text, field.second);
    }
  } catch (const Run_Time_Failure& failure) {
    text = "failure " + std::to_string(static_cast<int>(failure.number()));
  }
  return text;
}

struct Known_Call {
  Tried_Call call;
  std::string answer;
};

// With what they give alone; those that take long, or belong to the thread of a host, are left out.
std::vector<Known_Call> Known_Calls() {
  std::vector<Known_Call> known;
  cls_Quorvex engine;
  for (Tried_Call& call : Golden_Calls()) {
    if (call.method->name == "qvxABOUT") continue;
    const Interruption_Guard patience(1500);
    std::string answer = Answer(engine, call);
    if (answer != "failure 18") known.push_back({std::move(call), std::move(answer)});
  }
  return known;
}

TEST(Threads, GiveTheAnswersOfOneToMixedCalls) {
  constexpr std::size_t threads = 8;
  constexpr std::size_t calls_of_engine = 500;
  const Locale_Guard locale(Point_Locale());
  ASSERT_TRUE(Can_Multiply()) << "most calls would fail, in each thread alike";
  const std::vector<Known_Call> known = Known_Calls();
  ASSERT_GT(known.size(), 2000U);
  // So that the threads make the first instances, and look for the library of products, themselves.
  Shell_Shut_Down();
  Current_Platform().settings = Settings_In_Memory();
  Current_Platform().libraries = Default_Platform().libraries;
  std::array<std::string, threads> first_wrong;
  std::barrier start(threads);
  const auto work = [&](std::size_t thread) {
    std::minstd_rand random(static_cast<unsigned>(thread + 1));
    start.arrive_and_wait();
    for (std::size_t done = 0; done < calls_of_each;) {
      cls_Quorvex engine;
      engine.SetExcelApp(nullptr);
      Set_Default_MaxSD(100);  // as it is
      for (std::size_t i = 0; i < calls_of_engine && done < calls_of_each; ++i, ++done) {
        const Known_Call& each = known[random() % known.size()];
        const std::string answer = Answer(engine, each.call);
        if (answer != each.answer && first_wrong[thread].empty())
          first_wrong[thread] = each.call.name + ": " + answer.substr(0, 200);
      }
    }
  };
  std::vector<std::thread> running;
  for (std::size_t thread = 0; thread < threads; ++thread) running.emplace_back(work, thread);
  for (std::thread& thread : running) thread.join();
  for (const std::string& wrong : first_wrong) EXPECT_EQ(wrong, "");
  std::printf("%zu threads, %zu calls each, of %zu different ones\n", threads, calls_of_each,
              known.size());
}

}  // namespace
}  // namespace quorvex

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (argc > 1) quorvex::calls_of_each = std::strtoul(argv[1], nullptr, 10);
  return RUN_ALL_TESTS();
}
