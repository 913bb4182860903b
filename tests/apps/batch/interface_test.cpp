// The interface that hosts are bound to: tests/frame/interface.txt lists it in the order that stays
// fixed, a line each: the method, its parameters (:kind unless any value is taken, = behind one by
// value, brackets around an optional one), the kind of its result, its family.
#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <nlohmann/json.hpp>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include "apps/cli/run_tool.h"
#include "batch/answer.h"
#include "frame/catalogue.h"

namespace quorvex {
namespace {

namespace fs = std::filesystem;

const fs::path source = QUORVEX_SOURCE;

std::vector<std::string> Lines_Of(const fs::path& file) {
  std::vector<std::string> lines;
  std::istringstream stream(File_Text(source / file));
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

std::vector<std::string> Listed_Interface() {
  return Lines_Of("tests/frame/interface.txt");
}

std::string Joined(const std::vector<std::string>& parts) {
  std::string joined;
  for (const std::string& part : parts) joined += (joined.empty() ? "" : ", ") + part;
  return "(" + joined + ")";
}

std::string Listed_Parameter(const Parameter& parameter) {
  const std::map<Parameter_Kind, std::string> kinds = {
      {Parameter_Kind::value, ""},           {Parameter_Kind::text, ":text"},
      {Parameter_Kind::number, ":number"},   {Parameter_Kind::integer, ":integer"},
      {Parameter_Kind::boolean, ":boolean"}, {Parameter_Kind::list, ":list"},
      {Parameter_Kind::object, ":object"}};
  const std::string text =
      std::string(parameter.name) + kinds.at(parameter.kind) + (parameter.by_value ? "=" : "");
  return parameter.optional ? "[" + text + "]" : text;
}

std::string Listed(const Method& method) {
  const std::map<Result_Kind, std::string> kinds = {{Result_Kind::nothing, "nothing"},
                                                    {Result_Kind::text, "text"},
                                                    {Result_Kind::value, "value"},
                                                    {Result_Kind::boolean, "boolean"},
                                                    {Result_Kind::record, "record"}};
  std::vector<std::string> parameters;
  for (const Parameter& parameter : method.parameters)
    parameters.push_back(Listed_Parameter(parameter));
  return std::string(method.name) + Joined(parameters) + " " + kinds.at(method.result) + " " +
         std::string(method.family);
}

TEST(Interface, IsWhatTheCatalogueHolds) {
  std::vector<std::string> listed;
  for (const Method& method : Catalogue()) listed.push_back(Listed(method));
  EXPECT_EQ(listed, Listed_Interface());
}

// What a type of the class is in the list.
const std::map<std::string, std::string> kinds_of_types = {
    {"HostValue", ""},
    {"NumberText", ":text"},
    {"std::optional<NumberText>", ":text"},
    {"std::optional<double>", ":number"},
    {"std::int32_t", ":integer"},
    {"bool", ":boolean"},
    {"List", ":list"},
    {"std::shared_ptr<Host_Application>", ":object"},
};

const std::map<std::string, std::string> kinds_of_results = {
    {"void", "nothing"},
    {"NumberText", "text"},
    {"HostValue", "value"},
    {"bool", "boolean"},
    {"type_Restrictionator", "record"},
    {"type_Division_Recip", "record"},
};

// The methods as the class declares them, without families and marks of values.
std::vector<std::string> Declared_Interface() {
  std::string text = File_Text(source / "src/frame/cls_Quorvex.h");
  text = std::regex_replace(text, std::regex("//[^\n]*"), "");
  text = std::regex_replace(text, std::regex("\\s+"), " ");
  const std::regex declaration("(\\w+) (\\w+)\\(([^()]*)\\);");
  const std::regex parameter("(?:const )?([\\w:]+(?:<\\w+>)?)&? (\\w+)( = [^,]+)?(?:, |$)");
  std::vector<std::string> declared;
  const std::sregex_iterator end;
  for (std::sregex_iterator method(text.begin(), text.end(), declaration); method != end;
       ++method) {
    const std::string inner = (*method)[3];
    std::vector<std::string> parameters;
    for (std::sregex_iterator each(inner.begin(), inner.end(), parameter); each != end; ++each) {
      const std::string name = (*each)[2].str() + kinds_of_types.at((*each)[1]);
      parameters.push_back((*each)[3].matched ? "[" + name + "]" : name);
    }
    declared.push_back((*method)[2].str() + Joined(parameters) + " " +
                       kinds_of_results.at((*method)[1]));
  }
  return declared;
}

TEST(Interface, IsDeclaredInItsOrder) {
  std::vector<std::string> listed;
  const std::regex line("=(?=[,)])");  // by-value marks
  for (const std::string& each : Listed_Interface()) {
    const std::string plain = std::regex_replace(each, line, "");
    listed.push_back(plain.substr(0, plain.find(' ', plain.find(')') + 2)));
  }
  EXPECT_EQ(Declared_Interface(), listed);
}

// The vectors hold expected answers, which are compared with the others; here it matters that no
// method is left out, and that each is called by the names of all its parameters.
TEST(Interface, IsCalledWholeThroughTheBatchProtocol) {
  std::map<std::string, nlohmann::json> called;
  for (const std::string& line : Lines_Of("tests/vectors/interface.jsonl")) {
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
