// The embedded spreadsheet as the host of the add-in.
#include "sheet/sheet_application.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <string>

#include "frame/catalogue.h"
#include "host/platform.h"
#include "shell/recalculate_formulas.h"
#include "text/options.h"

namespace quorvex {
namespace {

class Embedded_Host : public testing::Test {
 protected:
  Embedded_Host() {
    application_->open(book_);
    engine_.SetExcelApp(application_);
    Set_Default_MaxSD(20);
  }
  ~Embedded_Host() override {
    Set_Default_MaxSD(100);
    // The engine knows no other host from now on, and this one has nothing open.
    engine_.SetExcelApp(std::make_shared<Sheet_Application>());
  }

  void set(const char* cell, std::string_view typed) { sheet_.set(Address_Of(cell), typed); }
  std::string shown(const char* cell) const { return sheet_.shown(Address_Of(cell)); }
  static Cell_Address Address_Of(std::string_view cell) {
    return Cell_Address{static_cast<std::uint32_t>(cell[1] - '0'),
                        static_cast<std::uint32_t>(cell[0] - 'A' + 1)};
  }

  void recalculate_with(double digits) {
    Set_Default_MaxSD(digits);
    Recalculate_Formulas();
    application_->calculate(engine_);
  }

  cls_Quorvex engine_;
  std::shared_ptr<Workbook> book_ = std::make_shared<Workbook>();
  Worksheet& sheet_ = book_->add("Sheet1");
  std::shared_ptr<Sheet_Application> application_ = std::make_shared<Sheet_Application>();
};

TEST_F(Embedded_Host, RecalculatesTheFunctionsTheirNamesAndWhatDependsOnThem) {
  sheet_.define_name("third", "qvxDIVIDE(1,3)");
  set("A1", "=A2");
  set("A2", "=qvxDIVIDE(1,3)");
  set("A3", "=third");
  set("A4", "=A3");
  set("A5", "qvx, a note");
  set("A6", "'=qvxADD(1,2)");
  set("A7", "=A1");
  Recalculate_All(*book_, engine_);
  const std::string before = "0.333333333333333333333";
  for (const char* cell : {"A1", "A2", "A3", "A4", "A7"}) EXPECT_EQ(shown(cell), before) << cell;
  EXPECT_FALSE(application_->is_written());

  recalculate_with(3);
  for (const char* cell : {"A1", "A2", "A3", "A4", "A7"}) EXPECT_EQ(shown(cell), "0.3333") << cell;
  EXPECT_EQ(shown("A5"), "qvx, a note");
  EXPECT_EQ(shown("A6"), "=qvxADD(1,2)");
  EXPECT_FALSE(application_->is_written());
}

TEST_F(Embedded_Host, LeavesWhatUsesNoFunctionAsItWas) {
  sheet_.define_name("inner", "qvxDIVIDE(1,3)");
  sheet_.define_name("outer", "inner");
  set("A1", "=outer");  // only a name's name leads to the function
  Recalculate_All(*book_, engine_);
  const std::string before = shown("A1");
  recalculate_with(3);
  EXPECT_EQ(shown("A1"), before);
  Recalculate_All(*book_, engine_);
  EXPECT_EQ(shown("A1"), "0.3333");
}

TEST_F(Embedded_Host, KeepsCirclesAndArraysRight) {
  set("A1", "=A2");
  set("A2", "=qvxADD(A1,1)");
  set("B1", "=qvxREDUCEFRACTION(2,qvxPi())");
  set("A9", "=B3");
  Recalculate_All(*book_, engine_);
  const std::string before = shown("A9");
  recalculate_with(2);
  EXPECT_EQ(shown("A1"), "#CIRCULAR!");
  EXPECT_EQ(shown("A2"), "#CIRCULAR!");
  EXPECT_NE(shown("A9"), before);
  EXPECT_EQ(shown("A9"), "3.1");
}

TEST_F(Embedded_Host, AWrittenFormulaIsCalculatedWithItsDependents) {
  set("A1", "=qvxADD(1,1)");
  set("A2", "=qvxADD(A1,1)");
  set("A3", "=qvxDIVIDE(1,3)");
  Recalculate_All(*book_, engine_);
  Set_Default_MaxSD(2);
  const auto cell =
      application_->Workbooks()->next()->worksheets()->next()->UsedRange()->Cells()->next();
  EXPECT_EQ(cell->formula(), "=qvxADD(1,1)");
  cell->set_formula("=qvxADD(4,4)");
  application_->calculate(engine_);
  EXPECT_EQ(shown("A1"), "8");
  EXPECT_EQ(shown("A2"), "9");
  EXPECT_EQ(shown("A3"), "0.333333333333333333333");
}

TEST_F(Embedded_Host, IsToldOfTheFunctionsWhenItIsIdle) {
  for (int tries = 0; tries < 20 && application_->macros().empty(); ++tries) {
    const cls_Quorvex arming;
    ::usleep(100'000);
    Current_Platform().timers->run_due();
  }
  ASSERT_TRUE(application_->macros().contains("qvxADD"));
  EXPECT_EQ(application_->macros().at("qvxADD").description, Find_Method("qvxADD")->description);
  EXPECT_EQ(application_->macros().at("qvxADD").category, "High-Precision Operators");
  EXPECT_TRUE(application_->macros().contains("More_Information"));
  EXPECT_TRUE(application_->shows_alerts() && application_->updates_screen());
}

}  // namespace
}  // namespace quorvex
