// The interface that hosts are bound to, as tests/frame/interface.txt lists it: a line for each
// method, in the order that stays fixed, with its parameters (:kind unless any value is taken, =
// behind one by value, & behind one in and out, brackets around an optional one), the kind of its
// result, its family; then, behind an empty line, the categories of the host's function dialog and
// the macros in each, in the order in which they are registered.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <map>
#include <regex>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "frame/catalogue.h"
#include "frame/rows/row.h"
#include "shell/registration_table.h"
#include "support/text_files.h"

namespace quorvex {
namespace {

using Lines = std::vector<std::string>;

struct Interface_File {
  Lines methods;
  Lines categories;
};

Interface_File Listed_Interface() {
  const Lines lines = Lines_Of(File_Text(source_folder / "tests/frame/interface.txt"));
  const auto between = std::ranges::find(lines, "");
  if (between == lines.end()) return {lines, {}};
  return {{lines.begin(), between}, {between + 1, lines.end()}};
}

std::string Joined(const Lines& parts) {
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
  const std::map<Passing, std::string> marks = {
      {Passing::by_value, "="}, {Passing::by_reference, ""}, {Passing::in_and_out, "&"}};
  const std::string text =
      std::string(parameter.name) + kinds.at(parameter.kind) + marks.at(parameter.passing);
  return parameter.optional ? "[" + text + "]" : text;
}

std::string Listed(const Method& method) {
  const std::map<Result_Kind, std::string> kinds = {{Result_Kind::nothing, "nothing"},
                                                    {Result_Kind::text, "text"},
                                                    {Result_Kind::value, "value"},
                                                    {Result_Kind::boolean, "boolean"},
                                                    {Result_Kind::record, "record"}};
  Lines parameters;
  for (const Parameter& parameter : method.parameters)
    parameters.push_back(Listed_Parameter(parameter));
  return std::string(method.name) + Joined(parameters) + " " + kinds.at(method.result) + " " +
         std::string(method.family);
}

TEST(Interface, IsWhatTheCatalogueHolds) {
  Lines listed;
  for (const Method& method : Catalogue()) listed.push_back(Listed(method));
  EXPECT_EQ(listed, Listed_Interface().methods);
}

// What a type of the class is in the list.
const std::map<std::string, std::string> kinds_of_types = {
    {"HostValue", ""},
    {"NumberText", ":text"},
    {"std::optional<std::string_view>", ":text"},
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

// The methods as the class declares them, without families and marks of what is by value.
Lines Declared_Interface() {
  std::string text = File_Text(source_folder / "src/frame/class/cls_Quorvex.h");
  text = std::regex_replace(text, std::regex("//[^\n]*"), "");
  text = std::regex_replace(text, std::regex("\\s+"), " ");
  const std::regex declaration("(\\w+) (\\w+)\\(([^()]*)\\);");
  const std::regex parameter("(const )?([\\w:]+(?:<[\\w:]+>)?)(&)? (\\w+)( = [^,]+)?(?:, |$)");
  Lines declared;
  const std::sregex_iterator end;
  for (std::sregex_iterator method(text.begin(), text.end(), declaration); method != end;
       ++method) {
    const std::string inner = (*method)[3];
    Lines parameters;
    for (std::sregex_iterator each(inner.begin(), inner.end(), parameter); each != end; ++each) {
      const bool changes = (*each)[3].matched && !(*each)[1].matched;
      const std::string name =
          (*each)[4].str() + kinds_of_types.at((*each)[2]) + (changes ? "&" : "");
      parameters.push_back((*each)[5].matched ? "[" + name + "]" : name);
    }
    declared.push_back((*method)[2].str() + Joined(parameters) + " " +
                       kinds_of_results.at((*method)[1]));
  }
  return declared;
}

TEST(Interface, IsDeclaredInItsOrder) {
  Lines listed;
  const std::regex line("=(?=[,)])");  // by-value marks
  for (const std::string& each : Listed_Interface().methods) {
    const std::string plain = std::regex_replace(each, line, "");
    listed.push_back(plain.substr(0, plain.find(' ', plain.find(')') + 2)));
  }
  EXPECT_EQ(Declared_Interface(), listed);
}

TEST(Interface, IsRegisteredByCategory) {
  Lines listed;
  std::string_view category;
  for (const Registration& row : Registration_Table()) {
    if (row.category != category) listed.push_back(std::string(row.category) + ":");
    listed.back().append(" ").append(row.macro);
    category = row.category;
  }
  EXPECT_EQ(listed, Listed_Interface().categories);
}

/// The length as hosts count it: in words of 16 bits.
std::ptrdiff_t Count_Words(std::string_view utf8) {
  return std::ranges::count_if(utf8, [](char byte) { return (byte & 0xC0) != 0x80; }) +
         std::ranges::count_if(utf8, [](char byte) { return (byte & 0xF8) == 0xF0; });
}

TEST(Interface, IsDescribedInWhatAHostTakesAndTellsThePrecision) {
  const std::set<std::string_view> without_numbers = {"qvxISERROR", "qvxFORMAT", "qvxVERSION",
                                                      "qvxXLA", "More_Information"};
  for (const Registration& row : Registration_Table()) {
    EXPECT_FALSE(row.description.empty()) << row.macro;
    // A host refuses the whole description where it is longer.
    EXPECT_LE(Count_Words(row.description), 255) << row.macro;
    EXPECT_EQ(row.description.find(", with up to 32,767 significant digits of precision.") !=
                  std::string_view::npos,
              !without_numbers.contains(row.macro))
        << row.macro;
  }
}

TEST(Interface, RefusesARowThatContradictsItsMethod) {
  using namespace catalogue;
  constexpr auto row = &Row<&cls_Quorvex::qvxISGREATER>;
  const Parameter a = Operand_Parameter("a", "");
  EXPECT_NO_THROW(row({.name = "f", .parameters = {a, a}}));
  EXPECT_THROW(row({.name = "f", .parameters = {a}}), std::logic_error);
  EXPECT_THROW(row({.name = "f", .parameters = {a, By_Value("b", "")}}), std::logic_error);
}

TEST(Interface, IsFoundByTheNamesThatCellsUse) {
  for (const Method& method : Catalogue())
    EXPECT_EQ(Find_Method(method.worksheet_name), &method) << method.worksheet_name;
}

// Hosts without truth values go by the mark, and users by the word.
TEST(Interface, MarksEveryParameterThatIsTrueOrFalse) {
  for (const Method& method : Catalogue()) {
    for (const Parameter& parameter : method.parameters) {
      const bool is_told = parameter.help.find("TRUE") != std::string_view::npos ||
                           parameter.name == "preserve_decimal_place";
      EXPECT_EQ(parameter.is_truth_value, is_told) << method.name << ", " << parameter.name;
    }
  }
}

}  // namespace
}  // namespace quorvex
