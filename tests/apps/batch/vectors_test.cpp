// Replays the golden cases, in this process and through the tool.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <utility>
#include <vector>

#include "apps/cli/run_tool.h"
#include "batch/answer.h"
#include "host/platform.h"

namespace quorvex {
namespace {

namespace fs = std::filesystem;
// Keeps the order of fields, which is part of an answer.
using Json = nlohmann::ordered_json;

const fs::path vectors_folder = fs::path(QUORVEX_SOURCE) / "tests" / "vectors";

std::vector<fs::path> Vector_Files() {
  std::vector<fs::path> files;
  for (const auto& entry : fs::recursive_directory_iterator(vectors_folder)) {
    if (entry.path().extension() == ".jsonl") files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  return files;
}

// The locale of a folder's cases stands in its locale.json.
Locale Locale_Of(const fs::path& file) {
  Locale locale;
  const std::string text = File_Text(file.parent_path() / "locale.json");
  if (text.empty()) return locale;
  const Json settings = Json::parse(text);
  locale.decimal_separator = settings.at("decimal");
  locale.thousands_separator = settings.at("thousands");
  locale.currency_symbol = settings.at("currency");
  locale.currency_side =
      settings.at("currency_side") == "after" ? Currency_Side::after : Currency_Side::before;
  return locale;
}

// A failure may be expected by its number alone.
bool Agrees(const Json& expected, const Json& answer) {
  if (!expected.contains("number") || expected.contains("failure")) return expected == answer;
  return answer.contains("failure") && expected.at("number") == answer.at("number");
}

void Expect_Answer(const std::string& request, const std::string& answer,
                   const std::string& place) {
  const Json parsed_request = Json::parse(request, nullptr, false);
  ASSERT_FALSE(parsed_request.is_discarded()) << place << ": no JSON";
  const auto expected = parsed_request.find("expect");
  ASSERT_NE(expected, parsed_request.end()) << place << ": nothing is expected";
  Json parsed_answer = Json::parse(answer, nullptr, false);
  ASSERT_FALSE(parsed_answer.is_discarded()) << place << ": the answer is no JSON: " << answer;
  parsed_answer.erase("id");
  EXPECT_TRUE(Agrees(*expected, parsed_answer))
      << place << ": " << request.substr(0, 500) << "\n  answer: " << answer.substr(0, 500);
}

class Vectors : public testing::TestWithParam<fs::path> {
 protected:
  std::vector<std::string> requests() const { return Lines_Of(File_Text(GetParam())); }

  std::string place(std::size_t index) const {
    return fs::relative(GetParam(), QUORVEX_SOURCE).string() + ":" + std::to_string(index + 1);
  }
};

TEST_P(Vectors, HoldInThisProcess) {
  const auto locale = std::exchange(Current_Platform().locale, Fixed_Locale(Locale_Of(GetParam())));
  Answerer answerer;
  const auto lines = requests();
  EXPECT_FALSE(lines.empty());
  for (std::size_t i = 0; i < lines.size(); ++i) {
    std::string answer;
    answerer.append_answer(answer, lines[i]);
    Expect_Answer(lines[i], answer, place(i));
  }
  Current_Platform().locale = locale;
}

TEST_P(Vectors, HoldThroughTheTool) {
  const Locale locale = Locale_Of(GetParam());
  const Tool_Run run =
      Run_Tool({"batch", "--decimal", locale.decimal_separator, "--thousands",
                locale.thousands_separator, "--currency", locale.currency_symbol, "--currency-side",
                locale.currency_side == Currency_Side::after ? "after" : "before"},
               File_Text(GetParam()));
  EXPECT_EQ(run.exit_code, 0) << run.errors;
  const auto lines = requests();
  const auto answers = Lines_Of(run.output);
  ASSERT_EQ(answers.size(), lines.size());
  for (std::size_t i = 0; i < lines.size(); ++i) Expect_Answer(lines[i], answers[i], place(i));
}

std::string Case_Name(const testing::TestParamInfo<fs::path>& info) {
  std::string name = fs::relative(info.param, vectors_folder).replace_extension().string();
  for (char& character : name)
    if (std::isalnum(static_cast<unsigned char>(character)) == 0) character = '_';
  return name;
}

INSTANTIATE_TEST_SUITE_P(Files, Vectors, testing::ValuesIn(Vector_Files()), Case_Name);

TEST(VectorFiles, AreThere) {
  EXPECT_FALSE(Vector_Files().empty());
}

TEST(VectorFiles, WrongExpectationsAreNoticed) {
  const Json answer = Json::parse(R"({"failure":"why","number":13})");
  EXPECT_TRUE(Agrees(Json::parse(R"({"number":13})"), answer));
  EXPECT_TRUE(Agrees(Json::parse(R"({"failure":"why","number":13})"), answer));
  EXPECT_FALSE(Agrees(Json::parse(R"({"number":18})"), answer));
  EXPECT_FALSE(Agrees(Json::parse(R"({"failure":"else","number":13})"), answer));
  EXPECT_FALSE(Agrees(Json::parse(R"({"number":13})"), Json::parse(R"({"value":13})")));
  EXPECT_FALSE(Agrees(Json::parse(R"({"value":"1"})"), Json::parse(R"({"value":1})")));
}

}  // namespace
}  // namespace quorvex
