// The dispatcher: what it does with codes, failures and breaks.
#include "arith/do_operation.h"

#include <gtest/gtest.h>

#include <memory>
#include <utility>

#include "arith/operation/resolve_signs.h"
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

// A range of one cell, for operands that are references.
class Cell final : public Range {
 public:
  explicit Cell(HostValue value, std::size_t rows = 1) : value_(std::move(value)), rows_(rows) {}
  std::size_t rows() const override { return rows_; }
  std::size_t columns() const override { return 1; }
  HostValue cell(std::size_t, std::size_t) const override { return value_; }

 private:
  HostValue value_;
  std::size_t rows_;
};

HostValue Reference(const HostValue& value, std::size_t rows = 1) {
  return std::shared_ptr<const Range>(std::make_shared<Cell>(value, rows));
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

TEST(ResolveSigns, ReducesSignsToOneOperationAndOneFlag) {
  constexpr bool negative = true;
  const struct {
    std::int16_t code;
    std::int16_t reduced;
    bool flag;
    const char* a;
    const char* b;
    const char* first;
    const char* second;
  } cases[] = {
      {1, 1, false, "5", "3", "5", "3"},     {1, 2, false, "5", "-3", "5", "3"},
      {1, 2, false, "-5", "3", "3", "5"},    {1, 1, negative, "-5", "-3", "5", "3"},
      {2, 2, false, "5", "3", "5", "3"},     {2, 1, false, "5", "-3", "5", "3"},
      {2, 1, negative, "-5", "3", "5", "3"}, {2, 2, false, "-5", "-3", "3", "5"},
      {3, 3, false, "5", "3", "5", "3"},     {3, 3, negative, "5", "-3", "5", "3"},
      {3, 3, negative, "-5", "3", "5", "3"}, {3, 3, false, "-5", "-3", "5", "3"},
      {4, 4, false, "5", "3", "5", "3"},     {4, 4, negative, "5", "-3", "5", "3"},
      {4, 4, negative, "-5", "3", "5", "3"}, {4, 4, false, "-5", "-3", "5", "3"},
      {5, 5, false, "-5", "-3", "5", "3"},   {6, 6, false, "-5", "3", "5", "3"},
  };
  for (const auto& c : cases) {
    const Operand a(c.a);
    const Operand b(c.b);
    const type_SignOp reduced = Resolve_Signs(c.code, a, b);
    EXPECT_EQ(reduced.Operation, c.reduced) << c.code << ' ' << c.a << ' ' << c.b;
    EXPECT_EQ(reduced.Operand1->magnitude(), c.first) << c.code << ' ' << c.a << ' ' << c.b;
    EXPECT_EQ(reduced.Operand2->magnitude(), c.second) << c.code << ' ' << c.a << ' ' << c.b;
    EXPECT_EQ(reduced.Negative, c.flag) << c.code << ' ' << c.a << ' ' << c.b;
  }
  EXPECT_EQ(Resolve_Signs(7, Operand("5"), Operand("3")).Operation, 0);
}

}  // namespace
}  // namespace quorvex
