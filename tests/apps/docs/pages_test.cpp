// The pages for users: every example on them is calculated, and every function they name is there.
#include <gtest/gtest.h>

#include <cstddef>
#include <regex>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "apps/cli/run_tool.h"
#include "cli/help/example_result.h"
#include "formula/reference.h"
#include "frame/catalogue.h"
#include "sheet/csv.h"
#include "sheet/recalculate.h"
#include "sheet/workbook.h"

namespace quorvex {
namespace {

struct Page {
  std::string name;
  std::size_t least_examples;  // so that a page that can't be read does not pass
};

const std::vector<Page> pages = {
    {"README.md", 10}, {"docs/know-before-you-rely.md", 100}, {"docs/everyday.md", 10}};

std::string Text_Of(const std::string& page) {
  return File_Text(std::string(QUORVEX_SOURCE) + "/" + page);
}

struct Example {
  std::size_t line;
  std::string formula;
  std::string result;
};

// In a block that begins with ```qvx a formula stands at the margin, and its result indented below.
std::vector<Example> Examples_Of(const std::string& page) {
  constexpr std::string_view indent = "    ";
  std::vector<Example> examples;
  std::istringstream lines(Text_Of(page));
  bool inside = false;
  std::size_t number = 0;
  for (std::string line; std::getline(lines, line);) {
    ++number;
    if (line.starts_with("```")) {
      inside = line == "```qvx";
    } else if (inside && line.starts_with(indent) && !examples.empty()) {
      examples.back().result += line.substr(indent.size()) + "\n";
    } else if (inside) {
      examples.push_back({number, line, ""});
    }
  }
  return examples;
}

TEST(Pages, ExamplesGiveWhatTheySay) {
  cls_Quorvex engine;
  for (const Page& page : pages) {
    const auto examples = Examples_Of(page.name);
    EXPECT_GE(examples.size(), page.least_examples) << page.name;
    for (const Example& example : examples) {
      EXPECT_EQ(Example_Result(engine, example.formula), example.result)
          << page.name << ":" << example.line << ": " << example.formula;
    }
  }
}

TEST(Pages, NameOnlyFunctionsThatAreThere) {
  const std::regex function("qvx[A-Za-z0-9]+");
  for (const char* page : {"README.md", "docs/know-before-you-rely.md", "docs/how-it-works.md",
                           "docs/contributing.md", "bench/README.md"}) {
    const std::string text = Text_Of(page);
    for (std::sregex_iterator found(text.begin(), text.end(), function), end; found != end; ++found)
      EXPECT_NE(Find_Method(found->str()), nullptr) << page << ": " << found->str();
  }
}

std::string In_Markup(const std::string& text) {
  std::string markup;
  for (const char character : text) {
    if (character == '&') {
      markup += "&amp;";
    } else if (character == '"') {
      markup += "&quot;";
    } else if (character == '\'') {
      markup += "&#x27;";
    } else {
      markup += character;
    }
  }
  return markup;
}

TEST(Pages, PictureShowsWhatTheSheetGives) {
  const std::string picture = Text_Of("docs/sheet.svg");
  Workbook book;
  Worksheet& sheet = book.add("Sheet1");
  Load_Csv(std::string(QUORVEX_SOURCE) + "/examples/at-a-glance.csv", sheet);
  cls_Quorvex engine;
  const Example_Settings settings;
  Recalculate_All(book, engine);
  std::size_t formulas = 0;
  for (const auto& [address, cell] : sheet.cells()) {
    EXPECT_NE(picture.find(">" + In_Markup(Shown_Value(cell)) + "</text>"), std::string::npos)
        << "draw it anew with docs/draw_sheet.py: " << Address_Text(address) << " is "
        << Shown_Value(cell);
    formulas += picture.find(">" + In_Markup(cell.typed) + "</text>") != std::string::npos &&
                cell.typed.starts_with("=");
  }
  EXPECT_EQ(formulas, 1U);
}

}  // namespace
}  // namespace quorvex
