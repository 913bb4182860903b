// Every allocation that a call makes may fail: the call then gives the right answer or fails with
// out_of_memory, nothing is lost, and the next call is right.
//   quorvex_allocation_tests          some allocations of some calls of each method
//   quorvex_allocation_tests --all    every allocation of every call, up to some hundred a call
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "allocation/calls.h"
#include "allocation/failing_memory.h"
#include "batch/value_codec.h"
#include "frame/catalogue.h"
#include "support/locales.h"
#include "support/surroundings.h"

namespace quorvex {
namespace {

bool tries_all = false;

std::string Text_Of(const Call_Result& result) {
  std::string text;
  if (const auto* value = std::get_if<HostValue>(&result)) Append_Json(text, *value);
  if (const auto* record = std::get_if<Record>(&result)) {
    for (const auto& [field, value] : record->fields) {
      text.append(field).append("=");
      Append_Json(text, value);
      text += ' ';
    }
  }
  return text;
}

struct Outcome {
  std::string text;  // of the result, or of the failure
  std::size_t allocations = 0;
  bool is_lack_of_memory = false;
  bool is_fault = false;  // something was thrown that must not be
};

// Arguments are copied and the result is written while there is memory.
Outcome Outcome_Of(cls_Quorvex& engine, const Tried_Call& call, Shortage shortage) {
  std::vector<HostValue> arguments = call.arguments;
  Outcome outcome;
  Call_Result result;
  std::optional<Failure_Number> failure;
  const char* fault = nullptr;
  {
    const Failing_Memory memory(shortage);
    try {
      result = Invoke_In_Place(engine, *call.method, arguments);
    } catch (const Run_Time_Failure& thrown) {
      failure = thrown.number();
    } catch (const std::bad_alloc&) {
      fault = "bad_alloc";
    } catch (const std::exception&) {
      fault = "another exception";
    }
    outcome.allocations = memory.count();
  }
  outcome.is_lack_of_memory = failure == Failure_Number::out_of_memory;
  if (fault != nullptr) {
    outcome.text = fault;
    outcome.is_fault = true;
  } else if (failure) {
    outcome.text = "failure " + std::to_string(static_cast<int>(*failure));
  } else {
    outcome.text = Text_Of(result);
  }
  return outcome;
}

// Of these a failure of any kind ends in a token, as their users rely on.
bool Has_Token_For_Failures(const Method& method) {
  constexpr std::array<std::string_view, 9> methods{"qvxADD",    "qvxSUBTRACT", "qvxMULTIPLY",
                                                    "qvxDIVIDE", "qvxROOT",     "qvxPOWER",
                                                    "qvxLOG",    "qvxLN",       "qvxEXP"};
  return std::ranges::find(methods, method.name) != methods.end();
}

bool Is_Sound(const Tried_Call& call, const Outcome& outcome, const std::string& right) {
  return outcome.text == right || outcome.is_lack_of_memory ||
         (Has_Token_For_Failures(*call.method) && outcome.text == "\"#VALUE!\"");
}

struct Counts {
  std::size_t calls = 0;
  std::size_t injections = 0;
  std::size_t noticed = 0;  // which changed what the call gave
  std::size_t wrong = 0;
};

// The numbers of the allocations that fail, of so many.
std::vector<std::size_t> Chosen(std::size_t count, std::size_t most) {
  std::vector<std::size_t> chosen;
  const std::size_t first = std::min(count, most / 2);
  for (std::size_t n = 1; n <= first; ++n) chosen.push_back(n);
  const std::size_t rest = std::min(count - first, most - first);
  for (std::size_t i = 1; i <= rest; ++i) chosen.push_back(first + (count - first) * i / rest);
  return chosen;
}

// What is wrong with a call under a shortage, and with the next one; nothing if all is well.
std::string Fault_Of(cls_Quorvex& engine, const Tried_Call& call, Shortage shortage,
                     const std::string& right, Counts& counts) {
  const Outcome outcome = Outcome_Of(engine, call, shortage);
  if (outcome.text != right) ++counts.noticed;
  if (!Is_Sound(call, outcome, right)) return "gave " + outcome.text.substr(0, 200);
  const Outcome next = Outcome_Of(engine, call, {});
  return next.text == right ? "" : "the next call gave " + next.text.substr(0, 200);
}

void Try(cls_Quorvex& engine, const Tried_Call& call, std::size_t most, Counts& counts) {
  constexpr std::size_t most_shown = 100;
  {
    // What takes long is tried elsewhere with fewer digits.
    const Interruption_Guard patience(20000);
    if (Outcome_Of(engine, call, {}).text == "failure 18") return;
  }
  const Outcome right = Outcome_Of(engine, call, {});
  ASSERT_FALSE(right.is_fault) << call.name;
  ++counts.calls;
  for (const bool lasts : {false, true}) {
    for (const std::size_t n : Chosen(right.allocations, most)) {
      ++counts.injections;
      const long before = Blocks_In_Use();
      std::string fault = Fault_Of(engine, call, {n, lasts}, right.text, counts);
      if (fault.empty() && Blocks_In_Use() != before) fault = "left blocks behind";
      if (fault.empty() || ++counts.wrong > most_shown) continue;
      ADD_FAILURE() << call.method->name << ", " << call.name << ", allocation " << n
                    << (lasts ? " and all after it" : "") << " of " << right.allocations << ": "
                    << fault << "\n  instead of " << right.text.substr(0, 200);
    }
  }
}

TEST(LackOfMemory, IsAFailureAndNeverAnAnswer) {
  const Locale_Guard locale(Point_Locale());
  cls_Quorvex engine;
  Counts counts;
  std::map<std::string_view, std::size_t> tried;
  const std::size_t lines = tries_all ? 10000 : 4;
  const std::size_t long_lines = tries_all ? 3 : 1;
  const std::size_t most = tries_all ? 300 : 8;
  for (const Tried_Call& call : Golden_Calls()) {
    const std::size_t number = tried[call.method->name]++;
    if (number < lines) Try(engine, call, most, counts);
    if (number >= long_lines) continue;
    for (const Tried_Call& longer : Lengthened(call)) Try(engine, longer, most, counts);
  }
  for (const Tried_Call& call : Calls_With_Long_Results()) {
    ++tried[call.method->name];
    Try(engine, call, most, counts);
  }
  std::printf("%zu calls, %zu allocations that failed: %zu answers were wrong\n", counts.calls,
              counts.injections, counts.wrong);
  EXPECT_EQ(counts.wrong, 0U);
  EXPECT_GE(counts.noticed, counts.injections / 2);
  for (const Method& method : Catalogue()) EXPECT_GT(tried[method.name], 0U) << method.name;
}

}  // namespace
}  // namespace quorvex

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  for (int at = 1; at < argc; ++at) {
    if (std::string_view(argv[at]) == "--all") quorvex::tries_all = true;
  }
  return RUN_ALL_TESTS();
}
