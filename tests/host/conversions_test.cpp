// Conversions between the kinds of host values.
#include "host/conversions.h"

#include <gtest/gtest.h>

#include <cfenv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "support/cells.h"
#include "support/failures.h"
#include "support/locales.h"

namespace quorvex {
namespace {

/// A range that holds the same value in each of its cells.
HostValue Cells(std::size_t rows, std::size_t columns, HostValue value) {
  return Range_Of_Cells(columns, std::vector<HostValue>(rows * columns, std::move(value)));
}

TEST(NumberToText, WritesFifteenDigitsAndPlainDecimalsWhereTheyFit) {
  const Locale_Guard locale(Point_Locale());
  const struct {
    double number;
    const char* text;
  } cases[] = {
      {0, "0"},
      {-0.0, "0"},
      {5, "5"},
      {-100000, "-100000"},
      {0.5, "0.5"},
      {-1234.5, "-1234.5"},
      {0.1 + 0.2, "0.3"},
      {1.0 / 3, "0.333333333333333"},
      {200.0 / 3, "66.6666666666667"},
      // The border above: fifteen digits, and those that only rounding makes sixteen.
      {999999999999999, "999999999999999"},
      {999999999999999.4, "999999999999999"},
      {999999999999999.6, "1E+15"},
      {-1E15, "-1E+15"},
      {1.5E15, "1.5E+15"},
      {123456789012345678.0, "1.23456789012346E+17"},
      {99999999999999.96, "100000000000000"},
      // The border below: fifteen decimals.
      {0.000015, "0.000015"},
      {1E-15, "0.000000000000001"},
      {1.5E-15, "1.5E-15"},
      {1E-16, "1E-16"},
      {0.1 / 3, "3.33333333333333E-02"},
      {1.23456789012E-9, "1.23456789012E-09"},
      {0.9999999999999996, "1"},
      {0.09999999999999999, "0.1"},
      // Halfway between two texts, to the even one.
      {100000000000000.5, "100000000000000"},
      {100000000000001.5, "100000000000002"},
      // The ends of the range.
      {1E100, "1E+100"},
      {std::numeric_limits<double>::max(), "1.79769313486232E+308"},
      {std::numeric_limits<double>::denorm_min(), "4.94065645841247E-324"},
  };
  for (const auto& c : cases) EXPECT_EQ(Number_To_Text(c.number), c.text) << c.number;
  for (const double number : {HUGE_VAL, -HUGE_VAL, std::nan("")})
    EXPECT_EQ(Failure_Of([&] { Number_To_Text(number); }), Failure_Number::overflow);
}

TEST(NumberToText, UsesTheSeparatorInForceAtEachCall) {
  for (const Locale& locale : {Comma_Locale(), Point_Locale(), Narrow_Space_Locale()}) {
    const Locale_Guard guard(locale);
    const std::string& separator = locale.decimal_separator;
    EXPECT_EQ(Number_To_Text(-1234.5), "-1234" + separator + "5");
    EXPECT_EQ(Number_To_Text(0.25), "0" + separator + "25");
    EXPECT_EQ(Number_To_Text(1.5E20), "1" + separator + "5E+20");
  }
  Locale wide = Point_Locale();
  wide.decimal_separator = "\u066B";
  const Locale_Guard guard(wide);
  EXPECT_EQ(Number_To_Text(-2.5), "-2\u066B5");
}

TEST(TextToNumber, ReadsWhatACellWouldShow) {
  const Locale_Guard locale(Point_Locale());
  const struct {
    const char* text;
    double number;
  } cases[] = {
      {"0", 0},
      {"-0", 0},
      {"007", 7},
      {"12.5", 12.5},
      {".5", 0.5},
      {"5.", 5},
      {"+5", 5},
      {"-5", -5},
      {" \t5\r\n", 5},
      {"\u00A05\u202F", 5},
      {"1,234,567.25", 1234567.25},
      {"12,34,567", 1234567},
      {"1E+3", 1000},
      {"1e3", 1000},
      {"-1.5E-003", -0.0015},
      {"5.E1", 50},
      {"(5)", -5},
      {"( 1,234.5 )", -1234.5},
      {"$5", 5},
      {"5$", 5},
      {"5 $", 5},
      {"-$5", -5},
      {"$-5", -5},
      {"$ - 5", -5},
      {"($5)", -5},
      {"$(5)", -5},
      {"(5$)", -5},
      {"$1,000E-2", 10},
      // The ends of the range.
      {"1.7976931348623157E308", std::numeric_limits<double>::max()},
      {"5E-324", std::numeric_limits<double>::denorm_min()},
      {"2E-324", 0},
      {"-1E-99999999999999999999", 0},
      {"0E99999999999999999999", 0},
      {"0.000E+99999", 0},
      {"1000E-99999", 0},
  };
  for (const auto& c : cases) EXPECT_EQ(Text_To_Number(c.text), c.number) << c.text;
  EXPECT_EQ(Text_To_Number("0." + std::string(400, '0') + "5E401"), 5.0);
  EXPECT_EQ(Text_To_Number("5" + std::string(400, '0') + "E-400"), 5.0);
}

TEST(TextToNumber, RefusesEverythingElse) {
  const Locale_Guard locale(Point_Locale());
  for (const char* text :
       {"",      " ",     "abc",   "5a",    "a5",   "-",     "+",    "()",     "(",      "5)",
        "(5",    "(-5)",  "-(5)",  "--5",   "-+5",  "5-",    "$",    "$$5",    "$5$",    ".",
        "..5",   "1.2.3", ",5",    "5,",    "1,,2", "1.5,0", "1,.5", "E5",     "1E",     "1E+",
        "1E+-3", "1E5.0", "1E1,0", "1 000", "1E 5", "0x10",  "inf",  "nan",    "1'000",  "#NUM!",
        "\"5\"", "'5'",   "\xFF",  "5\xC2", "\xC2", "True",  "5 5",  "\u0665", "5\u20AC"}) {
    EXPECT_EQ(Failure_Of([&] { Text_To_Number(text); }), Failure_Number::type_mismatch) << text;
  }
  EXPECT_EQ(Failure_Of([] { Text_To_Number(std::string_view("5\0", 2)); }),
            Failure_Number::type_mismatch);
  for (const char* text : {"1E309", "-1.7976931348623159E308", "0.001E9999999999999999999"})
    EXPECT_EQ(Failure_Of([&] { Text_To_Number(text); }), Failure_Number::overflow) << text;
  EXPECT_EQ(Failure_Of([] { Text_To_Number(std::string(400, '9')); }), Failure_Number::overflow);
}

TEST(TextToNumber, FollowsTheLocale) {
  const struct {
    Locale locale;
    const char* text;
  } cases[] = {
      {Comma_Locale(), "-1.234,5 \u20AC"},
      {Comma_Locale(), "-1.234,5\u00A0\u20AC"},
      {Comma_Locale(), "(\u20AC1.234,5)"},
      {Narrow_Space_Locale(), "-1\u202F234,5\u202F\u20AC"},
      {Apostrophe_Locale(), "CHF -1\u2019234.5"},
      {Apostrophe_Locale(), "-1234.5CHF"},
      {{",", ".", "kr.", Currency_Side::before}, "kr.-1.234,5"},
  };
  for (const auto& c : cases) {
    const Locale_Guard guard(c.locale);
    EXPECT_EQ(Text_To_Number(c.text), -1234.5) << c.text;
  }
  const Locale_Guard guard(Narrow_Space_Locale());
  for (const char* text : {"1.5", "1 234", "1\u2019234", "1,5\u202F000"})
    EXPECT_EQ(Failure_Of([&] { Text_To_Number(text); }), Failure_Number::type_mismatch) << text;
}

TEST(TextToNumber, SaysWhatItCouldNotReadInWordsThatCanBeShown) {
  const auto message = [](std::string_view text) -> std::string {
    try {
      Text_To_Number(text);
    } catch (const Run_Time_Failure& failure) {
      return failure.what();
    }
    return "";
  };
  EXPECT_EQ(message("abc"), "\"abc\" is not a number.");
  EXPECT_EQ(message("a\nb\xFF\u20AC"), "\"a?b?\u20AC\" is not a number.");
  EXPECT_EQ(message(std::string(1000000, 'x')),
            "\"" + std::string(40, 'x') + "\u2026\" is not a number.");
}

TEST(Conversions, EachKindHasItsTextAndItsNumber) {
  const Locale_Guard locale(Comma_Locale());
  const struct {
    HostValue value;
    const char* text;
    double number;
  } cases[] = {
      {HostValue::Empty(), "", 0},
      {2.5, "2,5", 2.5},
      {"2,50", "2,50", 2.5},
      {true, "True", -1},
      {false, "False", 0},
      {Cells(1, 1, 2.5), "2,5", 2.5},
      {Cells(1, 1, true), "True", -1},
      {Cells(1, 1, HostValue::Empty()), "", 0},
  };
  for (const auto& c : cases) {
    std::string scratch = "before";
    EXPECT_EQ(To_Text(c.value), c.text);
    EXPECT_EQ(Text_Of(c.value, scratch), c.text);
    EXPECT_EQ(To_Number(c.value), c.number) << c.text;
  }
  EXPECT_EQ(To_Text(Error_Code::not_available), "Error 2042");
  EXPECT_EQ(To_Text(Cells(1, 1, Error_Code::name)), "Error 2029");
  EXPECT_EQ(To_Text("5 apples"), "5 apples");
}

TEST(Conversions, WholeNumbersOfAProgramKeepTheirDigits) {
  constexpr std::int64_t last = std::int64_t{1} << 53;
  const struct {
    HostValue value;
    double number;
  } numbers[] = {{-7, -7},
                 {4294967295U, 4294967295.0},
                 {std::size_t{0}, 0},
                 {last, 9007199254740992.0},
                 {-last, -9007199254740992.0}};
  for (const auto& [value, number] : numbers) {
    ASSERT_EQ(value.kind(), HostValue::Kind::number) << number;
    EXPECT_EQ(value.number(), number);
  }
  const struct {
    HostValue value;
    const char* text;
  } texts[] = {{last + 1, "9007199254740993"},
               {-last - 1, "-9007199254740993"},
               {std::numeric_limits<long long>::min(), "-9223372036854775808"},
               {std::numeric_limits<std::uint64_t>::max(), "18446744073709551615"}};
  for (const auto& [value, text] : texts) {
    ASSERT_TRUE(value.is_text()) << text;
    EXPECT_EQ(value.text(), text);
  }
}

TEST(Conversions, TextIsNotCopied) {
  const HostValue value(std::string(100, '7'));
  std::string scratch;
  EXPECT_EQ(Text_Of(value, scratch).data(), value.text().data());
}

TEST(Conversions, KindsWithoutTheFormFail) {
  const auto mismatch = Failure_Number::type_mismatch;
  const HostValue none[] = {Missing,
                            Array{1, 1, 1, 1, {HostValue(5)}},
                            List{HostValue(5)},
                            Cells(1, 2, 5),
                            Cells(2, 1, 5),
                            Cells(1, 1, Missing),
                            Cells(1, 1, Cells(1, 1, 5))};
  for (const HostValue& value : none) {
    EXPECT_EQ(Failure_Of([&] { To_Text(value); }), mismatch);
    EXPECT_EQ(Failure_Of([&] { To_Number(value); }), mismatch);
    EXPECT_EQ(Failure_Of([&] { To_Boolean(value); }), mismatch);
    EXPECT_EQ(Failure_Of([&] { Equals_True(value); }), mismatch);
    EXPECT_EQ(Failure_Of([&] { To_Int32(value); }), mismatch);
  }
  const HostValue error(Error_Code::value);
  EXPECT_EQ(Failure_Of([&] { To_Number(error); }), mismatch);
  EXPECT_EQ(Failure_Of([&] { To_Boolean(error); }), mismatch);
}

TEST(Conversions, WholeNumbersAreTheNearestHalvesEven) {
  const Locale_Guard locale(Point_Locale());
  const struct {
    double number;
    std::int16_t whole;
  } cases[] = {{0.5, 0},
               {1.5, 2},
               {2.5, 2},
               {-0.5, 0},
               {-1.5, -2},
               {-2.5, -2},
               {2.51, 3},
               {-2.51, -3},
               {32767.4, 32767},
               {-32768.5, -32768},
               {0.49999999999999994, 0}};
  for (const int mode : {FE_TONEAREST, FE_UPWARD, FE_TOWARDZERO}) {
    std::fesetround(mode);
    for (const auto& c : cases) {
      EXPECT_EQ(To_Int16(c.number), c.whole) << c.number;
      EXPECT_EQ(To_Int32(c.number), c.whole) << c.number;
    }
  }
  std::fesetround(FE_TONEAREST);
  EXPECT_EQ(To_Int16("(2.5)"), -2);
  EXPECT_EQ(To_Int32(true), -1);
  EXPECT_EQ(To_Int32(2147483647.49), 2147483647);
  EXPECT_EQ(To_Int32(-2147483648.5), std::numeric_limits<std::int32_t>::min());
  for (const double number : {32767.5, -32769.0, 1E300, HUGE_VAL, std::nan("")})
    EXPECT_EQ(Failure_Of([&] { To_Int16(number); }), Failure_Number::overflow) << number;
  for (const double number : {2147483647.5, -2147483649.0})
    EXPECT_EQ(Failure_Of([&] { To_Int32(number); }), Failure_Number::overflow) << number;
}

TEST(Conversions, TruthIsNotEqualityWithTrue) {
  const Locale_Guard locale(Point_Locale());
  const struct {
    HostValue value;
    bool boolean;
    bool equals_true;
  } cases[] = {
      {true, true, true},
      {false, false, false},
      {-1, true, true},
      {1, true, false},
      {0, false, false},
      {0.25, true, false},
      {"tRuE", true, true},
      {"FALSE", false, false},
      {"-1", true, true},
      {"(1)", true, true},
      {"1", true, false},
      {"0.0", false, false},
      {"2", true, false},
      {HostValue::Empty(), false, false},
      {Cells(1, 1, "true"), true, true},
      {Cells(1, 1, 1), true, false},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(To_Boolean(c.value), c.boolean) << testing::PrintToString(&c - cases);
    EXPECT_EQ(Equals_True(c.value), c.equals_true) << testing::PrintToString(&c - cases);
  }
  for (const char* text : {"", "yes", "true!", "tru", "T"}) {
    EXPECT_EQ(Failure_Of([&] { To_Boolean(text); }), Failure_Number::type_mismatch) << text;
    EXPECT_EQ(Failure_Of([&] { Equals_True(text); }), Failure_Number::type_mismatch) << text;
  }
}

TEST(Conversions, CapitalsOfAnyScript) {
  const struct {
    const char* text;
    const char* capitals;
  } cases[] = {
      {"", ""},
      {"blank=1;Table", "BLANK=1;TABLE"},
      {"caf\u00E9", "CAF\u00C9"},
      {"\u03B1\u03B2\u03C9", "\u0391\u0392\u03A9"},
      {"\u0434\u0430", "\u0414\u0410"},
      {"\u5B57\U0001F600", "\u5B57\U0001F600"},
      {"\U00010428", "\U00010400"},
      {"a\xFF\xC3z\xE2\x82", "A\xFF\xC3Z\xE2\x82"},
  };
  for (const auto& c : cases) EXPECT_EQ(To_Capitals(c.text), c.capitals);
}

}  // namespace
}  // namespace quorvex
