// Reading formulas: what they are taken for, and where they are wrong.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "formula/formula.h"
#include "support/locales.h"
#include "support/repeated.h"

namespace quorvex {
namespace {

TEST(ParseFormula, TakesTheGrammarAndWritesItBack) {
  const Locale_Guard locale(Point_Locale());
  struct {
    const char* typed;
    const char* written;
  } const cases[] = {
      {"=qvxADD(1, 2)", "qvxADD(1,2)"},
      {"  =  QVXadd ( 1 ,\t2 )\n", "qvxADD(1,2)"},
      {"qvxADD(1\xC2\xA0,\xC2\xA0"
       "A1\xC2\xA0)",
       "qvxADD(1,A1)"},
      {"qvxADD(1,2,,,TRUE)", "qvxADD(1,2,,,TRUE)"},
      {"qvxADD(1,2,)", "qvxADD(1,2,)"},
      {"qvxDEFAULTMAXSD()", "qvxDEFAULTMAXSD()"},
      {R"("say ""5""")", R"("say ""5""")"},
      {"\"\"", "\"\""},
      {"true", "TRUE"},
      {"#div/0!", "#DIV/0!"},
      {"$B$3", "B3"},
      {"xfd1048576", "XFD1048576"},
      {"B3 : A1", "A1:B3"},
      {"Data!A1:B2", "Data!A1:B2"},
      {"'My sheet' ! A1", "'My sheet'!A1"},
      {"'it''s'!rate", "'it''s'!rate"},
      {"Q1!A1", "Q1!A1"},
      {"tax_rate", "tax_rate"},
      {"größe.2", "größe.2"},
      {"AAAA1", "AAAA1"},
      {"{1,-2;\"a\",#N/A;TRUE,1.50}", "{1,-2;\"a\",#N/A;TRUE,1.5}"},
      {"-A1", "-A1"},
      {"- 5", "-5"},
      {"--5", "--5"},
      {"-(5)", "-(5)"},
      {"-(0)", "-(0)"},
      {"((qvxSIGN((A1))))", "qvxSIGN(A1)"},
      {"1+2*3^4 = \"a\" & -5%", "1+2*3^4=\"a\"&-5%"},
      {"(1+2)*3-(4-5)-6", "(1+2)*3-(4-5)-6"},
      {"((1*2))+(3)<>(4>=5)<=6", "1*2+3<>(4>=5)<=6"},
      {"-2^+2^-(3)", "-2^2^-(3)"},
      {"-(2^2)%", "-(2^2)%"},
      {"-(5%)", "-(5%)"},
      {"(A1%)%", "A1%%"},
      {"(A1:A3+1)%", "(A1:A3+1)%"},
      {"+A1", "A1"},
      {"1e5", "100000"},
      {"1E-7", "1e-07"},
      {"qvxADD(qvxADD(1,2),-qvxADD(3,4))", "qvxADD(qvxADD(1,2),-qvxADD(3,4))"},
  };
  for (const auto& [typed, written] : cases) {
    const std::string once = Formula_Text(Parse_Formula(typed));
    EXPECT_EQ(once, written) << typed;
    EXPECT_EQ(Formula_Text(Parse_Formula(once)), once) << typed;
  }
}

TEST(ParseFormula, TellsWhatIsWrongAndWhere) {
  const Locale_Guard locale(Point_Locale());
  const std::string too_deep = Repeated("-", maximum_nesting + 1);
  struct {
    std::string typed;
    std::size_t position;
    const char* message;
  } const cases[] = {
      {"", 0, "empty"},
      {" = ", 3, "empty"},
      {"==1", 1, "a value was expected"},
      {"1+*2", 2, "a value was expected"},
      {"A1=>2", 3, "a value was expected"},
      {"1 %% 2", 5, "expected to end"},
      {"1~2", 1, "no meaning"},
      {"qvxADD(1,2", 6, "not closed"},
      {"qvxADD(1 2)", 9, "\",\" or \";\" or \")\""},
      {"qvxADD(1;qvxADD(2,3))", 19, "2,3 is one number here, separate arguments by \";\""},
      {"qvxADD(1,2;)", 11, "number2 is missing"},
      {"1,5", 1, "decimals are written as 1.5, or as 1,5"},
      {"IF(1)", 4, "too few arguments for IF(condition"},
      {"NOT(1,2)", 6, "too many arguments for NOT"},
      {"AND", 0, "with parentheses: AND(condition1"},
      {"MAX(1,2)", 0, "unknown function \"MAX\"; use qvxMAX"},
      {"Cos_Function(1)", 0, "unknown function"},
      {"average(1,2)", 0, "use qvxAVERAGE, with \"format:MSD=50\""},
      {"qvxADD(1,2))", 11, "expected to end"},
      {"qvxADD(", 7, "ends too early"},
      {"1€", 0, "no number"},
      {"1.2.3", 0, "no number"},
      {"1E", 0, "no number"},
      {".", 0, "no number"},
      {"\"open", 0, "not closed"},
      {"'Sheet", 0, "not closed"},
      {"qvxADD('5',1)", 7, "double quotes"},
      {"#WRONG!", 0, "#N/A"},
      {"XFE1", 0, "no such cell"},
      {"A1048577", 0, "no such cell"},
      {"A0", 0, "no such cell"},
      {"A1:", 3, "a cell was expected"},
      {"A1:rate", 3, "a cell was expected"},
      {"Data!5", 5, "after \"!\""},
      {"$rate", 0, "neither a cell nor a name"},
      {"qvxADD", 0, "qvxADD(number1, number2, [format_negative]"},
      {"{1,2;3}", 6, "differ in length"},
      {"{1,A1}", 3, "constants only"},
      {"{}", 1, "constants only"},
      {"{1,2", 0, "not closed"},
      {"(1", 0, "not closed"},
      {"- ", 2, "ends too early"},
      {"qvxADDD(1)", 0, "unknown function \"qvxADDD\"; did you mean qvxADD?"},
      {"qvxSIGN(subtract(1,2))", 8, "did you mean qvxSUBTRACT?"},
      {"frobnicate(1)", 0, "unknown function \"frobnicate\""},
      {"qvxADD(1)", 8, "number2 is missing in qvxADD(number1, number2, ["},
      {"qvxADD(,2)", 9, "number1 is missing"},
      {"qvxSIGN(1,2)", 10, "too many arguments for qvxSIGN(num)"},
      {"qvxADD(1,\xFF)", 9, "UTF-8"},
      {too_deep + "A1", maximum_nesting + 1, "deeper than 256 levels"},
      {Repeated("(", 1000000), maximum_nesting + 1, "deeper than 256 levels"},
      {"1" + Repeated("%", 1000000), maximum_nesting + 1, "deeper than 256 levels"},
      {Repeated("qvxSIGN(", 300), 8 * (maximum_nesting + 1), "deeper than 256 levels"},
  };
  for (const auto& [typed, position, message] : cases) {
    try {
      Parse_Formula(typed);
      ADD_FAILURE() << typed << " was read";
    } catch (const Syntax_Error& error) {
      EXPECT_EQ(error.position(), position) << typed.substr(0, 40);
      EXPECT_NE(std::string(error.what()).find(message), std::string::npos)
          << typed.substr(0, 40) << ": " << error.what();
    }
  }
  for (const char* operand : {"A1", "-5"}) {
    const std::string deepest = Repeated("-", maximum_nesting) + operand;
    EXPECT_EQ(Formula_Text(Parse_Formula(Formula_Text(Parse_Formula(deepest)))), deepest);
  }
}

// A reader that looks at each byte more than a few times would need hours for these.
TEST(ParseFormula, ReadsMegabytesInLinearTime) {
  const Locale_Guard locale(Point_Locale());
  const std::string many = "{1" + Repeated(",1", 1000000) + "}";
  const std::string wide = "qvxSIGN(" + Repeated(" ", 2000000) + "A1)";
  const std::string long_number = "qvxSIGN(1" + Repeated("0123456789", 200000) + ")";
  const std::string sum = "1" + Repeated("+2*A1", 300000);
  EXPECT_EQ(Formula_Text(Parse_Formula(sum)), sum);
  const std::string long_text = "\"" + Repeated("\"\"", 1000000) + "\"";
  EXPECT_EQ(Formula_Text(Parse_Formula(many)), many);
  EXPECT_EQ(Formula_Text(Parse_Formula(wide)), "qvxSIGN(A1)");
  EXPECT_EQ(Formula_Text(Parse_Formula(long_number)).size(), long_number.size() + 2);
  EXPECT_EQ(Formula_Text(Parse_Formula(long_text)), long_text);
}

HostValue Constant(const std::string& typed) {
  return std::get<HostValue>(Parse_Formula(typed).root.node);
}

TEST(NumberLiterals, AreNumbersOnlyIfAFloatKeepsEveryDigit) {
  const Locale_Guard locale(Point_Locale());
  struct {
    const char* typed;
    double value;
  } const numbers[] = {
      {"0", 0},
      {"-0", 0},
      {"0.000E+99", 0},
      {".5", 0.5},
      {"5.", 5},
      {"007", 7},
      {"1.50", 1.5},
      {"-0.1", -0.1},
      {"123456789012345", 123456789012345.0},
      {"1E+22", 1e22},
      {"1000000000000000000000", 1e21},
      {"1.7976931348623E308", 1.7976931348623e308},
      {"1.00000000000000000000", 1},
      {"0.000000000000000000000000000001", 1e-30},
  };
  for (const auto& [typed, value] : numbers) {
    const HostValue constant = Constant(typed);
    ASSERT_EQ(constant.kind(), HostValue::Kind::number) << typed;
    EXPECT_EQ(constant.number(), value) << typed;
    EXPECT_FALSE(std::signbit(constant.number()) && value == 0) << typed;
  }
  struct {
    const char* typed;
    const char* text;
  } const texts[] = {
      {"1234567890123456", "1234567890123456"},
      {"-0.1234567890123456", "-0.1234567890123456"},
      {"1234567890123456.", "1234567890123456."},
      {"12345678901234567e5", "1.2345678901234567E+21"},
      {"0.0012345678901234567E-3", "1.2345678901234567E-6"},
      {"123.4567890123456700E1", "1.234567890123456700E+3"},
      {"1E400", "1E+400"},
      {"-1E-400", "-1E-400"},
      {"5E-324", "5E-324"},  // the nearest float is 4.94E-324
      {"1E99999999999999999999", "1E+99999999999999999999"},
  };
  for (const auto& [typed, text] : texts) {
    const HostValue constant = Constant(typed);
    ASSERT_TRUE(constant.is_text()) << typed;
    EXPECT_EQ(constant.text(), text) << typed;
  }
}

TEST(NumberLiterals, HaveAPointInFormulasAndTheLocaleSeparatorAsText) {
  const Locale_Guard locale(Comma_Locale());
  EXPECT_EQ(Constant("-1.5").number(), -1.5);
  EXPECT_EQ(Constant("0.12345678901234567").text(), "0,12345678901234567");
  EXPECT_EQ(Constant("12345.678901234567E+2").text(), "1,2345678901234567E+6");
}

std::string Read_And_Written(const std::string& typed) {
  try {
    return Formula_Text(Parse_Formula(typed));
  } catch (const Syntax_Error& error) {
    return std::to_string(error.position()) + ": " + error.what();
  }
}

TEST(DecimalComma, IsReadInItsLocaleAndBesideSemicolons) {
  struct {
    const char* typed;
    const char* by_point;  // a part of what is written or told
    const char* by_comma;
  } const cases[] = {
      {"qvxADD(1,5;2)", "qvxADD(1.5,2)", "qvxADD(1.5;2)"},
      {"qvxADD(1;2,25)", "qvxADD(1,2.25)", "qvxADD(1;2.25)"},
      {"qvxADD(A1;\"a;b\")", "qvxADD(A1,\"a;b\")", "qvxADD(A1;\"a;b\")"},
      {"qvxADD(1.5;.5)", "qvxADD(1.5,0.5)", "qvxADD(1.5;0.5)"},
      {"-1,5%", "2: the formula was expected to end here", "-1.5%"},
      {"qvxADD(A1,B1)", "qvxADD(A1,B1)", "qvxADD(A1;B1)"},
      {"qvxADD(1, 5)", "qvxADD(1,5)", "qvxADD(1;5)"},
      {"qvxADD(1,5)", "qvxADD(1,5)", "1,5 is one number here, separate arguments by \";\""},
      {"qvxSUM2(1,5)", "qvxSUM2(1,5)", "qvxSUM2(1.5)"},
      {"qvxDIVIDE(1,7,,,,,50)", "qvxDIVIDE(1,7,,,,,50)", "decimal separator of your locale"},
      {"qvxADD(A1,1,5)", "qvxADD(A1,1,5)", "decimal separator of your locale"},
      {"qvxSUM2({1,5;2,25})", "qvxSUM2({1,5;2,25})", "qvxSUM2({1,5;2,25})"},
      {"IF(1,5>1;2;3)", "IF(1.5>1,2,3)", "IF(1.5>1;2;3)"},
      {"qvxADD(1.2,3;1)", "10: \",\" is the decimal", "10: \",\" is the decimal"},
      {"12345678901234567,5;", "19: ", "19: "},
  };
  for (const auto& [typed, by_point, by_comma] : cases) {
    for (const auto& [locale, expected] :
         {std::pair(Point_Locale(), by_point), std::pair(Comma_Locale(), by_comma)}) {
      const Locale_Guard guard(locale);
      const std::string written = Read_And_Written(typed);
      EXPECT_NE(written.find(expected), std::string::npos) << typed << ": " << written;
    }
  }
}

TEST(MarkPlace, PutsACaretUnderTheCharacter) {
  const std::string long_text = Repeated("ä", 200);
  EXPECT_EQ(Mark_Place("qvxADD(1", 6), "qvxADD(1\n      ^");
  EXPECT_EQ(Mark_Place("\"äöü\")", 8), "\"äöü\")\n     ^");
  EXPECT_EQ(Mark_Place("\"ä\"", 2), "\"ä\"\n ^") << "a place inside a character is its start";
  EXPECT_EQ(Mark_Place("a\tb\nc", 4), "a b c\n    ^");
  EXPECT_EQ(Mark_Place("abc", 99), "abc\n   ^");
  EXPECT_EQ(Mark_Place(long_text, 0), Repeated("ä", 72) + "...\n^");
  EXPECT_EQ(Mark_Place(long_text, 200),
            "..." + Repeated("ä", 72) + "...\n" + std::string(39, ' ') + "^");
  EXPECT_EQ(Mark_Place(long_text, 400),
            "..." + Repeated("ä", 36) + "\n" + std::string(39, ' ') + "^");
}

TEST(NearestFunction, GuessesOnlyWhatIsNear) {
  EXPECT_EQ(Nearest_Function("qvxisequa"), "qvxISEQUAL");
  EXPECT_EQ(Nearest_Function("qvxSUBTARCT"), "qvxSUBTRACT");
  EXPECT_EQ(Nearest_Function("format"), "qvxFORMAT");
  EXPECT_EQ(Nearest_Function("qvxXYZZYXYZZY"), std::nullopt);
  EXPECT_EQ(Nearest_Function(std::string(1000000, 'q')), std::nullopt);
}

}  // namespace
}  // namespace quorvex
