// The prompt, driven through a terminal of its own.
#include "cli/prompt.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "apps/cli/run_tool.h"
#include "apps/cli/terminal.h"

namespace quorvex {
namespace {

TEST(Prompt, CompletesNames) {
  struct Completion_Case {
    const char* typed;
    const char* replacement;
    std::size_t candidates;
  };
  const std::vector<Completion_Case> cases = {
      {"qvxad", "qvxADD(", 0},
      {"=qvxADD(QVXSUB", "qvxSUBTRACT(", 0},
      {"help qvxad", "qvxADD", 0},
      {"qvxis", "qvxIS", 10},
      {"qvxisg", "qvxISGREATER", 2},
      {"fun", "functions", 0},
      {"qvxADD(fun", "", 0},
      {"nothing", "", 0},
      {"functions qvxad", "qvxADD", 0},
      {"settings m", "max-sd ", 0},
  };
  for (const auto& [typed, replacement, candidates] : cases) {
    const Completion completion = Complete_Word(typed);
    EXPECT_EQ(completion.replacement, replacement) << typed;
    EXPECT_EQ(completion.candidates.size(), candidates) << typed;
  }
}

TEST(Prompt, CalculatesExplainsAndLeaves) {
  const Temporary_Folder folder;
  Tool_Terminal terminal(folder.path());
  terminal.type_at_prompt("qvxADD(\"12345678901234567890\",1)\n");
  EXPECT_TRUE(terminal.shows("\n12345678901234567891")) << terminal.shown();
  terminal.type_at_prompt("qvxADDD(1)\n");
  EXPECT_TRUE(terminal.shows("did you mean qvxADD?")) << terminal.shown();
  terminal.type_at_prompt("help qvxSIGN\n");
  EXPECT_TRUE(terminal.shows("qvxSIGN(-273.15)")) << terminal.shown();
  terminal.type_at_prompt("HELP nothing\n");
  EXPECT_TRUE(terminal.shows("there is no function \"nothing\"")) << terminal.shown();
  terminal.type_at_prompt("functions\n");
  EXPECT_TRUE(terminal.shows("qvxFORMAT")) << terminal.shown();
  terminal.type_at_prompt("qvxsub\t7,\"0.5\")\n");
  EXPECT_TRUE(terminal.shows("\n6.5")) << terminal.shown();
  terminal.type_at_prompt("\"\xE2\x82\xAC\"\n");
  EXPECT_TRUE(terminal.shows("\n\xE2\x82\xAC")) << terminal.shown();
  terminal.type_at_prompt("about\n");
  EXPECT_TRUE(terminal.shows("About Quorvex 3.1")) << terminal.shown();
  terminal.type_at("[s] Set Default Max SD: ", "s\n");
  terminal.type_at("Digits [100]: ", "7\n");
  terminal.type_at("[s] Set Default Max SD: ", "\n");
  terminal.type_at_prompt("functions qvxSIGN\n");
  EXPECT_TRUE(terminal.shows("qvxSIGN(-273.15)")) << terminal.shown();
  terminal.type_at_prompt("?\n");
  EXPECT_TRUE(terminal.shows("Type a formula")) << terminal.shown();
  terminal.type_at_prompt("settings max-sd\n");
  EXPECT_TRUE(terminal.shows("\n7\r\n")) << terminal.shown();
  terminal.type_at_prompt("settings max-sd 9\n");
  terminal.type_at_prompt("qvxDEFAULTMAXSD()\n");
  EXPECT_TRUE(terminal.shows("\n9\r\n")) << terminal.shown();
  terminal.type_at_prompt("settings 5\n");
  EXPECT_TRUE(terminal.shows("there is no setting \"5\"")) << terminal.shown();
  terminal.type_at_prompt("sheet\n");
  EXPECT_TRUE(terminal.shows("no worksheet is open")) << terminal.shown();
  terminal.type_at_prompt("sheet /nowhere.csv\n");
  EXPECT_TRUE(terminal.shows("there is no such file")) << terminal.shown();
  terminal.type_at_prompt("quit\n");
  EXPECT_EQ(terminal.end(), 0);
}

TEST(Prompt, RecalculatesTheOpenWorksheetOnYesAlone) {
  const Temporary_Folder folder;
  const std::string file = folder.write("thirds.csv", "=A2\n\"=qvxDIVIDE(1,3)\"\n=A9\n");
  Tool_Terminal terminal(folder.path());
  terminal.type_at_prompt("settings\n");
  terminal.type_at("Digits [100]: ", "6\n");  // nothing is open: nobody is asked
  EXPECT_TRUE(terminal.shows("The default limit is 6.")) << terminal.shown();
  terminal.type_at_prompt("sheet " + file + "\n");
  EXPECT_TRUE(terminal.shows("0.3333333\r\n0.3333333\r\n")) << terminal.shown();
  terminal.type_at_prompt("settings\n");
  terminal.type_at("Digits [6]: ", "3\n");
  terminal.type_at("[y/N] ", "n\n");
  terminal.type_at_prompt("qvxDEFAULTMAXSD()\n");
  EXPECT_TRUE(terminal.shows("\n3\r\n")) << terminal.shown();
  EXPECT_EQ(terminal.shown().find("0.3333"), std::string::npos) << terminal.shown();
  terminal.type_at_prompt("settings\n");
  terminal.type_at("Digits [3]: ", "\x03");
  terminal.type_at_prompt("settings\n");
  terminal.type_at("Digits [3]: ", "\n");
  terminal.type_at("[y/N] ", "\x03");  // agrees to nothing
  EXPECT_TRUE(terminal.shows("^C\r\nThe default limit")) << terminal.shown();
  terminal.type_at_prompt("settings\n");
  terminal.type_at("Digits [3]: ", "\n");
  EXPECT_EQ(terminal.shown().find("0.3333"), std::string::npos) << terminal.shown();
  terminal.type_at("[y/N] ", "y\n");
  EXPECT_TRUE(terminal.shows("\n0.3333\r\n0.3333\r\n")) << terminal.shown();
  terminal.type_at_prompt("quit\n");
  EXPECT_EQ(terminal.end(), 0);
}

TEST(Prompt, KnowsTheSheetTheLastResultAndNames) {
  const Temporary_Folder folder;
  const std::string file = folder.write("prices.csv", "item,price\ntea,2.5\nmilk,=B2*2\n");
  Tool_Terminal terminal(folder.path());
  terminal.type_at_prompt("A1\n");
  EXPECT_TRUE(terminal.shows("no worksheet is open")) << terminal.shown();
  terminal.type_at_prompt("sheet " + file.substr(0, file.size() - 5) + "\t\n");
  EXPECT_TRUE(terminal.shows("milk      5\r\n")) << terminal.shown();
  terminal.type_at_prompt("qvxSUM2(B2:B3)\n");
  EXPECT_TRUE(terminal.shows("\n7.5\r\n")) << terminal.shown();
  terminal.type_at_prompt("rate = ans*2\n");
  EXPECT_TRUE(terminal.shows("\n15\r\n")) << terminal.shown();
  terminal.type_at_prompt("Rate=rate+1\n");
  EXPECT_TRUE(terminal.shows("\n16\r\n")) << terminal.shown();
  terminal.type_at_prompt("=rate=16\n");
  EXPECT_TRUE(terminal.shows("\nTRUE\r\n")) << terminal.shown();
  terminal.type_at_prompt("nowhere+1\n");
  EXPECT_TRUE(terminal.shows("there is no name \"nowhere\"")) << terminal.shown();
  terminal.type_at_prompt("digits 5\n");
  terminal.type_at_prompt("1/7\n");
  EXPECT_TRUE(terminal.shows("\n0.142857\r\n")) << terminal.shown();
  terminal.type_at_prompt("digits 0\n");
  EXPECT_TRUE(terminal.shows("a whole number from 1")) << terminal.shown();
  terminal.type_at_prompt("help root\n");
  EXPECT_TRUE(terminal.shows("qvxROOT(number1")) << terminal.shown();
  terminal.type_at_prompt("functions logarithm\n");
  EXPECT_TRUE(terminal.shows("qvxLN")) << terminal.shown();
  terminal.type_at_prompt("qvxFORMAT(1,,,,,,300)\n");  // the terminal has 200 columns
  EXPECT_TRUE(terminal.shows("\n1." + std::string(198, '0') + "\r\n00")) << terminal.shown();
}

TEST(Prompt, HandsOnWhatWasTypedForSomethingElse) {
  const Temporary_Folder folder;
  const std::string file = folder.write("third.csv", "=1/3\n");
  Tool_Terminal terminal(folder.path());
  terminal.type_at_prompt("settings\n");
  terminal.type_at("Digits [100]: ", "1+1\n");
  EXPECT_TRUE(terminal.shows("The limit stays as it is.")) << terminal.shown();
  EXPECT_TRUE(terminal.shows("> 1+1\r\n2\r\n")) << terminal.shown();
  terminal.type_at_prompt("sheet " + file + "\n");
  terminal.type_at_prompt("settings\n");
  terminal.type_at("Digits [100]: ", "6\n");
  terminal.type_at("[y/N] ", "2*3\n");
  EXPECT_TRUE(terminal.shows("> 2*3\r\n6\r\n")) << terminal.shown();
  EXPECT_EQ(terminal.shown().find("0.3333"), std::string::npos) << terminal.shown();
}

TEST(Prompt, SheetsOpenNoForms) {
  const Temporary_Folder folder;
  const std::string file = folder.write("about.csv", "=qvxABOUT()\n\x1B[31mred\n\u202Eback\n");
  Tool_Terminal terminal(folder.path(), {"sheet", file});
  EXPECT_EQ(terminal.end(), 0);
  EXPECT_EQ(terminal.shown().find("About Quorvex"), std::string::npos) << terminal.shown();
  EXPECT_NE(terminal.shown().find("\u241B[31mred"), std::string::npos) << terminal.shown();
  EXPECT_NE(terminal.shown().find("<U+202E>back"), std::string::npos) << terminal.shown();
}

TEST(Prompt, InterruptGivesUpTheLineAndCtrlDLeaves) {
  const Temporary_Folder folder;
  Tool_Terminal terminal(folder.path());
  terminal.type_at_prompt("qvxADD(1,");
  EXPECT_TRUE(terminal.shows("qvxADD(1,"));
  terminal.type("\x03");
  EXPECT_TRUE(terminal.shows("^C")) << terminal.shown();
  terminal.type_at_prompt("qvxADD(2,3)\n");
  EXPECT_TRUE(terminal.shows("\n5")) << terminal.shown();
  // Between two lines the terminal itself takes Ctrl-D, and nobody is told.
  terminal.type_at_prompt("\x04");
  EXPECT_EQ(terminal.end(), 0);
}

TEST(Prompt, KeepsItsHistory) {
  const Temporary_Folder folder;
  {
    Tool_Terminal first(folder.path());
    first.type_at_prompt("qvxADD(40,2)\n");
    EXPECT_TRUE(first.shows("\n42")) << first.shown();
    first.type_at_prompt("exit\n");
    EXPECT_EQ(first.end(), 0);
  }
  EXPECT_NE(File_Text(folder.path() / "quorvex" / "history").find("qvxADD(40,2)"),
            std::string::npos);
  Tool_Terminal second(folder.path());
  second.type_at_prompt("\x10\x10\n");  // back two lines, beyond "exit"
  EXPECT_TRUE(second.shows("\n42")) << second.shown();
}

}  // namespace
}  // namespace quorvex
