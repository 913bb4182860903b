// What formulas give without a worksheet.
#include "formula/evaluate.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "host/run_time_failure.h"
#include "support/failures.h"
#include "support/locales.h"
#include "support/surroundings.h"

namespace quorvex {
namespace {

std::string Shown(const std::string& formula) {
  cls_Quorvex engine;
  return Render(std::get<HostValue>(Evaluate_Alone(engine, Parse_Formula(formula)).result));
}

TEST(EvaluateAlone, GivesWhatTheFunctionsGive) {
  const Locale_Guard locale(Point_Locale());
  struct {
    const char* formula;
    const char* shown;
  } const cases[] = {
      {"qvxadd(\"0.1\",0.2)", "0.3"},
      {"qvxADD(12345678901234567890.123,-0.1234567890123456789)",
       "12345678901234567889.9995432109876543211"},
      {"qvxADD(12345678901234567E5,1)", "1234567890123456700001"},
      {"qvxADD(qvxADD(1,2),qvxSUBTRACT(10,4))", "9"},
      {"-qvxADD(1,2)", "-3"},
      {"qvxSUM2({1,2;3,4},\"format:thousands\",996)", "1,006"},
      {"qvxCOUNT(,1,,\"x\",{1,TRUE},)", "2"},
      {"qvxMODE(1,{2,3},3,\"format:thousands\")", "3"},
      {"qvxSORT({2,1},FALSE,TRUE,,\"x\",1,3)", "{1,2,\"x\"}"},
      {"{1,\"a\";TRUE,#NUM!}", "{1,\"a\";TRUE,#NUM!}"},
      {"\"as it is\"", "as it is"},
      {"#null!", "#NULL!"},
      {"1.50", "1.5"},
      {"false", "FALSE"},
  };
  for (const auto& [formula, shown] : cases) EXPECT_EQ(Shown(formula), shown) << formula;
}

TEST(EvaluateAlone, NegatesTextWithoutTouchingItsDigits) {
  const Locale_Guard locale(Point_Locale());
  struct {
    const char* formula;
    const char* shown;
  } const cases[] = {
      {"-\"00123456789012345678.90\"", "-00123456789012345678.90"},
      {"-\"-5\"", "5"},
      {"-\"(5)\"", "5"},
      {"--\"5\"", "5"},
      {"-\"$5\"", "-$5"},
      {"-\"$-5\"", "5"},
      {"-\"'5'\"", "-5"},
      {"-(5)", "-5"},
      {"--0", "0"},
      {"-\"abc\"", "#VALUE!"},
      {"-\"\"", "#VALUE!"},
      {"-TRUE", "-1"},
      {"-#N/A", "#N/A"},
      {"-{1,\"x\";TRUE,2}", "{-1,#VALUE!;-1,-2}"},
  };
  for (const auto& [formula, shown] : cases) EXPECT_EQ(Shown(formula), shown) << formula;
}

struct Shown_Case {
  const char* formula;
  const char* shown;
};

void Expect_Shown(const std::vector<Shown_Case>& cases) {
  for (const auto& [formula, shown] : cases) EXPECT_EQ(Shown(formula), shown) << formula;
}

TEST(Operators, CalculateByTheEngine) {
  const Locale_Guard locale(Point_Locale());
  Expect_Shown({
      {"1+2*3^2-4/8", "18.5"},
      {"-2^2", "4"},
      {"0-2^2", "-4"},
      {"2^3^2", "64"},
      {"2^-1", "0.5"},
      {"10-4-3", "3"},
      {"8/4/2", "1"},
      {"12345678901234567890.5*2", "24691357802469135781"},
      {"100*1.05^30", "432.1942375150662009157288198886473341473378241062164306640625"},
      {"50%", "0.5"},
      {"200*-5%%", "-0.1"},
      {"\"$1,000\"+1", "1001"},
      {"TRUE+TRUE", "2"},
      {"1&TRUE&\" pcs\"&-0.5", "1TRUE pcs-0.5"},
      {"1+2&3*4", "312"},
  });
}

TEST(Operators, PassErrorsAndTokensOn) {
  const Locale_Guard locale(Point_Locale());
  Expect_Shown({
      {"1/0", "#DIV/0!"},
      {"1/0+1", "#DIV/0!"},
      {"\"x\"+1", "#VALUE!"},
      {"\"a\"&#N/A&\"#NUM!\"", "#N/A"},
      {"\"#NUM!\"=1", "#NUM!"},
      {"qvxMOD(7,0)+1", "DIV/0!"},
      {"qvxMOD(1,\"x\")*2", "#VALUE!"},
      {"-qvxMOD(7,0)%", "DIV/0!"},
  });
}

TEST(Operators, CompareLongNumbersAndTextAsSpreadsheetsDo) {
  const Locale_Guard locale(Point_Locale());
  Expect_Shown({
      {"12345678901234567891>12345678901234567890", "TRUE"},
      {"\"10\">\"9\"", "TRUE"},
      {"\"1.50\"=1.5", "TRUE"},
      {"0.1+0.2=0.3", "TRUE"},
      {"\"$5\"<6", "TRUE"},
      {"\"abc\"=\"ABC\"", "TRUE"},
      {"\"ä\"=\"Ä\"", "TRUE"},
      {"\"b\">\"a\"", "TRUE"},
      {"\"a\">99", "TRUE"},
      {"FALSE>\"z\"", "TRUE"},
      {"FALSE<TRUE", "TRUE"},
      {"1<>1", "FALSE"},
      {"2>=3", "FALSE"},
      {"1<2=TRUE", "TRUE"},
  });
}

TEST(Operators, TakeBlocksElementByElement) {
  const Locale_Guard locale(Point_Locale());
  Expect_Shown({
      {"{1,2;3,4}*10", "{\"10\",\"20\";\"30\",\"40\"}"},
      {"{1;2}+{10,20}", "{\"11\",\"21\";\"12\",\"22\"}"},
      {"{1,2,3}+{1,2}", "{\"2\",\"4\",#N/A}"},
      {"{1,\"x\"}>0", "{TRUE,TRUE}"},
      {"{5,\"x\"}%", "{\"0.05\",\"#VALUE!\"}"},
      {"qvxSUM2({1,2}*{3,4})", "11"},
  });
}

TEST(Choice, LooksAtWhatIsNeeded) {
  const Locale_Guard locale(Point_Locale());
  Expect_Shown({
      {"IF(12345678901234567891>12345678901234567890,\"more\",1/0)", "more"},
      {"IF(qvxISGREATER(1,2),1/0,\"less\")", "less"},
      {"IF(0,1)", "FALSE"},
      {"IF(\"0.00\",1,)", "0"},
      {"IF(\"abc\",1,2)", "#VALUE!"},
      {"IF(#N/A,1,2)", "#N/A"},
      {"IF(1/0,1,2)", "#DIV/0!"},
      {"IF({1,0;\"x\",TRUE},{1,2;3,4},\"no\")", "{1,\"no\";#VALUE!,4}"},
      {"if(TRUE,qvxFACT(5),qvxFACT(\"x\"))", "120"},
      {"IFERROR(1/0,\"none\")", "none"},
      {"IFERROR(qvxMOD(7,0),0)", "0"},
      {"IFERROR(qvxSIN(\"x\"),\"none\")", "none"},
      {"IFERROR(5,1/0)", "5"},
      {"IFERROR({1,2}/{0,1},\"-\")", "{\"-\",\"2\"}"},
      {"AND(1,\"true\",2>1)", "TRUE"},
      {"AND(FALSE,1/0)", "FALSE"},
      {"AND(TRUE,1/0)", "#DIV/0!"},
      {"OR(FALSE,1,\"x\")", "TRUE"},
      {"OR({0,\"x\";0,\"\"})", "FALSE"},
      {"OR({\"x\"})", "#VALUE!"},
      {"NOT({1,0})", "{FALSE,TRUE}"},
      {"ISBLANK(\"\")", "FALSE"},
      {"IFERROR(IF(AND(1<2,NOT(2<1)),{1,2}*2,0),0)", "{\"2\",\"4\"}"},
  });
  cls_Quorvex engine;
  const auto mended = Evaluate_Alone(engine, Parse_Formula("IFERROR(qvxSIN(\"x\"),1/0)"));
  EXPECT_EQ(mended.reason.find("An argument is no number"), std::string::npos) << mended.reason;
}

TEST(EvaluateAlone, PassesRecordsThroughAtTheTopOnly) {
  const Locale_Guard locale(Point_Locale());
  cls_Quorvex engine;
  const Call_Result record =
      Evaluate_Alone(engine, Parse_Formula("Restrictionator(2,TRUE,,,7)", Functions::all)).result;
  ASSERT_TRUE(std::holds_alternative<Record>(record));
  EXPECT_EQ(std::get<Record>(record).fields[4].second.number(), 7);
  for (const char* formula : {"qvxADD(Restrictionator(),1)", "-Restrictionator()"}) {
    const auto outer = Evaluate_Alone(engine, Parse_Formula(formula, Functions::all)).result;
    EXPECT_EQ(Render(std::get<HostValue>(outer)), "#VALUE!") << formula;
  }
}

TEST(EvaluateAlone, RefusesCellsAndNamesAtTheirPlace) {
  const Locale_Guard locale(Point_Locale());
  cls_Quorvex engine;
  for (const char* formula : {"qvxADD(1, Data!A1)", "qvxADD(1, A1:B2)", "qvxADD(1, rate)"}) {
    try {
      Evaluate_Alone(engine, Parse_Formula(formula));
      ADD_FAILURE() << formula;
    } catch (const Syntax_Error& error) {
      EXPECT_EQ(error.position(), 10U) << formula;
      EXPECT_NE(std::string(error.what()).find("no worksheet here"), std::string::npos);
    }
  }
}

TEST(EvaluateAlone, LetsFailuresThrough) {
  const Locale_Guard locale(Point_Locale());
  cls_Quorvex engine;
  EXPECT_THROW(Evaluate_Alone(engine, Parse_Formula("qvxISEQUAL({1,2},1)")), Run_Time_Failure);
}

TEST(EvaluateAlone, HandsAnInnerFailureOnAsAnErrorValue) {
  const Locale_Guard locale(Point_Locale());
  cls_Quorvex engine;
  const char* const why = "The divisor is no number.";
  struct {
    const char* formula;
    const char* shown;
    const char* reason;
  } const cases[] = {
      {"qvxISERROR(qvxMOD(1,\"x\"))", "TRUE", ""},
      {"qvxSUM2(qvxMOD(1,\"x\"),3)", "3", ""},
      {"qvxADD(qvxMOD(1,\"x\"),1)", "#VALUE!", why},
      {"qvxADD(qvxMOD(1,\"x\"),qvxFACT(\"y\"))", "#VALUE!", why},
      {"-qvxMOD(1,\"x\")", "#VALUE!", why},
  };
  for (const auto& [formula, shown, reason] : cases) {
    const Evaluation evaluation = Evaluate_Alone(engine, Parse_Formula(formula));
    EXPECT_EQ(Render(std::get<HostValue>(evaluation.result)), shown) << formula;
    EXPECT_EQ(evaluation.reason, reason) << formula;
  }
  // The outer call fails only because the inner one has.
  try {
    Evaluate_Alone(engine, Parse_Formula("qvxMOD(1,qvxFACT(qvxMOD(1,\"x\")))"));
    ADD_FAILURE();
  } catch (const Run_Time_Failure& failure) {
    EXPECT_STREQ(failure.what(), why);
  }
}

TEST(EvaluateAlone, LetsABreakAndALackOfMemoryThroughEveryFunction) {
  cls_Quorvex engine;
  const auto fails_with = [&](const char* formula) {
    return Failure_Of([&] { Evaluate_Alone(engine, Parse_Formula(formula)); });
  };
  {
    const Interruption_Guard impatient;
    EXPECT_EQ(fails_with("qvxISERROR(qvxSIN(1))"), Failure_Number::interrupted);
  }
  const Memory_Guard poor(0);
  EXPECT_EQ(fails_with("qvxISERROR(qvxFORMAT(5,,,,,,2000000000))"), Failure_Number::out_of_memory);
}

TEST(Render, ShowsNumbersInTheLocale) {
  const Locale_Guard locale(Comma_Locale());
  EXPECT_EQ(Shown("qvxADD(1.5,1)"), "2,5");
  EXPECT_EQ(Render(1.5), "1,5");
  EXPECT_EQ(Render(HostValue::Empty()), "");
  EXPECT_EQ(Render(1e300 * 1e300), "#NUM!");
}

}  // namespace
}  // namespace quorvex
