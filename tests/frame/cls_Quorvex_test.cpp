// What the public methods do beside the values that they give.
#include "frame/class/cls_Quorvex.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "frame/catalogue.h"
#include "support/default_limit.h"
#include "support/failures.h"
#include "support/locales.h"
#include "support/surroundings.h"

namespace quorvex {
namespace {

TEST(ClsQuorvex, OnlyIsGreaterReplacesTheCallersValuesByTheirText) {
  cls_Quorvex engine;
  HostValue number1 = 1e15;
  HostValue number2 = HostValue::Empty();
  EXPECT_EQ(engine.qvxISLESS(number1, number2).text(), "#NUM!");
  EXPECT_EQ(number1.kind(), HostValue::Kind::number);
  EXPECT_EQ(engine.qvxISGREATER(number1, number2).text(), "#NUM!");
  ASSERT_TRUE(number1.is_text() && number2.is_text());
  EXPECT_EQ(number1.text(), "1E+15");
  EXPECT_EQ(number2.text(), "");
}

TEST(ClsQuorvex, TheDefaultLimitHoldsForCallsThatGiveNone) {
  cls_Quorvex engine;
  EXPECT_EQ(engine.qvxDEFAULTMAXSD().number(), 100);
  const Default_Limit three(3);
  EXPECT_EQ(engine.qvxDEFAULTMAXSD().number(), 3);
  EXPECT_EQ(engine.qvxADD("123456789", 0), "123460000");
  EXPECT_EQ(engine.qvxFORMAT("123456789"), "123500000");
  EXPECT_EQ(engine.PublicRestrictionatorCaller().maxSD, 3);
  EXPECT_EQ(engine.qvxADD("123456789", 0, Missing, Missing, Missing, Missing, 5), "123456800");
  EXPECT_EQ(engine.qvxISEQUAL("123456789", "123456788").text(), "False");
}

TEST(ClsQuorvex, FollowsTheLocaleAtEachCall) {
  cls_Quorvex engine;
  const auto sum = [&] { return engine.qvxADD(1234567.5, "0", 2, true, true); };
  const Locale_Guard before(Narrow_Space_Locale());
  EXPECT_EQ(sum(), "1\u202F234\u202F567,5 \u20AC");
  const Locale_Guard after(Point_Locale());
  EXPECT_EQ(sum(), "$1,234,567.5");
}

TEST(ClsQuorvex, ABreakLeavesTheCallAndTheNextOneIsSound) {
  cls_Quorvex engine;
  const std::string nines(3 * digits_between_yields, '9');
  {
    const Interruption_Guard impatient;
    EXPECT_EQ(Failure_Of([&] { engine.qvxADD(nines, nines); }), Failure_Number::interrupted);
    EXPECT_EQ(Failure_Of([&] { engine.qvxSUBTRACT("0." + nines, "0." + nines + "1"); }),
              Failure_Number::interrupted);
    EXPECT_EQ(Failure_Of([&] { engine.qvxISEQUAL(nines, nines); }), Failure_Number::interrupted);
  }
  EXPECT_EQ(engine.qvxADD(nines, 1), "1" + std::string(nines.size(), '0'));
}

TEST(ClsQuorvex, MemoryThatCantBeHadIsAFailureWhereNoTokenStandsForIt) {
  const Memory_Guard poor(0);
  cls_Quorvex engine;
  HostValue greater = "1E+2000000000";
  HostValue one = 1;
  EXPECT_EQ(engine.qvxADD("1E+2000000000", 1), "#VALUE!");
  EXPECT_EQ(engine.qvxPOWER("2", "1E+9"), "#VALUE!");
  EXPECT_EQ(engine.qvxEXP(1e9), "#VALUE!");
  EXPECT_EQ(engine.qvxSIGN("0E+2000000000").number(), 0);  // which needs no zeros written
  const std::function<void()> calls[] = {
      [&] { engine.qvxFORMAT("1E-2000000000"); },
      [&] { engine.qvxFORMAT("5", Missing, Missing, Missing, Missing, Missing, 2000000000); },
      [&] { engine.qvxISGREATER(greater, one); },
      [&] { engine.qvxABS("1E+2000000000"); },
      [&] {
        engine.qvxGCD({"6E+2000000000", "4E+2000000000"});
      },
      [&] {
        engine.qvxLCM({"6E+2000000000", "4"});
      },
      [&] {
        engine.qvxSUM2({"1E+2000000000", "4"});
      },
  };
  for (const auto& call : calls) EXPECT_EQ(Failure_Of(call), Failure_Number::out_of_memory);
}

}  // namespace
}  // namespace quorvex
