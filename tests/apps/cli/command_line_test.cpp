// The tool as its users meet it: output, messages and exit codes.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "apps/cli/run_tool.h"

namespace quorvex {
namespace {

using Words = std::vector<std::string>;

struct Tool_Case {
  Words arguments;
  std::string input;
  std::string output;
  std::string errors;  // some words of it; none at all if empty
  int exit_code;
};

void Expect(const Tool_Case& each) {
  const Tool_Run run = Run_Tool(each.arguments, each.input);
  std::string shown = "quorvex";
  for (const std::string& word : each.arguments) shown += " " + word;
  EXPECT_EQ(run.output.substr(0, 1000), each.output) << shown;
  EXPECT_EQ(run.exit_code, each.exit_code) << shown << "\n" << run.errors;
  if (each.errors.empty()) {
    EXPECT_EQ(run.errors, "") << shown;
  } else {
    EXPECT_NE(run.errors.find(each.errors), std::string::npos) << shown << "\n" << run.errors;
  }
}

TEST(CommandLine, CalculatesFormulas) {
  const std::vector<Tool_Case> cases = {
      {{"qvxADD(\"12345678901234567890.5\", 1.25)"}, "", "12345678901234567891.75\n", "", 0},
      {{"=qvxadd(1,2)", "3", "TRUE"}, "", "3\n3\nTRUE\n", "", 0},
      {{"12345678901234567890.123"}, "", "12345678901234567890.123\n", "", 0},
      {{"{1,22;333,4}"}, "", "  1  22\n333   4\n", "", 0},
      {{"-"}, "1\n\n# a note\n#\nqvxADD(1,\r\n#N/A\n-2", "1\n#N/A\n-2\n", "line 5: ", 2},
      {{}, "qvxADD(1,1)\n", "2\n", "", 0},
      {{"1", "-", "3"}, "2\n", "1\n2\n3\n", "", 0},
      // Operators, choice and a shorter limit.
      {{"-d", "5", "100*1.05^30", "IF(1<2,\"less\",1/0)"}, "", "432.1942\nless\n", "", 0},
      {{"-d50", "1/7"}, "", "0.142857142857142857142857142857142857142857142857143\n", "", 0},
      {{"MAX(1,2)"}, "", "", "use qvxMAX", 2},
      // What begins with a minus: a formula if it can be no option.
      {{"-5"}, "", "-5\n", "", 0},
      {{"-qvxADD(1,2)"}, "", "-3\n", "", 0},
      {{"-.5", "-\"7\""}, "", "-0.5\n-7\n", "", 0},
      {{"--digits", "3", "--", "-qvxADD(1,2.345)"}, "", "-3.345\n", "", 0},
      {{"-q"}, "", "", "Write -- before a formula", 2},
      // Errors as results.
      {{"qvxADD(\"50%\",1)"}, "", "#VALUE!\n", "note: number1 of qvxADD: \"50%\" is no number", 1},
      {{"--quiet", "qvxADD(\"50%\",1)"}, "", "#VALUE!\n", "", 1},
      {{"-"}, "1\n1/0\n", "1\n#DIV/0!\n", "note: line 2: The divisor is 0.", 1},
      {{"qvxMOD(7,0)"}, "", "DIV/0!\n", "divides by 0", 1},
      {{"#N/A"}, "", "#N/A\n", "", 1},
      {{"\"#VALUE\""}, "", "#VALUE\n", "", 0},
      {{"qvxSIGN({1,2})", "1"}, "", "1\n", "error: ", 1},
      {{"-d", "2147483647", "1/3"}, "", "#VALUE!\n", "can't have 2147483647 significant", 1},
      {{"{1,\"a\"}*2", "1"}, "", "2  #VALUE!\n1\n", "\"a\" is no number", 1},
      {{"-"},
       "\xEF\xBB\xBF"
       "1+1\n",
       "2\n",
       "",
       0},
      {{"qvxSIGN({1,2})", "qvxADD(", "1"}, "", "1\n", "error: ", 2},
      {{"A1"}, "", "", "A1", 2},
      {{"qvxADDD(1,2)"}, "", "", "did you mean qvxADD?\n  qvxADDD(1,2)\n  ^", 2},
      {{"function"}, "", "", "The commands are sheet, functions, batch, settings", 2},
      {{"help"}, "", "", "\"quorvex --help\" tells", 2},
      {{"version"}, "", "", "\"quorvex --version\" tells", 2},
      {{"\xFF(1)"}, "", "", "error: ", 2},
  };
  for (const Tool_Case& each : cases) Expect(each);
}

TEST(CommandLine, PrintsWhatNoWorksheetIsWideEnoughFor) {
  std::string array = "{1";
  for (int i = 0; i < 17000; ++i) array += ",1";
  const Tool_Run run = Run_Tool({"-"}, array + "}\n1+1\n");
  EXPECT_EQ(run.exit_code, 0) << run.errors;
  EXPECT_EQ(run.output.size(), 3U * 17000 + 4) << run.errors;
}

TEST(CommandLine, FormulasUseTheCellsOfASheet) {
  const Temporary_Folder folder;
  const std::string file = folder.write("prices.csv", "item,price\ntea,2.5\nmilk,=B2*2\n");
  Expect({{"--sheet", file, "qvxSUM2(B2:B3)", "B3&\" pcs\""}, "", "7.5\n5 pcs\n", "", 0});
  Expect({{"--sheet", file, "-"}, "B2:B3*2\n", " 5\n10\n", "", 0});
  Expect({{"--sheet", file, "rate"}, "", "", "there is no name \"rate\"", 2});
  Expect({{"--sheet", file, "Other!A1"}, "", "", "no worksheet \"Other\"", 2});
  const std::string failed = folder.write("failed.csv", "=1/0\n");
  Expect({{"--sheet", failed, "1"}, "", "1\n", "A1: The divisor is 0.", 1});
}

TEST(CommandLine, TakesLocaleAndLimits) {
  const std::string euros = "qvxADD(\"1.234,5\",1,,TRUE,TRUE)";
  const std::vector<Tool_Case> cases = {
      {{"--decimal", ",", "--thousands", ".", "--currency", " \xE2\x82\xAC", "--currency-side",
        "after", euros},
       "",
       "1.235,5 \xE2\x82\xAC\n",
       "",
       0},
      {{"--decimal", ",", "--thousands", ".", "0.5"}, "", "0,5\n", "", 0},
      {{"--decimal", "--", "--thousands", "-", "1"}, "", "", "error: ", 2},
      {{"--decimal", ",", "1,5/2"}, "", "0,75\n", "", 0},
      {{"--thousands", ".", "1,5/2"}, "", "0,75\n", "", 0},
      {{"--decimal", ",", "1.234,5+1"}, "", "", "thousands without a mark", 2},
      {{"--decimal", ",", "--thousands", ".", "qvxADD(1,5;A1)"}, "", "", "A1 refers", 2},
      {{"--decimal", ",", "--thousands", ".", "1,5+1"}, "", "2,5\n", "", 0},
      {{"--memory", "10M", "qvxADD(\"1E+99999999\",1)"}, "", "#VALUE!\n", "not enough memory", 1},
      {{"--memory", "much", "1"}, "", "", "a size like 500M", 2},
      {{"--locale", "xx_XX", "1"}, "", "", "no locale \"xx_XX\"", 2},
      {{"--locale", "C", "--decimal", ",", "1"}, "", "", "give it, or the parts", 2},
      {{"--currency-side", "left", "1"}, "", "", "before or after is needed, not left", 2},
      {{"--digits", "20", "qvxDEFAULTMAXSD()"}, "", "20\n", "", 0},
      {{"--digits", "0", "1"}, "", "", "a whole number from 1 to 2147483648", 2},
      {{"--digits", "2.5", "1"}, "", "", "a whole number", 2},
      {{"-d", "-1", "1"}, "", "", "not -1", 2},
      {{"--timeout", "-1", "1"}, "", "", "a number of seconds", 2},
      {{"--nonsense"}, "", "", "--nonsense", 2},
      {{"1", "batch"}, "", "", "don't go together", 2},
  };
  for (const Tool_Case& each : cases) Expect(each);
}

TEST(CommandLine, HelpNamesEveryCommand) {
  const Tool_Run help = Run_Tool({"--help"});
  EXPECT_EQ(help.exit_code, 0);
  for (const char* word :
       {"sheet", "functions", "batch", "settings", "about", "--timeout", "Examples:", "Exit code"})
    EXPECT_NE(help.output.find(word), std::string::npos) << word;
  for (const char* command : {"sheet", "functions", "batch", "settings", "about"}) {
    const Tool_Run of_command = Run_Tool({command, "--help"});
    EXPECT_EQ(of_command.exit_code, 0);
    EXPECT_NE(of_command.output.find(command), std::string::npos) << of_command.output;
  }
  EXPECT_EQ(Run_Tool({"--version"}).output.find("quorvex "), 0U);
}

TEST(CommandLine, ExplainsFunctions) {
  const Tool_Run list = Run_Tool({"functions"});
  EXPECT_EQ(list.exit_code, 0);
  EXPECT_NE(list.output.find("\n  qvxSUBTRACT "), std::string::npos) << list.output;

  const Tool_Run one = Run_Tool({"functions", "qvxadd"});
  EXPECT_EQ(one.exit_code, 0);
  for (const char* words : {"qvxADD(number1, number2, [format_negative]", "  format_currency ",
                            "Returns\n  The sum", "Tokens and failures\n  \"#VALUE!\" for",
                            "Example\n  qvxADD(\"12345678901234567890.5\", 1.25)\n"
                            "  12345678901234567891.75\n"})
    EXPECT_NE(one.output.find(words), std::string::npos) << one.output;

  Expect({{"functions", "qvxADDD"}, "", "", "did you mean qvxADD?", 2});
  Expect({{"functions", "zzzzzzzzzz"}, "", "", "there is no function \"zzzzzzzzzz\"\n", 2});
  Expect({{"functions", "+"}, "", "", "\"+\" is no function but an operator", 2});
  Expect({{"functions", "sum", "of", "zebras"}, "", "", "all of the words \"sum of zebras\"", 2});
}

TEST(CommandLine, ReferencePageIsUpToDate) {
  EXPECT_EQ(Run_Tool({"functions", "--markdown"}).output,
            File_Text(std::string(QUORVEX_SOURCE) + "/docs/functions.md"))
      << "write it anew: quorvex functions --markdown > docs/functions.md";
}

TEST(CommandLine, WritesNoColourIntoFiles) {
  EXPECT_EQ(Run_Tool({"qvxADD("}, "", {"TERM=xterm"}).errors.find('\033'), std::string::npos);
}

TEST(CommandLine, FullDiskIsAnError) {
  const Temporary_Folder folder;
  const std::string command = "XDG_CONFIG_HOME=" + folder.path().string() + " " +
                              std::string(QUORVEX_TOOL) + " 1 > /dev/full 2> /dev/null";
  EXPECT_EQ(std::system(command.c_str()) >> 8, 1);
}

TEST(CommandLine, ReaderThatLeavesIsNoError) {
  const Temporary_Folder folder;
  std::string formulas;
  for (int i = 0; i < 50000; ++i) formulas += "qvxADD(1,1)\n";
  const std::string input = folder.write("formulas", formulas);
  const std::string errors = (folder.path() / "errors").string();
  const std::string command =
      "bash -c 'set -o pipefail; XDG_CONFIG_HOME=" + folder.path().string() + " " +
      std::string(QUORVEX_TOOL) + " - < " + input + " 2> " + errors + " | head -n 1 > /dev/null'";
  EXPECT_EQ(std::system(command.c_str()), 0);
  EXPECT_EQ(File_Text(errors), "");
}

}  // namespace
}  // namespace quorvex
