// Recalculation over a host whose cells may refuse.
#include "shell/recalculate_formulas.h"

#include <gtest/gtest.h>

#include "frame/class/add_in.h"
#include "shell/scripted_host.h"
#include "shell/shell_fixture.h"
#include "support/failures.h"
#include "support/surroundings.h"

namespace quorvex {
namespace {

class Recalculating : public Shell_Test {
 protected:
  Recalculating() {
    Excel_App(host_, false);
    host_->workbooks = {book_};
    book_->sheets = {sheet_};
  }

  std::shared_ptr<Scripted_Cell> add(const char* formula) {
    sheet_->cells.push_back(std::make_shared<Scripted_Cell>(formula));
    return sheet_->cells.back();
  }

  std::shared_ptr<Scripted_Application> host_ = std::make_shared<Scripted_Application>();
  std::shared_ptr<Scripted_Workbook> book_ = std::make_shared<Scripted_Workbook>();
  std::shared_ptr<Scripted_Sheet> sheet_ = std::make_shared<Scripted_Sheet>();
};

TEST_F(Recalculating, WritesBackWhatUsesAFunctionDirectlyOrByAName) {
  book_->names = {std::make_shared<Scripted_Name>("Rate", "=qvxDIVIDE(1,3)"),
                  std::make_shared<Scripted_Name>("Base", "=Sheet1!$A$1"),
                  std::make_shared<Scripted_Name>("gr\u00FCn", "=QVXPI()")};
  const struct {
    const char* formula;
    bool is_written;
  } cases[] = {
      {"=qvxADD(1,2)", true},
      {"=SUM(1,QvXadd(1,2))", true},
      {"=\"qvx\"", true},  // in a text as well
      {"qvx in a note", true},
      {"=rate*2", true},
      {"=corporated", true},  // the name as a part of another word
      {"=GR\u00DCN", true},
      {"=Base+1", false},
      {"=1+2", false},
      {"qv x", false},
      {"", false},
  };
  for (const auto& c : cases) {
    const auto cell = add(c.formula);
    Recalculate_Formulas();
    EXPECT_EQ(cell->written, c.is_written ? c.formula : "") << c.formula;
  }
}

TEST_F(Recalculating, PassesOverWhatTheHostRefuses) {
  book_->names = {std::make_shared<Scripted_Name>("gone", ""),
                  std::make_shared<Scripted_Name>("rate", "=qvxPI()")};
  add("=qvxADD(1,1)")->refuses = 1004;
  add("=qvxADD(1,1)")->unreadable = 7;
  const auto last = add("=rate");
  const auto refusing = std::make_shared<Scripted_Sheet>();
  refusing->refuses = 1004;
  const auto second = std::make_shared<Scripted_Workbook>();
  const auto sheet = std::make_shared<Scripted_Sheet>();
  sheet->cells = {std::make_shared<Scripted_Cell>("=qvxADD(1,2)"),
                  std::make_shared<Scripted_Cell>("=rate")};
  second->sheets = {refusing, sheet};
  host_->workbooks.push_back(second);
  EXPECT_EQ(Failure_Of([] { Recalculate_Formulas(); }), std::nullopt);
  EXPECT_EQ(last->written, "=rate");
  EXPECT_EQ(sheet->cells[0]->written, "=qvxADD(1,2)");
  EXPECT_EQ(sheet->cells[1]->written, "");  // the name is another workbook's
}

TEST_F(Recalculating, NeedsAHostAndHeedsABreak) {
  const auto cell = add("=qvxADD(1,2)");
  {
    const Interruption_Guard impatient;
    EXPECT_EQ(Failure_Of([] { Recalculate_Formulas(); }), Failure_Number::interrupted);
  }
  Excel_App(nullptr, true);
  Recalculate_Formulas();
  EXPECT_EQ(cell->written, "");
}

}  // namespace
}  // namespace quorvex
