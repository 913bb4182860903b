// The dispatcher: what it does with codes, failures and breaks.
#include "arith/operation/do_operation.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/cells.h"
#include "support/failures.h"
#include "support/surroundings.h"

namespace quorvex {
namespace {

TEST(DoOperation, GivesEmptyTextForAnUnknownOperation) {
  for (const std::int16_t code : {std::int16_t{0}, std::int16_t{7}, std::int16_t{-1}}) {
    EXPECT_EQ(Do_Operation(code, "1", "2", {}), "") << code;
    EXPECT_EQ(Do_Operation(code, "#NUM!", "2", {}), "#NUM!") << code;
  }
}

TEST(DoOperation, LeavesFixedPlacesOutOfIntermediateValues) {
  const HostValue places = 2;
  const HostValue unreadable = "abc";
  const HostValue yes = true;
  EXPECT_EQ(Do_Operation(operation::add, "1", "2", {.format_decimal_place = places}), "3.00");
  EXPECT_EQ(Do_Operation(operation::add, "1", "2", {.format_decimal_place = places},
                         {.intermediate = true}),
            "3");
  EXPECT_EQ(Do_Operation(operation::add, "1", "2", {.format_decimal_place = unreadable},
                         {.intermediate = true}),
            "3");
  EXPECT_EQ(
      Do_Operation(operation::add, "1234", "0", {.format_thousands = yes}, {.intermediate = true}),
      "1,234");
}

TEST(DoOperation, SurvivesExponentsThatAskForAllTheMemoryThereIs) {
  const Memory_Guard poor(0);
  EXPECT_EQ(Do_Operation(operation::add, "1E+2000000000", "1", {}), "#VALUE!");
  EXPECT_EQ(Do_Operation(operation::subtract, "1", "-1.5E-2000000000", {}), "#VALUE!");
  const HostValue places = 2000000000;
  EXPECT_EQ(Do_Operation(operation::add, "1", "1", {.format_decimal_place = places}), "#VALUE!");
  EXPECT_EQ(Do_Operation(operation::add, "1", "1", {}), "2");
}

TEST(DoOperation, LetsABreakPassItsHandler) {
  const std::string nines(3 * digits_between_yields, '9');
  const Interruption_Guard impatient;
  for (const std::int16_t code : {operation::add, operation::subtract}) {
    EXPECT_EQ(Failure_Of([&] { Do_Operation(code, nines, "1", {}); }), Failure_Number::interrupted);
    EXPECT_EQ(Failure_Of([&] { Do_Operation(code, nines, nines, {}); }),
              Failure_Number::interrupted);
  }
  EXPECT_EQ(Do_Operation(operation::add, "1", "1", {}), "2");
}

HostValue Reference(const HostValue& value, std::size_t rows = 1) {
  return Range_Of_Cells(1, std::vector<HostValue>(rows, value));
}

TEST(DoOperation, ReadsARangeOfOneCellAsThatCell) {
  const std::string long_number(200, '7');
  const HostValue limit = Reference(300);
  const struct {
    HostValue operand;
    std::string sum;
  } cases[] = {{Reference("1.5"), "1.5"},
               {Reference(2.5), "2.5"},
               {Reference(HostValue::Empty()), "0"},
               {Reference(long_number), long_number},
               {Reference("#NUM!"), "#NUM!"},
               {Reference(true), "#VALUE!"},
               {Reference(Error_Code::not_available), "#VALUE!"},
               {Reference("5", 2), "#VALUE!"}};
  for (const auto& c : cases) {
    EXPECT_EQ(Do_Operation(operation::add, c.operand, 0, {.maximum_significant_digits = limit}),
              c.sum);
  }
}

}  // namespace
}  // namespace quorvex
