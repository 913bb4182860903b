// What happens when the class is made, and the small methods of the add-in itself.
#include <gtest/gtest.h>

#include <filesystem>

#include "frame/catalogue.h"
#include "frame/class/add_in.h"
#include "frame/class/cls_Quorvex.h"
#include "quorvex_version.h"
#include "shell/scripted_host.h"
#include "shell/shell_fixture.h"
#include "support/failures.h"

namespace quorvex {
namespace {

using Start_Up = Shell_Test;

TEST_F(Start_Up, LoadsTheStoredLimitAndStoresTheFirst) {
  const struct {
    std::optional<std::string> before;
    std::optional<Failure_Number> failure;
    double limit;  // 7 stays where loading fails
    std::string after;
  } cases[] = {
      {std::nullopt, std::nullopt, 100, "100"},
      {"N/A", std::nullopt, 100, "100"},
      {"250", std::nullopt, 250, "250"},
      {"0", std::nullopt, 0, "0"},
      {"-3", std::nullopt, -3, "-3"},
      {"1E+12", std::nullopt, 1e12, "1E+12"},  // no range is checked
      {" 1,000.5 ", std::nullopt, 1000.5, " 1,000.5 "},
      {"many", Failure_Number::type_mismatch, 7, "many"},
      {"", Failure_Number::type_mismatch, 7, ""},
      {"1E+400", Failure_Number::overflow, 7, "1E+400"},
  };
  for (const auto& c : cases) {
    Current_Platform().settings = Settings_In_Memory();
    if (c.before) store(*c.before);
    Set_Default_MaxSD(7);
    EXPECT_EQ(Failure_Of([] { cls_Quorvex(); }), c.failure) << c.after;
    EXPECT_EQ(Default_MaxSD(), c.limit) << c.after;
    EXPECT_EQ(stored(), c.after);
  }
}

// A store on a disk that takes nothing.
class Read_Only_Settings final : public Settings_Store {
 public:
  std::optional<std::string> read(std::string_view, std::string_view, std::string_view) override {
    return std::nullopt;
  }
  void write(std::string_view, std::string_view, std::string_view, std::string_view) override {
    throw Run_Time_Failure(Failure_Number::invalid_call, "The disk is read-only.");
  }
};

TEST_F(Start_Up, NeedsNoDiskThatCanBeWritten) {
  Current_Platform().settings = std::make_shared<Read_Only_Settings>();
  Set_Default_MaxSD(7);
  cls_Quorvex engine;
  EXPECT_EQ(engine.qvxDEFAULTMAXSD().number(), 100);
}

TEST_F(Start_Up, EveryInstanceLoadsAnew) {
  cls_Quorvex first;
  store("12");
  EXPECT_EQ(first.qvxDEFAULTMAXSD().number(), 100);
  const cls_Quorvex second;
  EXPECT_EQ(first.qvxDEFAULTMAXSD().number(), 12);  // they share it
}

TEST_F(Start_Up, KeepsTheApplicationUntilItIsCleared) {
  const auto one = std::make_shared<Scripted_Application>();
  const auto other = std::make_shared<Scripted_Application>();
  cls_Quorvex engine;
  engine.SetExcelApp(one);
  EXPECT_EQ(Excel_App(nullptr, false), one);
  engine.SetExcelApp(nullptr);
  EXPECT_EQ(Excel_App(nullptr, false), one);
  EXPECT_EQ(Excel_App(other, false), other);
  EXPECT_EQ(Excel_App(one, true), nullptr);
}

TEST_F(Start_Up, AnApplicationIsNoValue) {
  cls_Quorvex engine;
  const Method& method = *Find_Method("SetExcelApp");
  const auto application = std::make_shared<Scripted_Application>();
  engine.SetExcelApp(application);
  Invoke(engine, method, {HostValue::Empty()});
  Invoke(engine, method, {});
  EXPECT_EQ(Excel_App(nullptr, false), application);
  EXPECT_EQ(Failure_Of([&] { Invoke(engine, method, {HostValue("x")}); }),
            Failure_Number::type_mismatch);
}

TEST_F(Start_Up, TellsItsVersionAndWhereItsHelpBelongs) {
  cls_Quorvex engine;
  EXPECT_EQ(engine.qvxVERSION(), "3.1");
  EXPECT_EQ(std::string(version).rfind(engine.qvxVERSION() + ".", 0), 0U) << version;
  EXPECT_EQ(engine.qvxTEST(), "Welcome to Quorvex 3.1!");
  // In this program the engine is no library of its own.
  const auto program = std::filesystem::absolute(testing::internal::GetArgvs().front());
  const std::string help = engine.qvxHelpfilePath();
  ASSERT_TRUE(help.ends_with("\\Quorvex.chm")) << help;
  EXPECT_TRUE(std::filesystem::equivalent(help.substr(0, help.rfind('\\')), program.parent_path()))
      << help;
}

}  // namespace
}  // namespace quorvex
