// Calls on the caller's own values: what comes back in them, and what stays as it was.
#include <gtest/gtest.h>

#include <optional>
#include <stdexcept>
#include <string>
#include <variant>
#include <vector>

#include "frame/catalogue.h"
#include "host/run_time_failure.h"
#include "support/failures.h"

namespace quorvex {
namespace {

// A value with its kind, so that the number 1 and the text 1 differ.
std::string Seen(const HostValue& value) {
  std::string kind = std::to_string(static_cast<int>(value.kind())) + ":";
  switch (value.kind()) {
    case HostValue::Kind::number:
      return kind + std::to_string(value.number());
    case HostValue::Kind::text:
      return kind + value.text();
    case HostValue::Kind::boolean:
      return kind + (value.boolean() ? "true" : "false");
    case HostValue::Kind::array: {
      std::string all = kind;
      for (const HostValue& each : value.array().values) all += " " + Seen(each);
      return all;
    }
    default:
      return kind;
  }
}

std::string Result_Seen(const Call_Result& result) {
  if (const auto* value = std::get_if<HostValue>(&result)) return Seen(*value);
  std::string all = "nothing";
  if (const auto* record = std::get_if<Record>(&result))
    for (const auto& [name, value] : record->fields) all += " " + Seen(value);
  return all;
}

std::vector<std::string> All_Seen(const std::vector<HostValue>& values) {
  std::vector<std::string> all;
  all.reserve(values.size());
  for (const HostValue& value : values) all.push_back(Seen(value));
  return all;
}

struct Written_Back {
  const char* method;
  std::vector<HostValue> before;
  std::vector<HostValue> after;
  std::optional<Failure_Number> failure = {};
};

TEST(InvokeInPlace, WritesBackWhatMethodsChange) {
  const std::vector<Written_Back> cases = {
      // Operands that are cleaned up, whatever kind they were.
      {"Recip_Divide", {"(1,234.50)", 8, "3"}, {"-1234.5", "8", "3"}},
      {"Recip_Divide", {" 7 ", "x", 8}, {" 7 ", "x", 8}},
      {"Recip_Divide",
       {"6", "3", HostValue()},
       {"6", "3", HostValue()},
       Failure_Number::type_mismatch},
      {"qvxISGREATER", {1e15, HostValue::Empty()}, {"1E+15", ""}},
      {"qvxISGREATER", {true, "5"}, {"True", "5"}},
  };
  cls_Quorvex engine;
  for (const Written_Back& each : cases) {
    std::vector<HostValue> values = each.before;
    EXPECT_EQ(Failure_Of([&] { Invoke_In_Place(engine, *Find_Method(each.method), values); }),
              each.failure);
    EXPECT_EQ(All_Seen(values), All_Seen(each.after)) << each.method;
  }
}

// Of another kind than the method takes wherever a kind can be converted, so that a conversion in
// the caller's value would show.
HostValue Of_Another_Kind(const Parameter& parameter) {
  switch (parameter.kind) {
    case Parameter_Kind::text:
      return 12.5;
    case Parameter_Kind::number:
    case Parameter_Kind::integer:
      return "3";
    case Parameter_Kind::boolean:
      return "true";
    case Parameter_Kind::object:
      return HostValue::Empty();
    default:
      return parameter.name == "rngArray" || parameter.name == "numlist"
                 ? HostValue(Array{.rows = 2, .columns = 1, .values = {7, "-12.5"}})
                 : HostValue("7");
  }
}

TEST(InvokeInPlace, ChangesNoOtherValueAndGivesWhatACallGives) {
  cls_Quorvex engine;
  for (const Method& method : Catalogue()) {
    if (method.parameters.empty()) continue;
    std::vector<HostValue> values;
    for (const Parameter& parameter : method.parameters)
      values.push_back(Of_Another_Kind(parameter));
    const std::vector<HostValue> before = values;
    const std::string result = Result_Seen(Invoke_In_Place(engine, method, values));
    EXPECT_EQ(result, Result_Seen(Invoke(engine, method, before))) << method.name;
    for (std::size_t place = 0; place < values.size(); ++place) {
      if (method.parameters[place].passing == Passing::in_and_out) continue;
      EXPECT_EQ(Seen(values[place]), Seen(before[place]))
          << method.name << " " << method.parameters[place].name;
    }
  }
}

TEST(InvokeInPlace, ReadsTextsWhereTheyStand) {
  cls_Quorvex engine;
  const std::string separator(1000, '/');
  std::vector<HostValue> values = {"4", "6", false, false, false, false, false, separator};
  const char* const there = values.back().text().data();
  const auto result = Invoke_In_Place(engine, *Find_Method("qvxREDUCEFRACTION"), values);
  EXPECT_EQ(std::get<HostValue>(result).array().values[0].text(), "2" + separator + "3");
  EXPECT_EQ(values.back().text(), separator);
  EXPECT_EQ(values.back().text().data(), there);
}

TEST(InvokeInPlace, WantsAValueForEachParameter) {
  cls_Quorvex engine;
  const Method& method = *Find_Method("qvxPi");
  std::vector<HostValue> values;
  EXPECT_THROW(Invoke_In_Place(engine, method, values), std::invalid_argument);
  values.resize(2);
  EXPECT_THROW(Invoke_In_Place(engine, method, values), std::invalid_argument);
}

}  // namespace
}  // namespace quorvex
