// Replays the golden cases through COM, by name and by slot. QUORVEX_VECTORS names the folder of
// the cases for the locale that the process runs under, and QUORVEX_LOCALE that locale, for the
// counts.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <set>

#include "interface_calls.h"
#include "json_values.h"
#include "report.h"
#include "window_driver.h"

namespace quorvex::windows {
namespace {

namespace fs = std::filesystem;

// Why a case can't be put in this way.
struct Cannot_Put {
  std::string reason;
};

std::string Environment(const char* name) {
  const char* const value = std::getenv(name);
  return value != nullptr ? value : "";
}

struct Case {
  std::string place;
  Json line;
};

std::vector<Case> Golden_Cases() {
  std::vector<Case> cases;
  std::set<fs::path> files;
  for (const auto& entry : fs::directory_iterator(Environment("QUORVEX_VECTORS")))
    if (entry.path().extension() == ".jsonl") files.insert(entry.path());
  for (const fs::path& file : files) {
    std::ifstream stream(file, std::ios::binary);
    int number = 0;
    for (std::string line; std::getline(stream, line);)
      cases.push_back(
          {file.filename().string() + ":" + std::to_string(++number), Json::parse(line)});
  }
  return cases;
}

bool Is_Missing(const Json& value) {
  return value.is_object() && value.contains("missing");
}

// What a method without a result gives is a missing value in the cases.
Json Answer_Of(const Described_Method& method, const Outcome& outcome) {
  if (FAILED(outcome.status)) return {{"number", outcome.number}};
  if (method.result == VT_VOID) return {{"value", {{"missing", true}}}};
  const Json value = Json_Of(*outcome.result);
  return {{outcome.result->vt == VT_RECORD ? "record" : "value", value}};
}

class Golden : public testing::Test {
 protected:
  void SetUp() override {
    object_ = Make_Object();
    ASSERT_TRUE(object_);
    for (Described_Method& method : Described_Interface(*object_.get()))
      methods_.push_back(std::move(method));
    ASSERT_FALSE(methods_.empty());
    cases_ = Golden_Cases();
    ASSERT_FALSE(cases_.empty());
  }

  const Described_Method& method(const Json& line) const {
    const std::string name = line.at("call");
    return *std::ranges::find_if(methods_, [&](const Described_Method& described) {
      return ::_stricmp(described.name.c_str(), name.c_str()) == 0;
    });
  }

  template <typename Put>
  void replay(const char* way, Put put) {
    std::map<std::string, int> left_out;
    int held = 0;
    for (const Case& golden : cases_) {
      try {
        const Described_Method& called = method(golden.line);
        const Json answer = Answer_Of(called, put(called, golden.line));
        ++held;
        EXPECT_EQ(golden.line.at("expect"), answer)
            << golden.place << ": " << golden.line.dump().substr(0, 400);
      } catch (const Cannot_Put& why) {
        ++left_out[why.reason];
      }
    }
    Report(Environment("QUORVEX_LOCALE") + ", " + way + ": " + std::to_string(held) + " of " +
           std::to_string(cases_.size()) + " golden lines replayed");
    for (const auto& [reason, count] : left_out)
      Report("  left out " + std::to_string(count) + ": " + reason);
    EXPECT_GT(held, static_cast<int>(cases_.size()) * 9 / 10);
  }

