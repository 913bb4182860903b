// Every method of the catalogue is called through the batch protocol.
#include <gtest/gtest.h>

#include <map>
#include <nlohmann/json.hpp>
#include <regex>
#include <string>

#include "batch/answer.h"
#include "frame/catalogue.h"
#include "support/text_files.h"

namespace quorvex {
namespace {

// The vectors hold expected answers, which are compared with the others; here it matters that no
// method is left out, and that each is called by the names of all its parameters.
TEST(Interface, IsCalledWholeThroughTheBatchProtocol) {
  std::map<std::string, nlohmann::json> called;
  for (const std::string& line :
       Lines_Of(File_Text(source_folder / "tests/vectors/interface.jsonl"))) {
    const auto request = nlohmann::json::parse(line);
    called[request.at("call")] = request.value("named", nlohmann::json::object());
  }
  // Its answer depends on where the library stands.
  called["qvxHelpfilePath"] = nlohmann::json::object();
  std::string answer;
  Answerer().append_answer(answer, R"({"call":"qvxHelpfilePath","named":{}})");
  EXPECT_TRUE(std::regex_match(answer, std::regex(R"(\{"value":".*/[^/"]+"\})"))) << answer;
  for (const Method& method : Catalogue()) {
    const auto found = called.find(std::string(method.name));
    ASSERT_NE(found, called.end()) << method.name << " is never called";
    EXPECT_EQ(found->second.size(), method.parameters.size()) << method.name;
    for (const Parameter& parameter : method.parameters)
      EXPECT_TRUE(found->second.contains(parameter.name)) << method.name << " " << parameter.name;
  }
}

}  // namespace
}  // namespace quorvex
