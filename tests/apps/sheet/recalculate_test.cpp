// Recalculation: order, circles, failures, and breaking it off.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "host/run_time_failure.h"
#include "sheet/recalculate.h"
#include "support/locales.h"
#include "support/surroundings.h"

namespace quorvex {
namespace {

struct Filled {
  const char* cell;
  const char* typed;
};

class Recalculate : public testing::Test {
 protected:
  void fill(const std::vector<Filled>& cells) {
    for (const auto& [cell, typed] : cells) sheet.set(Read_Address(cell).value(), typed);
  }
  void calculate() { Recalculate_All(book, engine); }
  std::string shown(const char* cell) { return sheet.shown(Read_Address(cell).value()); }
  std::string message(const char* cell) {
    const Cell_Problem* problem = sheet.problem(Read_Address(cell).value());
    return problem == nullptr ? "" : problem->message;
  }

  Locale_Guard locale{Point_Locale()};
  cls_Quorvex engine;
  Workbook book;
  Worksheet& sheet = book.add("Sheet1");
};

TEST_F(Recalculate, FollowsTheOrderOfDependency) {
  fill({{"A1", "=qvxADD(A2,B1)"},
        {"A2", "=qvxADD(B1,C5)"},
        {"B1", "=qvxADD(C5,\"0.00000000000000000001\")"},
        {"C5", "12345678901234567890"},
        {"D1", "=C5"},
        {"D2", "=blank"},
        {"D3", "=E9"},
        {"D4", "=-C5"}});
  calculate();
  EXPECT_EQ(shown("A1"), "37037036703703703670.00000000000000000002");
  EXPECT_EQ(shown("D1"), "12345678901234567890");
  EXPECT_EQ(shown("D3"), "");
  EXPECT_EQ(shown("D4"), "-12345678901234567890");
  fill({{"C5", "1"}});
  calculate();
  EXPECT_EQ(shown("A1"), "3.00000000000000000002");
  fill({{"C5", ""}, {"B1", "2"}});
  calculate();
  EXPECT_EQ(shown("A1"), "4");
}

// Each link uses a cell that the array before it fills. None of these cells is filled at first, and
// the links are reached in their order or against it.
TEST_F(Recalculate, SettlesALongChainOfArraysInAFewPasses) {
  constexpr std::uint32_t links = 200;
  fill({{"A1", "=qvxREDUCEFRACTION(6,1)"}, {"G1000", "=qvxREDUCEFRACTION(6,1)"}});
  for (std::uint32_t link = 1; link < links; ++link) {
    const auto formula = [](const std::string& column, std::uint32_t row) {
      return "=qvxREDUCEFRACTION(qvxADD(" + column + std::to_string(row) + ",1),1)";
    };
    sheet.set({5 * link + 1, 1}, formula("B", 5 * link - 4));
    sheet.set({1000 - 5 * link, 7}, formula("H", 1005 - 5 * link));
  }
  std::size_t calls = 0;
  Recalculate_All(book, engine, [&](std::size_t /*done*/, std::size_t /*all*/) { ++calls; });
  EXPECT_EQ(shown("B996"), "205");
  EXPECT_EQ(shown("H5"), "205");
  EXPECT_LE(calls, std::size_t{4} * links * 2);
}

TEST_F(Recalculate, TellsOfArraysThatNeverComeToRest) {
  fill({{"C1", "=qvxREDUCEFRACTION(6,4,,,qvxISEVEN(D3))"}, {"A3", "=qvxREDUCEFRACTION(9,6)"}});
  calculate();
  EXPECT_TRUE(shown("C1") == "#CIRCULAR!" || shown("A3") == "#CIRCULAR!")
      << shown("C1") << " " << shown("A3");
}

TEST_F(Recalculate, TellsThatAnArrayRunsOffTheWorksheet) {
  fill({{"XFB1", "=qvxREDUCEFRACTION(6,4)"}});
  calculate();
  EXPECT_EQ(shown("XFB1"), "#SPILL!");
  EXPECT_NE(message("XFB1").find("the worksheet ends"), std::string::npos) << message("XFB1");
}

TEST_F(Recalculate, HandsRangesToListFunctions) {
  fill({{"A1", "12345678901234567890"},
        {"A2", "=qvxADD(A1,B2)"},
        {"A3", "text"},
        {"B1", "#N/A"},
        {"B2", "0.5"},
        {"C1", "=qvxSUM2(A1:B4,B2,\"format:thousands\")"},
        {"C2", "=qvxCOUNT(A1:B4)"},
        {"C3", "=qvxMAX(A4:B4,A1:A3)"},
        {"C4", "=qvxMAX(B1,A1)"},
        {"C5", "=qvxSUM(A1:A2)"},
        {"C6", "=qvxSUM(A1:A3)"},
        {"C7", "=qvxPRODUCT(B2,B1:B2,2)"}});
  calculate();
  EXPECT_EQ(shown("C1"), "24,691,357,802,469,135,781.5");
  EXPECT_EQ(shown("C2"), "3");
  EXPECT_EQ(shown("C3"), "12345678901234567890.5");
  EXPECT_EQ(shown("C4"), "#VALUE!");
  EXPECT_EQ(shown("C5"), "24691357802469135780.5");
  EXPECT_EQ(shown("C6"), "#VALUE!");
  EXPECT_EQ(shown("C7"), "0.5");
  fill({{"B2", "1"}});
  calculate();
  EXPECT_EQ(shown("C1"), "24,691,357,802,469,135,783");
}

TEST_F(Recalculate, ReadsOtherWorksheetsAndNames) {
  Worksheet& data = book.add("My data");
  data.set({1, 1}, "=qvxADD(Sheet1!A1,1)");
  data.define_name("rate", "=qvxADD(A1,10)");
  sheet.define_name("start", "'my DATA'!A1");
  sheet.define_name("sum", "=qvxADD(start,start)");
  fill({{"A1", "5"},
        {"A2", "=START"},
        {"A3", "=sum"},
        {"A4", "='My Data'!rate"},
        {"A5", "=rate"},
        {"A6", "=None!A1"},
        {"A7", "=qvxADD(None!x,1)"}});
  calculate();
  EXPECT_EQ(shown("A2"), "6");
  EXPECT_EQ(shown("A3"), "12");
  EXPECT_EQ(shown("A4"), "16");
  EXPECT_EQ(shown("A5"), "#NAME?");
  EXPECT_NE(message("A5").find("no name \"rate\""), std::string::npos);
  EXPECT_EQ(shown("A6"), "#REF!");
  EXPECT_EQ(message("A6"), "there is no worksheet \"None\"");
  EXPECT_EQ(shown("A7"), "#VALUE!");
  EXPECT_NE(message("A7"), "");
}

TEST_F(Recalculate, SpellsOutCircles) {
  fill({{"A1", "=qvxADD(B1,1)"},
        {"B1", "=C1"},
        {"C1", "=qvxADD(A1,A2)"},
        {"A2", "7"},
        {"D1", "=D1"},
        {"E1", "=qvxADD(B1,1)"},
        {"F1", "=D1"},
        {"G1", "=qvxSIGN(G1:H9)"},
        {"A5", "=B5"},
        {"B5", "=-C5"},
        {"C5", "=qvxADD(B5,A5)"}});
  calculate();
  EXPECT_EQ(shown("A1"), "#CIRCULAR!");
  EXPECT_EQ(message("A1"), "circular reference: A1 -> B1 -> C1 -> A1");
  EXPECT_EQ(message("B1"), "circular reference: B1 -> C1 -> A1 -> B1");
  EXPECT_EQ(message("D1"), "circular reference: D1 -> D1");
  EXPECT_EQ(message("G1"), "circular reference: G1 -> G1");
  EXPECT_EQ(message("B5"), "circular reference: B5 -> C5 -> B5");
  EXPECT_EQ(message("C5"), "circular reference: C5 -> B5 -> C5");
  EXPECT_EQ(sheet.value({1, 1}).error(), Error_Code::reference);
  EXPECT_EQ(shown("E1"), "#VALUE!") << "depends on a circle, and is on none";
  EXPECT_EQ(message("E1"), "");
  EXPECT_EQ(shown("F1"), "#REF!");

  fill({{"C1", "1"}});
  calculate();
  EXPECT_EQ(shown("A1"), "2");
  EXPECT_EQ(message("A1"), "");
}

TEST_F(Recalculate, SpellsOutCirclesThroughNamesAndWorksheetsAndShortensLongOnes) {
  Worksheet& other = book.add("Other");
  other.set({1, 1}, "=Sheet1!A1");
  sheet.define_name("loop", "=Other!A1");
  fill({{"A1", "=loop"}});
  for (std::uint32_t row = 1; row <= 20; ++row) {
    sheet.set({row, 3}, "=C" + std::to_string(row % 20 + 1));
  }
  for (std::uint32_t row = 1; row <= 200; ++row) {
    sheet.set({row, 4}, "=D" + std::to_string(row % 200 + 1));
  }
  calculate();
  EXPECT_EQ(message("A1"), "circular reference: A1 -> loop -> Other!A1 -> A1");
  EXPECT_EQ(message("C19"),
            "circular reference: C19 -> C20 -> C1 -> C2 -> C3 -> ... -> C17 -> C18 -> C19 "
            "(20 cells)");
  EXPECT_EQ(message("D1"),
            "circular reference: D1 -> D2 -> D3 -> D4 -> D5 -> ... -> D1 "
            "(200 cells depend on each other)");
}

TEST_F(Recalculate, KeepsFailuresInTheirCells) {
  fill({{"A1", "=qvxISEQUAL({1,2},1)"},
        {"A2", "=qvxADD(A1,1)"},
        {"A4", "=A1:A2"},
        {"A5", "={7,8;9,10}"},
        {"A6", "=qvxADD(1,2)"}});
  calculate();
  EXPECT_EQ(shown("A1"), "#VALUE!");
  EXPECT_NE(message("A1"), "");
  EXPECT_EQ(sheet.problem({1, 1})->kind, Cell_Problem::Kind::failure);
  EXPECT_EQ(shown("A2"), "#VALUE!");
  EXPECT_EQ(message("A2"), "");
  EXPECT_NE(message("A4").find("more than one cell"), std::string::npos);
  EXPECT_EQ(shown("A5"), "#SPILL!");
  EXPECT_EQ(sheet.problem({5, 1})->kind, Cell_Problem::Kind::spill);
  EXPECT_EQ(shown("A6"), "3");
}

TEST_F(Recalculate, CalculatesAChainOfAMillionCellsOnceEach) {
  constexpr std::uint32_t rows = 1000000;
  sheet.set({rows, 1}, "1");
  for (std::uint32_t row = 1; row < rows; ++row)
    sheet.set({row, 1}, "=A" + std::to_string(row + 1));
  std::size_t calls = 0;
  std::size_t last_done = 0;
  Recalculate_All(book, engine, [&](std::size_t done, std::size_t all) {
    ++calls;
    last_done = done;
    ASSERT_EQ(all, rows - 1);
  });
  EXPECT_EQ(shown("A1"), "1");
  EXPECT_EQ(calls, rows - 1);
  EXPECT_EQ(last_done, rows - 1);

  sheet.set({rows, 1}, "=A1");
  calculate();
  EXPECT_EQ(shown("A500000"), "#CIRCULAR!");
}

// A thousand whole columns; walking their blank cells would take hours.
TEST_F(Recalculate, TouchesUsedCellsOnly) {
  sheet.set({maximum_rows, 2}, "=qvxADD(1,2)");
  for (std::uint32_t row = 1; row <= 1000; ++row) {
    sheet.set({row, 3}, "=qvxISNUMBER(A1:B1048576)");
    sheet.set({row, 10}, "5");
  }
  for (std::uint32_t row = 1; row <= 1000; ++row) sheet.set({row, 4}, "=B1048576");
  // An array has no text, so these fail without reading the range.
  calculate();
  EXPECT_EQ(shown("D1000"), "3");
}

TEST_F(Recalculate, ListsCostTheCellsThatAreUsed) {
  sheet.set({1, 2}, "1");
  sheet.set({2, 5}, "2");
  sheet.set({2, 1}, "40");
  sheet.set({maximum_rows, maximum_columns}, "3");
  sheet.set({maximum_rows, 4}, "x");
  for (std::uint32_t row = 5; row < 300; ++row) {
    sheet.set({row, 1}, "=qvxSUM2(B1:XFD1048576)");
    sheet.set({row, 2}, "'no number");
  }
  sheet.set({3, 1}, "=qvxCOUNT(B1:C1048576)");
  sheet.set({4, 1}, "=qvxMAX(E1:E1048576)");
  EXPECT_LT(Yields_Of([&] { calculate(); }), 10000U);
  EXPECT_EQ(shown("A299"), "6");
  EXPECT_EQ(shown("A3"), "1");
  EXPECT_EQ(shown("A4"), "2");
}

TEST_F(Recalculate, CanBeBrokenOffAnywhereAndRunAgain) {
  for (std::uint32_t row = 1; row < 50; ++row) {
    sheet.set({row, 1}, "=qvxADD(A" + std::to_string(row + 1) + ",1)");
  }
  sheet.set({50, 1}, "1");
  std::size_t broken = 0;
  for (std::size_t calls = 0; calls < 200; calls += 7) {
    const Interruption_Guard guard(calls);
    try {
      calculate();
    } catch (const Run_Time_Failure& failure) {
      EXPECT_EQ(failure.number(), Failure_Number::interrupted);
      ++broken;
    }
  }
  EXPECT_GT(broken, 3U);
  calculate();
  EXPECT_EQ(shown("A1"), "50");
}

TEST(Workbook, FindsWorksheetsInAnyCaseAndRefusesASecondOfAName) {
  Workbook book;
  Worksheet& data = book.add("Data");
  EXPECT_EQ(book.find("DATA"), &data);
  EXPECT_EQ(book.find("Other"), nullptr);
  EXPECT_THROW(book.add("data"), std::invalid_argument);
  EXPECT_THROW(book.add(""), std::invalid_argument);
}

TEST_F(Recalculate, FillsTheCellsBesideWithAnArray) {
  fill({{"A1", "=qvxADD(B2,C2)"},
        {"B2", "=qvxREDUCEFRACTION(E1, 4)"},
        {"E1", "6"},
        {"F6", "=qvxMULTIPLY(B5, 10)"}});
  calculate();
  EXPECT_EQ(shown("B2") + ' ' + shown("C2") + ' ' + shown("D2") + ' ' + shown("E2"), "3/2 3 2 2");
  EXPECT_EQ(shown("B3") + ' ' + shown("B4") + ' ' + shown("B5"), "3 2 2");
  EXPECT_EQ(shown("C3"), "");
  EXPECT_EQ(shown("F6"), "20");
  EXPECT_EQ(sheet.typed(Read_Address("C2").value()), "");

  fill({{"E1", "10"}, {"F6", "=qvxMULTIPLY(C2, 10)"}});
  calculate();
  EXPECT_EQ(shown("C2"), "5");
  EXPECT_EQ(shown("F6"), "50");

  fill({{"B2", "=qvxADD(1, 1)"}});
  calculate();
  EXPECT_EQ(shown("C2") + shown("E2") + shown("B5"), "");
  EXPECT_EQ(shown("F6"), "0");
}

TEST_F(Recalculate, LeavesAnArrayWithoutRoomOut) {
  fill({{"B2", "=qvxREDUCEFRACTION(6, 4)"}, {"D2", "mine"}, {"C3", "no obstacle"}});
  calculate();
  EXPECT_EQ(shown("B2"), "#SPILL!");
  EXPECT_NE(message("B2").find("D2 isn't blank"), std::string::npos) << message("B2");
  EXPECT_EQ(shown("C2") + shown("B3"), "");
  EXPECT_EQ(shown("D2"), "mine");

  sheet.clear(Read_Address("D2").value());
  calculate();
  EXPECT_EQ(shown("B2") + ' ' + shown("D2") + ' ' + shown("C3"), "3/2 2 no obstacle");
  EXPECT_EQ(message("B2"), "");

  // The first of two that want the same cell has it.
  fill({{"D1", "=qvxREDUCEFRACTION(9, 6)"}});
  calculate();
  EXPECT_EQ(shown("D1"), "3/2");
  EXPECT_EQ(shown("B2"), "#SPILL!");
}

}  // namespace
}  // namespace quorvex
