// Host values to JSON and back.
#include "batch/value_codec.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "host/run_time_failure.h"
#include "support/cells.h"

namespace quorvex {
namespace {

std::string Written(const HostValue& value) {
  std::string text;
  Append_Json(text, value);
  return text;
}

HostValue Read(const std::string& text) {
  return Value_From_Json(nlohmann::json::parse(text), "value");
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
