// What the list functions promise beyond single results.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "frame/catalogue.h"
#include "frame/class/cls_Quorvex.h"
#include "host/conversions.h"
#include "lists/random_lists.h"
#include "support/cells.h"
#include "support/failures.h"
#include "support/surroundings.h"

namespace quorvex {
namespace {

// Shuffles with the test's own numbers, which are the same everywhere.
void Shuffle(List& list, Random_Numbers& random) {
  for (std::size_t i = list.size(); i > 1; --i) std::swap(list[i - 1], list[random.below(i)]);
}

TEST(ListFunctions, DoNotDependOnOrderAndGrouping) {
  In_Each_Locale([] {
    cls_Quorvex engine;
    for (unsigned seed = 0; seed < 400; ++seed) {
      Random_Lists lists(seed);
      const std::size_t count = 2 + lists.random().below(60);
      List list;
      for (std::size_t i = 0; i < count; ++i) list.emplace_back(lists.element(120));
      const NumberText sum = engine.qvxSUM2(list);
      const NumberText product = engine.qvxPRODUCT(list);
      const NumberText numbers = engine.qvxCOUNT(list);
      Shuffle(list, lists.random());
      ASSERT_EQ(engine.qvxSUM2(list), sum) << seed;
      ASSERT_EQ(engine.qvxPRODUCT(list), product) << seed;
      ASSERT_EQ(engine.qvxCOUNT(list), numbers) << seed;

      const auto middle = list.begin() + static_cast<std::ptrdiff_t>(lists.random().below(count));
      const List first(list.begin(), middle);
      const List second(middle, list.end());
      ASSERT_EQ(engine.qvxSUM2({engine.qvxSUM2(first), engine.qvxSUM2(second)}), sum) << seed;
      ASSERT_EQ(engine.qvxPRODUCT({engine.qvxPRODUCT(first), engine.qvxPRODUCT(second)}), product)
          << seed;
    }
  });
}

TEST(ListFunctions, ExtremesBoundEveryNumberOfTheList) {
  In_Each_Locale([] {
    cls_Quorvex engine;
    for (unsigned seed = 0; seed < 400; ++seed) {
      Random_Lists lists(seed);
      List list = {Localized(lists.random().number(100))};
      for (int i = 0; i < 30; ++i) list.emplace_back(lists.element(100));
      const HostValue greatest = engine.qvxMAX(list);
      const HostValue least = engine.qvxMIN(list);
      std::size_t equal_greatest = 0;
      for (const HostValue& each : list) {
        const HostValue capitals = To_Capitals(each.text());
        ASSERT_NE(engine.qvxISGREATEROREQUAL(greatest, capitals).text(), "False") << seed;
        ASSERT_NE(engine.qvxISLESSOREQUAL(least, capitals).text(), "False") << seed;
        if (engine.qvxISEQUAL(greatest, capitals).text() == "True") ++equal_greatest;
      }
      ASSERT_GT(equal_greatest, 0U) << seed;
    }
  });
}

TEST(SumOfCells, AgreesWithTheChainOfSums) {
  In_Each_Locale([] {
    cls_Quorvex engine;
    for (unsigned seed = 0; seed < 1000; ++seed) {
      Random_Lists lists(seed);
      const HostValue digits =
          lists.random().one_in(3) ? HostValue() : HostValue(lists.random().below(150));
      std::vector<HostValue> cells;
      HostValue chain = "0";
      const auto add = [&](const HostValue& to) {
        return engine.qvxADD(chain, to, Missing, Missing, Missing, Missing, digits);
      };
      for (int i = 0; i < 20; ++i) {
        cells.emplace_back(lists.random().one_in(2) ? Localized(lists.random().number(60))
                                                    : lists.element(60));
        chain = add(cells.back());
      }
      ASSERT_EQ(engine.qvxSUM(Array_Of(4, cells), Missing, Missing, Missing, Missing, digits),
                add(0))
          << seed;
      ASSERT_EQ(engine.qvxSUM(Range_Of_Cells(5, cells), Missing, Missing, Missing, Missing, digits),
                add(0))
          << seed;
    }
  });
}

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
