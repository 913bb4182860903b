// The user's locale, asked for anew by each call and but once in it.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "frame/catalogue.h"
#include "host/run_time_failure.h"
#include "support/locales.h"
#include "support/surroundings.h"

namespace quorvex {
namespace {

/// Counts how often it is asked, and changes the locale each time: point and comma take turns.
class Changing_Source final : public Locale_Source {
 public:
  Separators separators() override {
    return separators_asked++ % 2 == 0 ? Separators(".", ",") : Separators(",", ".");
  }
  Currency currency() override {
    return currency_asked++ % 2 == 0 ? Currency("$", Currency_Side::before)
                                     : Currency(" \u20AC", Currency_Side::after);
  }

  int separators_asked = 0;
  int currency_asked = 0;
};

class Locale_Of_Calls : public testing::Test {
 protected:
  Locale_Of_Calls() { Current_Platform().locale = source_; }
  ~Locale_Of_Calls() override { Current_Platform().locale = before_; }

  const std::shared_ptr<Changing_Source> source_ = std::make_shared<Changing_Source>();
  cls_Quorvex engine_;

 private:
  std::shared_ptr<Locale_Source> before_ = Current_Platform().locale;
};

/// Arguments that the method can calculate with, each of a kind that has to be converted for it.
std::vector<HostValue> Arguments_To_Convert(const Method& method) {
  std::vector<HostValue> arguments;
  for (const Parameter& parameter : method.parameters) {
    if (parameter.optional) {
      arguments.push_back(Missing);
    } else if (parameter.kind == Parameter_Kind::integer) {
      arguments.emplace_back("7.0");
    } else if (parameter.kind == Parameter_Kind::boolean) {
      arguments.emplace_back("1.5");
    } else if (parameter.kind == Parameter_Kind::list) {
      arguments.emplace_back(List{"12", 3.5, "$5"});
    } else {
      arguments.emplace_back(3.5);
    }
  }
  return arguments;
}

TEST_F(Locale_Of_Calls, AskOnceAtMost) {
  int asking = 0;
  for (const Method& method : Catalogue()) {
    if (method.name == "qvxABOUT" || method.name == "SetExcelApp") continue;
    source_->separators_asked = 0;
    source_->currency_asked = 0;
    // A sum of cells takes none of these: what it refuses counts as well.
    With_Handler([&] { Invoke(engine_, method, Arguments_To_Convert(method)); },
                 [](const Run_Time_Failure&) {});
    EXPECT_LE(source_->separators_asked, 1) << method.name;
    EXPECT_LE(source_->currency_asked, 1) << method.name;
    asking += source_->separators_asked;
  }
  EXPECT_GT(asking, 60) << "most functions read or write a separator";
}

TEST_F(Locale_Of_Calls, AskOnlyForWhatTheyUse) {
  engine_.qvxADD("1.5", "2.25");
  EXPECT_EQ(source_->separators_asked, 1);
  EXPECT_EQ(source_->currency_asked, 0);
}

// What the locale makes of an argument, the method reads by the same one.
TEST_F(Locale_Of_Calls, ConvertArgumentsByTheirOwn) {
  const Method& format = *Find_Method("qvxFORMAT");
  for (const char* const expected : {"1250.5", "1250,5", "1250.5"}) {
    EXPECT_EQ(std::get<HostValue>(Invoke(engine_, format, {1250.5})).text(), expected);
  }
}

TEST_F(Locale_Of_Calls, AskAnewEachTime) {
  for (const char* const expected : {"$1,250.5", "1.250,5 \u20AC", "$1,250.5"})
    EXPECT_EQ(engine_.qvxADD(1000, 250.5, Missing, true, true), expected);
}

/// A host that has another formula calculated while it is yielded to, in another locale.
class Calculating_Yielder final : public Yielder {
 public:
  void yield() override {
    if (!inner.empty()) return;
    inner = "under way";
    Current_Platform().locale = Fixed_Locale(Comma_Locale());
    cls_Quorvex engine;
    inner = engine.qvxADD("1,5", "1.000,25", Missing, true, true);
  }

  std::string inner;
};

TEST(LocaleOfCall, ACallWithinACallHasItsOwn) {
  const Locale_Guard locale(Point_Locale());
  const auto yielder = std::make_shared<Calculating_Yielder>();
  cls_Quorvex engine;
  const NumberText alone = engine.qvxFACT("200", Missing, true);
  const auto before = std::exchange(Current_Platform().yielder, yielder);
  const NumberText around = engine.qvxFACT("200", Missing, true);
  Current_Platform().yielder = before;
  EXPECT_EQ(yielder->inner, "1.001,75 \u20AC");
  EXPECT_EQ(around, alone);
  EXPECT_NE(around.find(','), NumberText::npos);
  EXPECT_EQ(engine.qvxADD("1,5", 1), "2,5") << "and the next one the new locale";
}

}  // namespace
}  // namespace quorvex
