// The code of the add-in workbook, which is kept as a file for those who build the workbook.
#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <string>

#include "generate/parts.h"
#include "shell/registration_table.h"
#include "support/text_files.h"

namespace quorvex {
namespace {

std::string Written_Module() {
  std::ostringstream text;
  windows::Write_Workbook_Module(text);
  return text.str();
}

TEST(WorkbookModule, IsWhatTheCatalogueMakesOfIt) {
  EXPECT_EQ(File_Text(source_folder / "hosts/windows/workbook/Quorvex.bas"), Written_Module())
      << "quorvex_windows_tables module > hosts/windows/workbook/Quorvex.bas";
}

TEST(WorkbookModule, HasAFunctionForEachMacroThatTheHostIsToldOf) {
  const std::string start = "Public Function ";
  std::set<std::string> functions;
  for (const std::string& line : Lines_Of(Written_Module())) {
    if (line.starts_with(start))
      functions.insert(line.substr(start.size(), line.find('(') - start.size()));
    EXPECT_LT(line.size(), 200u) << line;
  }
  std::set<std::string> macros;
  for (const Registration& row : Registration_Table()) macros.emplace(row.macro);
  EXPECT_EQ(functions, macros);
}

}  // namespace
}  // namespace quorvex
