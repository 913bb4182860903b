// Host values to JSON and back.
#include "batch/value_codec.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "batch/json_document.h"
#include "host/run_time_failure.h"
#include "support/cells.h"
#include "support/locales.h"

namespace quorvex {
namespace {

std::string Written(const HostValue& value) {
  std::string text;
  Append_Json(text, value);
  return text;
}

HostValue Read(const std::string& text) {
  nlohmann::json root;
  std::string id;
  Parse_Json(text, root, id);
  return Value_From_Json(std::move(root), "value");
}

TEST(ValueCodec, EveryKindComesBackAsWritten) {
  const std::vector<std::string> texts = {
      "{\"missing\":true}",
      "null",
      "0",
      "-0.0",
      "0.1",
      "-1e-300",
      "5e-324",
      "1.7976931348623157e+308",
      "9007199254740991",
      "9.007199254740992e+15",
      "1.2345678901234568e+17",
      "\"\"",
      "\"1.50\"",
      R"("a\"\\\n\u0000")",
      "\"1\u202F234,5 \u20AC\"",
      "true",
      "false",
      "{\"error\":2000}",
      "{\"error\":2042}",
      "{\"list\":[]}",
      R"({"list":[1,"1",null,{"missing":true},{"list":[{"error":2007}]}]})",
      "{\"array\":[]}",
      R"({"array":[[1,"2"],[true,null]]})",
  };
  for (const std::string& text : texts) EXPECT_EQ(Written(Read(text)), text);
}

TEST(ValueCodec, NumbersKeepEveryBit) {
  std::mt19937_64 random(20260726);
  for (int round = 0; round < 20000; ++round) {
    const auto number = std::bit_cast<double>(random());
    if (!std::isfinite(number)) continue;
    const double back = Read(Written(number)).number();
    ASSERT_EQ(std::bit_cast<std::uint64_t>(back), std::bit_cast<std::uint64_t>(number))
        << Written(number);
  }
}

TEST(ValueCodec, OnlyNumbersThatAFloatGivesBackAreNumbers) {
  const struct {
    const char* json;
    double number;
  } numbers[] = {
      {"-0", 0},
      {"0e99999999999999999999", 0},
      {"1.50", 1.5},
      {"100E-2", 1},
      {"1e+22", 1e22},
      {"0.1", 0.1},
      {"0.30000000000000004", 0.1 + 0.2},
      {"-9007199254740992", -9007199254740992.0},
      {"9007199254740992.0", 9007199254740992.0},
      {"123456789012345680", 123456789012345680.0},
      {"100000000000000000000000", 1e23},
      {"1.7976931348623157e+308", 1.7976931348623157e308},
      {"2.2250738585072014e-308", 2.2250738585072014e-308},
      {"5e-324", 5e-324},
  };
  for (const auto& [json, number] : numbers) {
    const HostValue value = Read(json);
    ASSERT_EQ(value.kind(), HostValue::Kind::number) << json;
    EXPECT_EQ(value.number(), number) << json;
  }
  const std::string long_number = "-" + std::string(400, '7');
  const struct {
    std::string json;
    std::string text;
  } texts[] = {
      {"9007199254740993", "9007199254740993"},
      {"-9007199254740993", "-9007199254740993"},
      {"18446744073709551615", "18446744073709551615"},
      {"12345678901234567890123", "12345678901234567890123"},
      {"0.10000000000000000001", "0,10000000000000000001"},
      {"12345678901234567890.50", "12345678901234567890,50"},
      // One digit stands before the separator where there is an exponent, and the exponent has a
      // sign, or the engine would read another number.
      {"1.2345678901234567890123e+30", "1,2345678901234567890123E+30"},
      {"-1234.5678901234567890123e5", "-1,2345678901234567890123E+8"},
      {"0.0012345678901234567890e-3", "1,2345678901234567890E-6"},
      {"0.12345678901234567890E1", "1,2345678901234567890E+0"},
      {"12345678901234567890e0", "1,2345678901234567890E+19"},
      // Beyond the range of floats, on either side.
      {"1e400", "1E+400"},
      {"-2E+308", "-2E+308"},
      {"1e-400", "1E-400"},
      {"4e-324", "4E-324"},
      {"1e99999999999999999999", "1E+99999999999999999999"},
      {long_number, long_number},
  };
  const Locale_Guard locale(Comma_Locale());
  for (const auto& [json, text] : texts) {
    const HostValue value = Read(json);
    ASSERT_TRUE(value.is_text()) << json;
    EXPECT_EQ(value.text(), text) << json;
  }
}

TEST(ValueCodec, NumbersTooLargeForAFloatLeaveEverythingElseInItsPlace) {
  const HostValue list =
      Read(R"({"list":["\"1e999, 7",1.5,-1e999,{"list":[2,3e999]},"-1e999\\",1e99,1E+310]})");
  EXPECT_EQ(Written(list),
            R"({"list":["\"1e999, 7",1.5,"-1E+999",{"list":[2,"3E+999"]},"-1e999\\",1e+99,)"
            R"("1E+310"]})");
}

TEST(ValueCodec, NumbersThatAreNoneAreAFailure) {
  for (const double number : {std::numeric_limits<double>::infinity(), std::nan("")})
    EXPECT_THROW(Written(number), Run_Time_Failure);
}

TEST(ValueCodec, TextThatIsNoUtf8StaysWellFormed) {
  EXPECT_EQ(Written("1\xE2\x80"), "\"1\xEF\xBF\xBD\"");
}

TEST(ValueCodec, RangesAreWrittenAsTheirValues) {
  EXPECT_EQ(Written(Range_Of_Cells(2, {11, 12, 21, 22})), "{\"array\":[[11,12],[21,22]]}");
}

}  // namespace
}  // namespace quorvex
