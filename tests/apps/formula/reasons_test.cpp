// What is told of tokens and of surprising results.
#include "formula/reasons.h"

#include <gtest/gtest.h>

#include <string>

#include "formula/evaluate.h"
#include "formula/visible.h"
#include "support/default_limit.h"
#include "support/locales.h"
#include "support/surroundings.h"

namespace quorvex {
namespace {

std::string Notes_On(const std::string& formula) {
  cls_Quorvex engine;
  std::string notes;
  for (const std::string& note : Evaluate_Alone(engine, Parse_Formula(formula), Explain::yes).notes)
    notes += note + "\n";
  return notes;
}

TEST(Notes, NameTheArgumentAndTheCause) {
  const Locale_Guard locale(Point_Locale());
  struct {
    const char* formula;
    const char* told;  // a part of it; nothing is told if empty
  } const cases[] = {
      {"qvxADD(\"50%\",1)", "number1 of qvxADD: \"50%\" is no number: percent signs are not read."},
      {"qvxADD(1,\"+5\")", "number2 of qvxADD: \"+5\" is no number: a plus in front"},
      {"qvxADD(1,\" 5\")", "blanks are not read"},
      {"qvxADD(1,\"1e5\")", "E stands in capitals"},
      {"qvxADD(\"1.2.3\",1)", "the decimal separator is \".\" here"},
      {"qvxADD(\"abc\",1)", "\"abc\" is no number.\n"},
      {"qvxADD(TRUE,1)", "number1 of qvxADD: TRUE is no number"},
      {"qvxSIGN(qvxADD(1,qvxADD(\"x\",1)))", "number1 of qvxADD: \"x\" is no number.\n"},
      {"qvxDIVIDE(1,0)", "qvxDIVIDE divides by 0."},
      {"qvxMOD(7,0)", "qvxMOD divides by 0."},
      {"qvxLN(-1)", "qvxLN: \"#NUM!\""},
      {"qvxAVERAGE(1,2)", "qvxAVERAGE: \"#VALUE!\" without MSD="},
      {"qvxADD(\"1E+9999999999\",1)", "it has more digits than a number may have"},
      {"\"50%\"*2", "\"50%\" is no number: percent signs are not read."},
      {"-\"x\"", "\"x\" is no number."},
      {"{1,2;\"5 %\",3}*2", "\"5 %\" is no number"},
      {"1/0", "The divisor is 0."},
      {"IFERROR(qvxADD(\"x\",1),0)", ""},
      {"IFERROR({1,2}/0,1/0)", "The divisor is 0."},
      {"IF(\"abc\",1,2)", "\"abc\" is no condition"},
      {"NOT(\"x\")", "\"x\" is no condition"},
      {"AND(\"x\",TRUE)", "\"x\" is no condition"},
      {"(-8)^(1/3)", "no power with a fraction"},
      {"{1,2,3}+{1,2}", "The blocks differ in size (1 by 3 and 1 by 2"},
      {"{1;#N/A}+{1;2}", ""},
      {"#N/A", ""},
      {"qvxADD(#N/A,1)", ""},
      {"qvxADD(1,2)", ""},
      // Surprises.
      {"qvxADD(\"1E12\",0)", "the character behind E is taken for its sign"},
      {"qvxADD(\"12E+1\",0)", "needs one digit before its separator"},
      {"qvxADD(\"(12\",0)", "never closed"},
      {"qvxADD(1,2,,1)", "format_thousands of qvxADD: it is on when it is TRUE"},
      {"qvxADD(-5,0,0)", "hides the sign"},
      {"qvxFORMAT(\"2.50\",,,,,,,TRUE)", "it has no effect"},
      {"qvxNEG(-5)", "qvxCHANGESIGN"},
      {"qvxNEG(5)", ""},
      {"qvxROUND(1234,-2)", "one place short"},
      {"qvxISERROR(\"Room #5\")", "calls any text with a # an error"},
      {"\"2,5\"+1", "\"2,5\" is read as 25: \",\" stands between thousands here"},
      {"{1,\"1E12\"}*2", "\"1E12\": the character behind E"},
      {"qvxADD(\"1,50\",1)", "number1 of qvxADD: \"1,50\" is read as 150"},
      {"qvxSUM2(\"1,50\",1)", "\"1,50\" is read as 150"},
      {"qvxSUM2(\"5%\",3,\"6 %\")", "qvxSUM2 passes over a text with 1 more such text: \"5%\""},
      {"qvxSUM2(\"tea\",\"B2\",3)", ""},
      {"\"1,234,567.25\"+\"12,34,567\"", ""},
      {"\"1,50\"&\"\"", ""},
  };
  for (const auto& [formula, told] : cases) {
    const std::string notes = Notes_On(formula);
    EXPECT_NE(notes.find(told), std::string::npos) << formula << ": " << notes;
    EXPECT_EQ(notes.empty(), std::string(told).empty()) << formula << ": " << notes;
  }
}

TEST(Notes, TellOfWholeNumbersThatWereCut) {
  const Locale_Guard locale(Point_Locale());
  struct {
    const char* formula;
    const char* told;
  } const cases[] = {
      {"qvxFACT(100)", "has 158 digits"},
      {"-2^1000", "has 302 digits"},
      {"qvxADD(qvxPOWER(3,300),1)", "ask for more with --digits 144"},
      {"{1;2}*2^400", "has 121 digits"},
      {"qvxFACT(100)&\" x\"", "has 158 digits"},
      {"2^2000>2^2000-1", "has 603 digits"},
      {"qvxPOWER(3,300,,,,,50)", ""},
      {"10^200", ""},
      {"2^300", ""},
      {"1/7", ""},
  };
  for (const auto& [formula, told] : cases) {
    const std::string notes = Notes_On(formula);
    EXPECT_NE(notes.find(told), std::string::npos) << formula << ": " << notes;
    EXPECT_EQ(notes.empty(), std::string(told).empty()) << formula << ": " << notes;
  }
}

TEST(Notes, TellOfTooLittleMemoryAndNotOfBadInput) {
  const Locale_Guard locale(Point_Locale());
  const Memory_Guard poor(0);
  for (const char* formula : {"qvxADD(\"1E+999999999\",1)", "\"1E+999999999\"+1"})
    EXPECT_NE(Notes_On(formula).find("There is not enough memory"), std::string::npos)
        << formula << ": " << Notes_On(formula);
}

TEST(Visible, ShowsWhatWouldCommandOrDisguise) {
  struct {
    const char* text;
    const char* shown;
  } const cases[] = {
      {"plain \xC3\xA4\xE2\x82\xAC", "plain \xC3\xA4\xE2\x82\xAC"},
      {"\x1B[31m\a\x7F", "\u241B[31m\u2407\u2421"},
      {"a\xC2\x9B"
       "b",
       "a<U+009B>b"},
      {"\u202Etxt\u2066\u200F\uFEFF", "<U+202E>txt<U+2066><U+200F><U+FEFF>"},
      {"\U000E0041", "<U+E0041>"},
      {"bad\xFF", "bad<0xFF>"},
      {"two\nlines", "two\u240Alines"},
  };
  for (const auto& [text, shown] : cases) EXPECT_EQ(Visible(text), shown);
  EXPECT_EQ(Visible("two\nlines\x1B", "\n"), "two\nlines\u241B");
}

}  // namespace
}  // namespace quorvex
