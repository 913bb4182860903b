// What the list functions promise beyond single results.
#include <gtest/gtest.h>

#include "frame/catalogue.h"
#include "frame/class/cls_Quorvex.h"
#include "host/conversions.h"
#include "lists/random_lists.h"
#include "support/cells.h"
#include "support/failures.h"
#include "support/locales.h"
#include "support/surroundings.h"

namespace quorvex {
namespace {

TEST(SumOfCells, CountsRowsAndColumnsFromOne) {
  cls_Quorvex engine;
  const auto sum = [&](int lower_row, int lower_column) {
    Array array = Array_Of(2, {1, 10, 100, 1000});
    array.lower_row = lower_row;
    array.lower_column = lower_column;
    return engine.qvxSUM(array);
  };
  EXPECT_EQ(sum(1, 1), "1111");
  EXPECT_EQ(sum(0, 1), "1100");
  EXPECT_EQ(sum(1, 0), "1010");
  EXPECT_EQ(sum(0, 0), "1000");
  EXPECT_EQ(sum(-1, 1), "0");
  EXPECT_EQ(sum(-5, 7), "0");
  EXPECT_EQ(Failure_Of([&] { sum(2, 1); }), Failure_Number::subscript_out_of_range);
  EXPECT_EQ(Failure_Of([&] { sum(1, 2); }), Failure_Number::subscript_out_of_range);
  EXPECT_EQ(Failure_Of([&] { engine.qvxSUM(Range_Of_Cells(1, {5})); }),
            Failure_Number::type_mismatch);
}

TEST(ListFunctions, TellACurrencySymbolFromAnExponent) {
  const Locale_Guard locale({".", ",", "EUR", Currency_Side::before});
  cls_Quorvex engine;
  EXPECT_EQ(engine.qvxMAX({"EUR05", 1}), "EUR05");
  EXPECT_EQ(engine.qvxMAX({"EUR5E+1", 1}), "50");
  EXPECT_EQ(engine.qvxMIN({"(EUR5)", 1}), "-5");
}

TEST(ListFunctions, CanBeBrokenOff) {
  cls_Quorvex engine;
  const List list = {Array_Of(1, std::vector<HostValue>(1000, HostValue("1.5")))};
  const Interruption_Guard impatient;
  for (const char* name : {"qvxSUM2", "qvxAVERAGE", "qvxCOUNT", "qvxPRODUCT", "qvxMAX", "qvxMIN"}) {
    EXPECT_EQ(Failure_Of([&] { Invoke(engine, *Find_Method(name), {list}); }),
              Failure_Number::interrupted)
        << name;
  }
  EXPECT_EQ(Failure_Of([&] { engine.qvxSUM(list.front()); }), Failure_Number::interrupted);
}

TEST(ListFunctions, TakeAValueThatIsNoListForItsOnlyElement) {
  cls_Quorvex engine;
  const Method& method = *Find_Method("qvxSUM2");
  const auto sum = [&](std::vector<HostValue> arguments) {
    return std::get<HostValue>(Invoke(engine, method, std::move(arguments))).text();
  };
  EXPECT_EQ(sum({}), "0");
  EXPECT_EQ(sum({HostValue(List{1, 2})}), "3");
  EXPECT_EQ(sum({Array_Of(1, {1, 2})}), "3");
  EXPECT_EQ(sum({7}), "7");
}

}  // namespace
}  // namespace quorvex
