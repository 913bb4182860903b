// What the library promises of threads: calls in several at once give what they give alone.
#include <gtest/gtest.h>

#include <array>
#include <barrier>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "frame/catalogue.h"
#include "host/conversions.h"
#include "support/locales.h"
#include "text/options.h"

namespace quorvex {
namespace {

struct Call {
  const char* method;
  std::vector<HostValue> arguments;
};

// The arguments of a list function. In braces a list would be taken for all the arguments itself,
// by some compilers.
std::vector<HostValue> As_One_List(List list) {
  std::vector<HostValue> arguments;
  arguments.emplace_back(std::move(list));
  return arguments;
}

/// Products of every size that has a way of its own, series, roots, lists, texts, failures.
std::vector<Call> Calls() {
  const std::string digits = "31415926535897932384626433832795";
  std::string longer;
  while (longer.size() < 40000) longer += digits;
  const auto first = [&](std::size_t count) { return longer.substr(0, count); };
  return {
      {"qvxADD", {"1234567890.5", "-0.25", Missing, true, true}},
      {"qvxMULTIPLY", {first(20), first(30)}},
      {"qvxMULTIPLY", {first(900), first(1000)}},
      {"qvxMULTIPLY", {first(40000), first(39000)}},
      {"qvxDIVIDE", {first(400), "7.3", Missing, Missing, Missing, Missing, 300}},
      {"qvxPOWER", {"1.5", 77}},
      {"qvxROOT", {"2", 3, Missing, Missing, Missing, Missing, 60}},
      {"qvxSIN", {"1.25", 80}},
      {"qvxATAN", {"0.5", 50}},
      {"qvxLN", {"17.5", Missing, 60}},
      {"qvxEXP", {"-3.5", Missing, 60}},
      {"qvxPi", {2000}},
      {"qvxFACT", {"300"}},
      {"qvxPOISSON", {"20", "21.5", true}},
      {"qvxSUM2", As_One_List({"1.5", "2.25", "format:thousands", "1e20"})},
      {"qvxMEDIAN", As_One_List({"3", "1", "2.5", "$7"})},
      {"qvxGCD", As_One_List({first(60), first(64)})},
      {"qvxEXTRACTNUM", As_One_List({"a loss of $(1,234.56) in May", "format:negative"})},
      {"qvxISGREATER", {"0.10000000000000000001", "0.1"}},
      {"qvxDIVIDE", {1, 0}},
      {"qvxEVEN2", {"\u00E9"}},
  };
}

std::vector<std::string> Answers(cls_Quorvex& engine, const std::vector<Call>& calls,
                                 std::size_t first) {
  std::vector<std::string> answers(calls.size());
  for (std::size_t i = 0; i < calls.size(); ++i) {
    const std::size_t place = (first + i) % calls.size();
    const Call& call = calls[place];
    const auto result = Invoke(engine, *Find_Method(call.method), call.arguments);
    answers[place] = To_Text(std::get<HostValue>(result));
  }
  return answers;
}

TEST(Threads, GiveTheSameAnswersAsOne) {
  constexpr std::size_t threads = 4;
  constexpr int rounds = 3;
  const Locale_Guard locale(Point_Locale());
  const std::vector<Call> calls = Calls();
  // One for each thread, and one that they share.
  std::array<cls_Quorvex, threads> engines;
  cls_Quorvex shared;
  // So that the threads are the first to look for the library of products.
  const auto libraries = std::exchange(Current_Platform().libraries, Default_Platform().libraries);
  std::array<std::vector<std::string>, threads> of_own;
  std::array<std::vector<std::string>, threads> of_shared;
  std::barrier start(threads);
  const auto work = [&](std::size_t thread) {
    start.arrive_and_wait();
    for (int round = 0; round < rounds; ++round) {
      Set_Default_MaxSD(100);  // as it is
      of_own[thread] = Answers(engines[thread], calls, thread * 5);
      of_shared[thread] = Answers(shared, calls, thread * 3);
    }
  };
  std::vector<std::thread> running;
  for (std::size_t thread = 0; thread < threads; ++thread) running.emplace_back(work, thread);
  for (std::thread& thread : running) thread.join();
  Current_Platform().libraries = libraries;

  const std::vector<std::string> alone = Answers(shared, calls, 0);
  EXPECT_EQ(alone[0], "$1,234,567,890.25");
  for (std::size_t thread = 0; thread < threads; ++thread) {
    EXPECT_EQ(of_own[thread], alone);
    EXPECT_EQ(of_shared[thread], alone);
  }
}

thread_local bool has_comma = false;

struct Locale_Of_Thread final : Locale_Source {
  Separators separators() override {
    return has_comma ? Separators(",", ".") : Separators(".", ",");
  }
  Currency currency() override { return {"$", Currency_Side::before}; }
};

// Each thread's locale holds for the calls of that thread alone.
TEST(Threads, EachHasTheLocaleOfItsOwnCall) {
  const auto locale =
      std::exchange(Current_Platform().locale, std::make_shared<Locale_Of_Thread>());
  cls_Quorvex engine;
  std::array<int, 2> wrong{};
  const auto work = [&](bool comma) {
    has_comma = comma;
    const std::string number = comma ? "0,5" : "0.5";
    const std::string root = comma ? "1,4142136" : "1.4142136";
    for (int round = 0; round < 200; ++round) {
      const NumberText result = engine.qvxROOT("2", 2, Missing, Missing, Missing, Missing, 6);
      if (result != root || engine.qvxADD(number, number) != "1") ++wrong[comma ? 1 : 0];
    }
  };
  std::thread other(work, true);
  work(false);
  other.join();
  Current_Platform().locale = locale;
  EXPECT_EQ(wrong, (std::array<int, 2>{}));
}

}  // namespace
}  // namespace quorvex