  Com_Pointer<IDispatch> object_;
  std::vector<Described_Method> methods_;
  std::vector<Case> cases_;
};

bool Is_Needed(const Described_Parameter& parameter) {
  return !parameter.optional && parameter.type != VT_SAFEARRAY;
}

// A caller by name can't leave out what is needed: the call comes back as it should, but not with
// what the method itself makes of it.
void Check_Needed(const Described_Method& method, const Json& line, const Outcome& outcome) {
  const Json args = line.value("args", Json::array());
  const Json named = line.value("named", Json::object());
  for (std::size_t i = 0; i < method.parameters.size(); ++i) {
    const Described_Parameter& parameter = method.parameters[i];
    const bool is_given =
        i < args.size() ? !Is_Missing(args[i])
                        : named.contains(parameter.name) && !Is_Missing(named[parameter.name]);
    if (is_given || !Is_Needed(parameter)) continue;
    EXPECT_EQ(outcome.status, DISP_E_PARAMNOTOPTIONAL) << line.dump();
    throw Cannot_Put{"an argument that is needed is left out"};
  }
}

TEST_F(Golden, HoldByName) {
  replay("by name", [&](const Described_Method& method, const Json& line) {
    std::vector<Variant> owned;
    Values positional;
    std::map<std::string, VARIANT> named;
    for (const Json& value : line.value("args", Json::array())) {
      positional.push_back(Variant_Of(value));
      *owned.emplace_back() = positional.back();
    }
    const Json by_name = line.value("named", Json::object());
    for (const auto& [name, value] : by_name.items()) {
      named[name] = Variant_Of(value);
      *owned.emplace_back() = named[name];
    }
    std::optional<Window_Driver> closes;
    if (method.name == "qvxABOUT") closes.emplace(Press_In("About Quorvex 3.1", IDOK));
    Outcome outcome = Call_Late(*object_.get(), method.name, positional, named);
    Check_Needed(method, line, outcome);
    return outcome;
  });
}

// The value in the form of the parameter's type, as a compiler would hand it over.
void Put_Typed(const Described_Parameter& parameter, const Json& value, Typed_Argument& argument) {
  const bool is_left_out = Is_Missing(value);
  if (is_left_out && parameter.type != VT_VARIANT) {
    if (Is_Needed(parameter)) throw Cannot_Put{"an argument that is needed is left out"};
    return;
  }
  *argument.value = Variant_Of(value);
  const VARIANT& made = *argument.value;
  const char* const mismatch = "a value of another type than the parameter's";
  switch (parameter.type) {
    case VT_VARIANT:
      return;
    case VT_BSTR:
      if (made.vt != VT_BSTR) throw Cannot_Put{mismatch};
      argument.text = ::SysAllocStringLen(made.bstrVal, ::SysStringLen(made.bstrVal));
      return;
    case VT_R8:
      if (made.vt != VT_R8) throw Cannot_Put{mismatch};
      if (made.dblVal == 0) throw Cannot_Put{"a count of 0, which means none there"};
      argument.number = made.dblVal;
      return;
    case VT_I4:
      if (made.vt != VT_R8 || made.dblVal != static_cast<LONG>(made.dblVal))
        throw Cannot_Put{mismatch};
      argument.integer = static_cast<LONG>(made.dblVal);
      return;
    case VT_BOOL:
      if (made.vt != VT_BOOL) throw Cannot_Put{mismatch};
      argument.truth = made.boolVal;
      return;
    case VT_SAFEARRAY:
      if (made.vt != (VT_ARRAY | VT_VARIANT) || made.parray->cDims != 1) throw Cannot_Put{mismatch};
      argument.list = made.parray;
      return;
    default:
      if (made.vt != VT_EMPTY) throw Cannot_Put{mismatch};
  }
}

TEST_F(Golden, HoldBySlot) {
  replay("by slot", [&](const Described_Method& method, const Json& line) {
    const Json args = line.value("args", Json::array());
    const Json named = line.value("named", Json::object());
    std::vector<Typed_Argument> arguments(method.parameters.size());
    for (std::size_t i = 0; i < arguments.size(); ++i) {
      const Described_Parameter& parameter = method.parameters[i];
      const Json missing = {{"missing", true}};
      const Json value = i < args.size() ? args[i] : named.value(parameter.name, missing);
      Put_Typed(parameter, value, arguments[i]);
    }
    std::optional<Window_Driver> closes;
    if (method.name == "qvxABOUT") closes.emplace(Press_In("About Quorvex 3.1", IDOK));
    Outcome outcome = Call_Slot(*object_.get(), method, arguments);
    for (Typed_Argument& argument : arguments) ::SysFreeString(argument.text);
    return outcome;
  });
}

}  // namespace
}  // namespace quorvex::windows
