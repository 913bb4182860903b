// Comma-separated values in and out.
#include "sheet/csv.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>

#include "support/environment.h"
#include "support/locales.h"

namespace quorvex {
namespace {

namespace fs = std::filesystem;

std::string Written(const Worksheet& sheet, Csv_Form form) {
  std::ostringstream out;
  Write_Csv(out, sheet, form);
  return out.str();
}

std::string Contents(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

TEST(Csv, ComesOutAsItWentIn) {
  const Locale_Guard locale(Point_Locale());
  struct {
    const char* in;
    const char* out;
  } const cases[] = {
      {"", ""},
      {"a,b\nc,d", "a,b\nc,d\n"},
      {"a,b\r\nc,d\r\n", "a,b\nc,d\n"},
      {"\xEF\xBB\xBF"
       "a",
       "a\n"},
      {"a\n\n,b\n", "a,\n,\n,b\n"},
      {"\"a,b\",\"say \"\"x\"\"\"\n\"two\nlines\"\n",
       "\"a,b\",\"say \"\"x\"\"\"\n\"two\nlines\",\n"},
      {"\"\",x", ",x\n"},
      {"12345678901234567890.50,1.50,true\n00123,1E5,",
       "12345678901234567890.50,1.50,true\n00123,1E5,\n"},
      {"# a note, with \"marks\n1", "\"# a note, with \"\"marks\"\n1\n"},
      {"\"# items\",price\n#5,#N/A", "\"# items\",price\n\"#5\",\"#N/A\"\n"},
      {"\" a\",b ", "\" a\",\"b \"\n"},
      {"'=x,ä€", "'=x,ä€\n"},
      {"@x,+1,-a,--1,-5,(7),-$5,'-5", "'@x,'+1,'-a,'--1,-5,(7),-$5,'-5\n"},
      {"a;b\n1,5;2\n", "a;b\n1,5;2\n"},
      {"a\tb\n1;2\t3,4\n", "a\tb\n1;2\t3,4\n"},
      {"sep=;\na,b\n", "sep=;\n\"a,b\"\n"},
      {"\"a;b\"\n", "\"a;b\"\n"},
      {"\r\r\nx", "\n\nx\n"},
  };
  for (const auto& [in, out] : cases) {
    Worksheet sheet("Sheet1");
    const Csv_Form form = Read_Csv(in, "test.csv", sheet);
    EXPECT_EQ(Written(sheet, form), out) << in;
  }
}

TEST(Csv, KeepsEveryTypedDigitAndEveryFormula) {
  const Locale_Guard locale(Point_Locale());
  Worksheet sheet("Sheet1");
  Read_Csv("\"=qvxADD(A2,\"\"1\"\")\"\n3.14159265358979323846264338327950288\n", "test.csv", sheet);
  EXPECT_EQ(sheet.typed({1, 1}), "=qvxADD(A2,\"1\")");
  EXPECT_TRUE(sheet.value({2, 1}).is_text());
  EXPECT_EQ(sheet.shown({2, 1}), "3.14159265358979323846264338327950288");
}

TEST(Csv, NamesThePlaceOfABrokenQuote) {
  struct {
    std::string text;
    const char* message;
  } const cases[] = {
      {"a,b\nä,\"open", "t.csv, line 2, column 3: this quote mark is never closed"},
      {"\"a\"b,c", "t.csv, line 1, column 4: text behind a closing quote mark"},
      {"a,b\n1,=f(A2,\"5\")\n", "t.csv, line 2, column 3: a formula with separators"},
      {"\"two\nlines\",=f(\"x", "t.csv, line 2, column 11: a quote mark inside a cell"},
      {std::string("a\0b", 3), "t.csv is a binary file"},
      {"a\n\xFF", "t.csv is not UTF-8 text: byte 3"},
      {std::string(maximum_columns, ',') + "x", "line 1, column 16385: a worksheet has no more"},
      {std::string(maximum_rows, '\n') + "x", "line 1048577, column 1: a worksheet has no more"},
  };
  for (const auto& [text, message] : cases) {
    Worksheet sheet("Sheet1");
    try {
      Read_Csv(text, "t.csv", sheet);
      ADD_FAILURE() << message;
    } catch (const File_Error& error) {
      EXPECT_NE(std::string(error.what()).find(message), std::string::npos) << error.what();
    }
  }
}

TEST(Csv, TellsSeparatorsApart) {
  struct {
    const char* text;
    char separator;
  } const cases[] = {
      {"a,b\n1;2,3\n", ','},
      {"a;b;c\n1,5;2,5;3,5\n", ';'},
      {"name;price\ntea;1,5\n", ';'},
      {"1,5;2,5\n3,5;4,5\n", ';'},
      {"a\tb\n1,5\t2;5\n", '\t'},
      {"Prices of May\n# a, b, c\n\nitem;price\ntea;1,5\n", ';'},
      {"Account 1, savings\n\na;b;c\n1;2;=A4*2\n", ';'},
      {"total,=qvxADD(B2;B3)\nx,{1;2;3}\n", ','},
      {"\"a;b\",c\n\"d;e\",f\n", ','},
      {"a,b;c\n", ','},
      {"1\n2\n", ','},
      {"", ','},
      {"SEP=|\r\na|b\n", '|'},
  };
  const Locale_Guard locale(Point_Locale());
  for (const auto& [text, separator] : cases) EXPECT_EQ(Form_Of(text).separator, separator) << text;
}

TEST(Csv, TellsToQuoteFormulasThatSeparatorsCut) {
  const Locale_Guard locale(Point_Locale());
  Worksheet sheet("Sheet1");
  Read_Csv("a,b\n1,=qvxADD(A2,2)\n1,=A2,=qvxADD(A2\n", "t.csv", sheet);
  ASSERT_NE(sheet.problem({2, 2}), nullptr);
  EXPECT_NE(sheet.problem({2, 2})->message.find("put the formula in quote marks"),
            std::string::npos);
  EXPECT_EQ(sheet.problem({3, 2}), nullptr);
  EXPECT_EQ(sheet.problem({3, 3})->message.find("quote marks"), std::string::npos);
}

class CsvFiles : public testing::Test {
 protected:
  std::string complaint(const fs::path& file, bool saving = false) {
    try {
      if (saving) {
        Save_Csv(file, sheet);
      } else {
        Load_Csv(file, sheet);
      }
    } catch (const File_Error& error) {
      return error.what();
    }
    return "";
  }

  const Temporary_Folder temporary;
  const fs::path& folder = temporary.path();
  Worksheet sheet{"Sheet1"};
};

TEST_F(CsvFiles, AreReplacedAsAWhole) {
  const fs::path file = folder / "out.csv";
  std::ofstream(file) << "much longer than what comes";
  fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write);
  fs::create_symlink("out.csv", folder / "link.csv");
  sheet.set({1, 2}, "5");
  Save_Csv(folder / "link.csv", sheet);
  EXPECT_EQ(Contents(file), ",5\n");
  EXPECT_TRUE(fs::is_symlink(folder / "link.csv"));
  EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_EQ(std::distance(fs::directory_iterator(folder), {}), 2) << "nothing left lying about";
  Worksheet again("Again");
  Load_Csv(file, again);
  EXPECT_EQ(again.shown({1, 2}), "5");
}

TEST_F(CsvFiles, HoldFormulasIfWanted) {
  sheet.set({1, 1}, "=1+1");
  sheet.set({1, 2}, "'=x");
  Save_Csv(folder / "out.csv", sheet, {.separator = ';'}, Csv_Content::formulas);
  EXPECT_EQ(Contents(folder / "out.csv"), "=1+1;'=x\n");
}

TEST_F(CsvFiles, ThatCannotBeUsedAreRefusedInOneLine) {
  std::ofstream(folder / "binary") << std::string(
      "\x7F"
      "ELF\0\0",
      6);
  EXPECT_EQ(complaint(folder / "none.csv"),
            (folder / "none.csv").string() + ": there is no such file.");
  EXPECT_EQ(complaint(folder), folder.string() + " is a directory, not a file.");
  EXPECT_EQ(complaint(folder / "binary"),
            (folder / "binary").string() + " is a binary file, not comma-separated text.");
  EXPECT_EQ(complaint(folder, true), folder.string() + " is a directory, not a file.");
  EXPECT_NE(complaint(folder / "none" / "out.csv", true).find("out.csv"), std::string::npos);
  EXPECT_EQ(std::distance(fs::directory_iterator(folder), {}), 1);
}

}  // namespace
}  // namespace quorvex
