// Cells as typed, names, and what a worksheet tells of itself.
#include "sheet/worksheet.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "support/locales.h"

namespace quorvex {
namespace {

using Kind = HostValue::Kind;

struct Typed_Case {
  const char* typed;
  Kind kind;
  const char* shown;
};

void Expect_Typed(const Typed_Case& given) {
  Worksheet sheet("Sheet1");
  sheet.set({2, 3}, given.typed);
  EXPECT_EQ(sheet.value({2, 3}).kind(), given.kind) << given.typed;
  EXPECT_EQ(sheet.shown({2, 3}), given.shown) << given.typed;
  EXPECT_EQ(sheet.typed({2, 3}), given.typed);
}

TEST(Worksheet, TakesTypedTextForWhatItLooksLike) {
  const Locale_Guard locale(Point_Locale());
  for (const Typed_Case& given : {
           Typed_Case{"", Kind::empty, ""},
           {"12.50", Kind::number, "12.5"},
           {"-.5", Kind::number, "-0.5"},
           {"1e3", Kind::number, "1000"},
           {"1234567890123456", Kind::text, "1234567890123456"},
           {"1.2345678901234567e5", Kind::text, "1.2345678901234567E+5"},
           {"1,5", Kind::text, "1,5"},
           {"1,000", Kind::text, "1,000"},
           {"$5", Kind::text, "$5"},
           {"(5)", Kind::text, "(5)"},
           {"+5", Kind::text, "+5"},
           {" 5", Kind::text, " 5"},
           {"5-", Kind::text, "5-"},
           {"-", Kind::text, "-"},
           {"'5", Kind::text, "5"},
           {"'", Kind::text, ""},
           {"'=A1", Kind::text, "=A1"},
           {"true", Kind::boolean, "TRUE"},
           {"truely", Kind::text, "truely"},
           {"#n/a", Kind::error, "#N/A"},
           {"#N/A!", Kind::text, "#N/A!"},
           {"#VALUE!", Kind::error, "#VALUE!"},
       }) {
    Expect_Typed(given);
  }
}

TEST(Worksheet, ReadsTypedNumbersInTheLocale) {
  const Locale_Guard locale(Comma_Locale());
  for (const Typed_Case& given : {
           Typed_Case{"1,5", Kind::number, "1,5"},
           {"1.5", Kind::text, "1.5"},
           {"0,12345678901234567", Kind::text, "0,12345678901234567"},
           {"-12,345678901234567E2", Kind::text, "-1,2345678901234567E+3"},
       }) {
    Expect_Typed(given);
  }
}

TEST(Worksheet, KeepsAFormulaThatCannotBeRead) {
  const Locale_Guard locale(Point_Locale());
  Worksheet sheet("Sheet1");
  sheet.set({1, 1}, "=qvxAD(1,2)");
  EXPECT_EQ(sheet.typed({1, 1}), "=qvxAD(1,2)");
  EXPECT_EQ(sheet.shown({1, 1}), "#NAME?");
  ASSERT_NE(sheet.problem({1, 1}), nullptr);
  EXPECT_EQ(sheet.problem({1, 1})->kind, Cell_Problem::Kind::syntax);
  EXPECT_EQ(sheet.problem({1, 1})->position, 1U);
  sheet.set({1, 1}, "fine");
  EXPECT_EQ(sheet.problem({1, 1}), nullptr);
}

TEST(Worksheet, KnowsItsUsedRange) {
  Worksheet sheet("Sheet1");
  EXPECT_EQ(sheet.used_range(), std::nullopt);
  sheet.set({5, 2}, "a");
  sheet.set({3, 7}, "b");
  sheet.set({4, 4}, "c");
  EXPECT_EQ(Area_Text(sheet.used_range().value()), "B3:G5");
  sheet.set({5, 2}, "again");
  sheet.clear({5, 2});
  sheet.clear({5, 2});
  EXPECT_EQ(Area_Text(sheet.used_range().value()), "D3:G4");
  sheet.set({3, 7}, "");
  EXPECT_EQ(Area_Text(sheet.used_range().value()), "D4");
}

TEST(Worksheet, HasLimits) {
  Worksheet sheet("Sheet1");
  sheet.set({maximum_rows, maximum_columns}, "corner");
  EXPECT_EQ(sheet.shown({maximum_rows, maximum_columns}), "corner");
  for (const Cell_Address beyond :
       {Cell_Address{0, 1}, Cell_Address{1, 0}, Cell_Address{maximum_rows + 1, 1},
        Cell_Address{1, maximum_columns + 1}}) {
    EXPECT_THROW(sheet.set(beyond, "1"), std::out_of_range);
    EXPECT_THROW(sheet.set(beyond, "=A1"), std::out_of_range);
  }
  EXPECT_EQ(sheet.cells().size(), 1U);
}

TEST(Worksheet, FindsNamesInAnyCaseAndRefusesBadOnes) {
  const Locale_Guard locale(Point_Locale());
  Worksheet sheet("Sheet1");
  sheet.define_name("Größe", "A1:A3");
  ASSERT_NE(sheet.find_name("grÖße"), nullptr);
  EXPECT_EQ(sheet.find_name("größe")->refers_to, "=A1:A3");
  sheet.define_name("GRÖßE", "=qvxADD(1,2)");
  EXPECT_EQ(sheet.names().size(), 1U);
  EXPECT_EQ(sheet.find_name("größe")->refers_to, "=qvxADD(1,2)");
  for (const char* bad :
       {"", "A1", "$A$1", "XFE1", "two words", "1st", "TRUE", "qvxadd", "a-b", "a\"b", "\xFF"}) {
    EXPECT_THROW(sheet.define_name(bad, "A1"), std::invalid_argument) << bad;
  }
  EXPECT_THROW(sheet.define_name("fine", "A1:"), Syntax_Error);
}

TEST(CellAddresses, AreWrittenAsTheyAreRead) {
  for (const char* text : {"A1", "Z26", "AA1", "AZ9", "ZZ702", "AAA703", "XFD1048576"}) {
    const auto address = Read_Address(text);
    ASSERT_TRUE(address) << text;
    EXPECT_EQ(Address_Text(*address), text);
  }
  EXPECT_EQ(Read_Address("XFD1")->column, maximum_columns);
  for (const char* text : {"XFE1", "A1048577", "A0", "A01", "A", "1", "$1", "A$", "AAAA1", "A1B",
                           "A99999999999999999999", ""}) {
    EXPECT_EQ(Read_Address(text), std::nullopt) << text;
  }
}

}  // namespace
}  // namespace quorvex
