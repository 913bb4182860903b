// Sorting, beside the selection sort that says how cells are arranged.
#include "lists/sort_numbers.h"

#include <gtest/gtest.h>

#include <compare>
#include <numeric>
#include <string>
#include <utility>
#include <vector>

#include "frame/class/cls_Quorvex.h"
#include "host/conversions.h"
#include "lists/random_lists.h"
#include "lists/sort_result.h"
#include "support/cells.h"
#include "support/failures.h"
#include "support/surroundings.h"
#include "text/comparable_number.h"
#include "text/compare_numbers.h"
#include "text/recognition.h"

namespace quorvex {
namespace {

// True or false, or a token as text.
HostValue Is_Better(const HostValue& cell, const HostValue& best, Sort_Direction direction) {
  return direction == Sort_Direction::ascending
             ? Compare_Numbers(To_Text(best), To_Text(cell), false, true)
             : Compare_Numbers(To_Text(cell), To_Text(best), false, true);
}

// For each place the best of what is left, found by looking at all of it, and then a swap.
Array Selection_Sort(Array array, const std::vector<std::size_t>& places,
                     Sort_Direction direction) {
  for (std::size_t placed = 0; placed < places.size(); ++placed) {
    HostValue best = array.values[places[placed]];
    std::size_t best_place = places[placed];
    for (std::size_t i = placed; i < places.size(); ++i) {
      HostValue& cell = array.values[places[i]];
      const HostValue better = Is_Better(cell, best, direction);
      const bool is_token = better.is_text();
      if (is_token ? Is_Number_Text(To_Text(cell)) : better.boolean()) {
        best = cell;
        best_place = places[i];
      } else if (is_token && To_Text(cell).empty()) {
        cell = "";
      }
    }
    array.values[best_place] = array.values[places[placed]];
    array.values[places[placed]] = best;
  }
  return array;
}

// Kinds are shown too: a blank is not empty text, a number not its text.
std::string Shown(const Array& array) {
  std::string shown =
      std::to_string(array.lower_row) + ',' + std::to_string(array.lower_column) + ": ";
  for (const HostValue& value : array.values) {
    shown += std::to_string(static_cast<int>(value.kind())) + To_Text(value) + '|';
  }
  return shown;
}

std::vector<std::size_t> Places(const Array& array, bool by_row) {
  if (!by_row) return Places_By_Column(array);
  std::vector<std::size_t> places(array.values.size());
  std::iota(places.begin(), places.end(), std::size_t{0});
  return places;
}

HostValue Random_Cell(Random_Lists& lists, std::size_t one_number_in) {
  static const std::vector<HostValue> others = {
      HostValue::Empty(), "",    true, false,  Error_Code::not_available,
      "#VALUE!",          "abc", "(5", "#N/A", HostValue::Empty()};
  // Few values in many spellings; one that can be added but not compared.
  static const std::vector<std::string> numbers = {
      "2",  "2.0", "02", "2E+0", "'2'", "$2",  "(3)", "-3", "-3.00", "0",
      "-0", "0.",  "12", "1,2",  ".5",  "0.5", "3",   "10", "9",     "1.2.3E+1"};
  Random_Numbers& random = lists.random();
  if (!random.one_in(one_number_in)) return others[random.below(others.size())];
  if (random.one_in(4)) return static_cast<double>(random.below(5)) / 2;
  if (random.one_in(8)) return lists.element(40);
  const std::size_t most = random.one_in(3) ? numbers.size() : numbers.size() - 1;
  return Localized(numbers[random.below(most)]);
}

Array Random_Block(Random_Lists& lists) {
  Random_Numbers& random = lists.random();
  Array array;
  array.rows = random.one_in(4) ? 1 : 1 + random.below(5);
  array.columns = random.one_in(4) ? 1 : 1 + random.below(5);
  if (random.one_in(8)) array.rows = 1 + random.below(16);
  array.lower_row = static_cast<int>(random.below(3)) - 1;
  array.lower_column = static_cast<int>(random.below(3)) - 1;
  const std::size_t one_number_in = 1 + random.below(4);
  for (std::size_t i = 0; i < array.rows * array.columns; ++i) {
    array.values.push_back(Random_Cell(lists, one_number_in));
  }
  return array;
}

TEST(SortNumbers, ArrangesAsTheSelectionSort) {
  In_Each_Locale([] {
    for (unsigned seed = 0; seed < 250; ++seed) {
      Random_Lists lists(seed);
      const Array block = Random_Block(lists);
      for (const auto direction : {Sort_Direction::ascending, Sort_Direction::descending}) {
        ASSERT_EQ(Shown(Sort_Numbers(block, direction)),
                  Shown(Selection_Sort(block, Places(block, false), direction)))
            << seed << ' ' << Shown(block);
        ASSERT_EQ(Shown(Sort_Numbers_By_Row(block, direction)),
                  Shown(Selection_Sort(block, Places(block, true), direction)))
            << seed << ' ' << Shown(block);
      }
    }
  });
}

// The first digits alone don't decide these.
TEST(SortNumbers, TellsLongNumbersApart) {
  for (unsigned seed = 0; seed < 50; ++seed) {
    Random_Numbers random(seed);
    const std::string prefix = random.digits(random.below(40));
    std::vector<HostValue> cells;
    for (int i = 0; i < 60; ++i) {
      std::string text = prefix + random.digits(random.below(20)) + "." + random.digits(4);
      if (random.one_in(2)) text.insert(0, 1, '-');
      cells.emplace_back(std::move(text));
    }
    const Array column = Array_Of(1, cells);
    for (const auto direction : {Sort_Direction::ascending, Sort_Direction::descending}) {
      ASSERT_EQ(Shown(Sort_Numbers(column, direction)),
                Shown(Selection_Sort(column, Places(column, true), direction)))
          << seed;
    }
  }
}

// Where sizes lie far apart, few bits are left to tell first digits by.
TEST(SortNumbers, PutsNumbersOfAllSizesInOrder) {
  for (const std::size_t powers : {1U, 7U, 600U, 2'000'000'000U}) {
    Random_Numbers random(static_cast<unsigned>(powers));
    std::vector<HostValue> cells;
    for (int i = 0; i < 3000; ++i) {
      std::string text = random.one_in(20) ? "0" : random.digits(1 + random.below(30));
      if (random.one_in(2)) {
        text.insert(1, ".");
        text += 'E';
        text += random.one_of("+-");
        text += std::to_string(random.below(powers));
      }
      if (random.one_in(2)) text.insert(0, 1, '-');
      cells.emplace_back(std::move(text));
    }
    const Array sorted = Sort_Numbers(Array_Of(1, cells), Sort_Direction::ascending);
    ASSERT_EQ(sorted.values.size(), cells.size());
    Comparable_Number lower;
    Comparable_Number upper;
    for (std::size_t i = 1; i < sorted.values.size(); ++i) {
      ASSERT_TRUE(lower.read(sorted.values[i - 1].text()) && upper.read(sorted.values[i].text()));
      ASSERT_TRUE(std::is_lteq(lower <=> upper))
          << sorted.values[i - 1].text() << ' ' << sorted.values[i].text();
    }
  }
}

TEST(SortNumbers, LeavesAFirstBlankAloneWhereThereIsNoNumber) {
  const HostValue blank = HostValue::Empty();
  const auto sorted = [](std::vector<HostValue> cells) {
    return Shown(Sort_Numbers(Array_Of(1, std::move(cells)), Sort_Direction::ascending));
  };
  EXPECT_EQ(sorted({blank, "a", blank}), "1,1: 1|3a|3|");
  EXPECT_EQ(sorted({blank, "1", blank}), "1,1: 31|3|3|");
}

TEST(SortNumbers, CanBeBrokenOffAndRefusesArraysInCells) {
  const Array inner = Array_Of(1, {1});
  EXPECT_EQ(Failure_Of([&] {
              Sort_Numbers(Array_Of(1, {1, inner}), Sort_Direction::ascending);
            }),
            Failure_Number::type_mismatch);
  const Interruption_Guard guard;
  EXPECT_EQ(Failure_Of([] {
              Sort_Numbers(Array_Of(1, {2, 1}), Sort_Direction::ascending);
            }),
            Failure_Number::interrupted);
}

TEST(SortResult, CountsTheCellsOfAnArrayByItsBounds) {
  Array array = Array_Of(2, {1, 2, 3, 4});
  array.lower_row = 0;
  EXPECT_EQ(Shown(Copy_Sort_Result(array, {2, 2}, "x")), "1,1: 23|24|3x|3x|");
  array.lower_column = 2;
  EXPECT_EQ(Shown(Copy_Sort_Result(array, {1, 3}, "x")), "1,1: 3x|23|24|");
  EXPECT_EQ(Shown(Fit_Sort_Result(array, {1, 3}, "x", true)), "1,1: 21|22|23|");
  EXPECT_EQ(Shown(Fit_Sort_Result(array, {3, 2}, "x", false)), "1,1: 21|24|23|3x|22|3x|");
}

TEST(SortResult, AsksForTheMemoryOfTheCallersBlock) {
  const Memory_Guard memory(1 << 20);
  cls_Quorvex engine;
  EXPECT_EQ(
      Failure_Of([&] { engine.qvxSORT(Array_Of(1, {1}), false, false, false, {}, 1e9, 1e9); }),
      Failure_Number::out_of_memory);
}

TEST(Order, HoldsHugeNumbersAtOnce) {
  const Memory_Guard poor(0);
  cls_Quorvex engine;
  const HostValue row =
      Array_Of(4, {"3E+300000000", "-2E+300000000", "1E+300000000", "0.3E+300000001"});
  EXPECT_EQ(Shown(engine.qvxSORT(row, false, true).array()),
            "1,1: 3-2E+300000000|31E+300000000|33E+300000000|30.3E+300000001|");
  EXPECT_EQ(engine.qvxLARGE(row, "3"), "1E+300000000");
  EXPECT_EQ(engine.qvxSMALL(row, "1"), "-2E+300000000");
  EXPECT_EQ(engine.qvxRANK("3.0E+300000000", row, false, true), "1.5");
}

// Passed over as if it were no number, one that has no room would make the result wrong.
TEST(Order, FailsWhereANumberHasNoRoom) {
  const Memory_Guard poor(0);
  cls_Quorvex engine;
  const HostValue row = Array_Of(3, {"3", "(5E+300000000", "1"});
  const auto fails = [](const auto& call) {
    EXPECT_EQ(Failure_Of(call), Failure_Number::out_of_memory);
  };
  fails([&] { engine.qvxSORT(row); });
  fails([&] { engine.qvxLARGE(row, "1"); });
  fails([&] { engine.qvxRANK("3", row); });
  fails([&] { engine.qvxRANK("(5E+300000000", Array_Of(2, {1, 2})); });
  fails([&] { engine.qvxMEDIAN({row}); });
  fails([&] { engine.qvxMODE({row}); });
  fails([&] { engine.qvxMAX({row}); });
  // These are found, and have no room when they are written out.
  const HostValue huge = Array_Of(3, {"3E+300000000", "3E+300000000", "1"});
  fails([&] { engine.qvxMEDIAN({huge}); });
  fails([&] { engine.qvxMODE({huge}); });
  fails([&] { engine.qvxMAX({huge}); });
}

// The functions of places read the sorted block as its bounds say.
TEST(LargeAndSmall, CountPlacesByTheUpperBounds) {
  cls_Quorvex engine;
  Array array = Array_Of(2, {1, 2, 3, 4, 5, 6});
  EXPECT_EQ(engine.qvxSMALL(array, "4"), "4");
  array.lower_row = 0;  // rows 0 to 2: of each column the last two
  EXPECT_EQ(engine.qvxSMALL(array, "1"), "2");
  EXPECT_EQ(engine.qvxSMALL(array, "4"), "6");
  EXPECT_EQ(engine.qvxSMALL(array, "5"), "#NUM!");
  EXPECT_EQ(engine.qvxSMALL(array, "0.5"), "1");
  array.lower_row = 2;
  EXPECT_EQ(Failure_Of([&] { engine.qvxSMALL(array, "1"); }),
            Failure_Number::subscript_out_of_range);
}

}  // namespace
}  // namespace quorvex
