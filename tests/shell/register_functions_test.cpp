// The timer's work: describing the functions to a host that may not be ready, or not there.
#include <gtest/gtest.h>

#include "frame/class/add_in.h"
#include "frame/class/cls_Quorvex.h"
#include "shell/registration_table.h"
#include "shell/scripted_host.h"
#include "shell/shell_fixture.h"

namespace quorvex {
namespace {

constexpr int quick = 500;
constexpr int slow = 5000;

class Registering : public Shell_Test {
 protected:
  Registering() {
    Current_Platform().applications = source_;
    source_->application = host_;
  }

  void expect_restored(bool restored) const {
    EXPECT_EQ(host_->alerts, restored);
    EXPECT_EQ(host_->updating, restored);
  }

  /// Whether the timer is on: a host that is asked again within ten seconds.
  bool is_armed() {
    const int before = host_->asked + source_->asked;
    after(2 * slow);
    return host_->asked + source_->asked > before;
  }

  std::shared_ptr<Scripted_Application> host_ = std::make_shared<Scripted_Application>();
  std::shared_ptr<Scripted_Source> source_ = std::make_shared<Scripted_Source>();
};

TEST_F(Registering, WaitsForTheTimerAndDescribesEveryMacroOnce) {
  const cls_Quorvex first;
  after(quick - 1);
  EXPECT_EQ(host_->asked, 0);
  const cls_Quorvex second;  // the time doesn't begin anew
  after(1);
  const auto table = Registration_Table();
  ASSERT_EQ(host_->macros.size(), table.size());
  for (std::size_t i = 0; i < table.size(); ++i) {
    EXPECT_EQ(host_->macros[i].name, "Quorvex.xla!" + std::string(table[i].macro));
    EXPECT_EQ(host_->macros[i].description, table[i].description);
    EXPECT_EQ(host_->macros[i].category, table[i].category);
  }
  EXPECT_TRUE(host_->omitted_stay_missing);
  expect_restored(true);
  EXPECT_FALSE(Shell().Started_Flag);
  EXPECT_FALSE(is_armed());
}

TEST_F(Registering, ALaterInstanceDescribesEverythingOnceMore) {
  { const cls_Quorvex first; }
  after(quick);
  const std::size_t once = host_->macros.size();
  const cls_Quorvex later;
  after(quick);
  EXPECT_EQ(host_->macros.size(), 2 * once);
}

TEST_F(Registering, PassesOverAMacroThatFails) {
  host_->failing_macro = "Quorvex.xla!qvxSUBTRACT";
  for (const int number : {1004, 50290, 18}) {
    host_->macro_fails = number;
    host_->macros.clear();
    const cls_Quorvex engine;
    after(quick);
    EXPECT_EQ(host_->macros.size(), Registration_Table().size() - 1) << number;
    EXPECT_EQ(host_->macros[1].name, "Quorvex.xla!qvxMULTIPLY");
    expect_restored(true);
    EXPECT_FALSE(Shell().Started_Flag) << number;
  }
}

TEST_F(Registering, TakesTheApplicationThatItWasGivenBeforeTheOneThatRuns) {
  const auto given = std::make_shared<Scripted_Application>();
  cls_Quorvex engine;
  engine.SetExcelApp(given);
  after(quick);
  EXPECT_FALSE(given->macros.empty());
  EXPECT_EQ(source_->asked, 0);
}

TEST_F(Registering, EndsForGoodWhereTheAddInIsNotInstalled) {
  const std::vector<std::vector<std::shared_ptr<Host_Add_In>>> lists = {
      {},
      {std::make_shared<Scripted_Add_In>("Quorvex.xla", false)},
      {std::make_shared<Scripted_Add_In>("QUORVEX.XLA", true),
       std::make_shared<Scripted_Add_In>("Quorvex.xlam", true)},
  };
  for (const auto& list : lists) {
    Shell() = Shell_State();
    host_->add_ins = list;
    const cls_Quorvex engine;
    after(quick);
    EXPECT_TRUE(host_->macros.empty());
    expect_restored(false);
    EXPECT_TRUE(Shell().Started_Flag);
    const cls_Quorvex later;
    EXPECT_FALSE(is_armed());
  }
}

TEST_F(Registering, FindsTheAddInBehindOneThatIsNotInstalled) {
  host_->add_ins.insert(host_->add_ins.begin(),
                        std::make_shared<Scripted_Add_In>("Quorvex.xla", false));
  const cls_Quorvex engine;
  after(quick);
  EXPECT_FALSE(host_->macros.empty());
}

TEST_F(Registering, WithoutAHostTriesTwentyTimesQuicklyAndThenSlowlyUpToFortyTwo) {
  source_->application = nullptr;
  const cls_Quorvex engine;
  for (int attempt = 1; attempt <= 42; ++attempt) {
    const int delay = attempt <= 20 ? quick : slow;
    after(delay - 1);
    EXPECT_EQ(source_->asked, attempt - 1);
    EXPECT_TRUE(Shell().Started_Flag);
    after(1);
    ASSERT_EQ(source_->asked, attempt);
  }
  EXPECT_FALSE(Shell().Started_Flag);
  EXPECT_FALSE(is_armed());
  EXPECT_TRUE(box_->messages.empty());

  // The count stays: a later instance tries once, after the first interval.
  const cls_Quorvex later;
  after(quick);
  EXPECT_EQ(source_->asked, 43);
  EXPECT_FALSE(Shell().Started_Flag);
  EXPECT_FALSE(is_armed());
}

TEST_F(Registering, AHostThatBecomesReadyIsToldEverything) {
  struct Obstacle {
    const char* what;
    int Scripted_Application::*place;
  };
  const Obstacle obstacles[] = {{"version", &Scripted_Application::unversioned},
                                {"alerts", &Scripted_Application::busy},
                                {"add-ins", &Scripted_Application::add_ins_fail}};
  for (const auto& [what, place] : obstacles) {
    for (const int number : {429, 50290, 40040}) {
      Shell() = Shell_State();
      host_->macros.clear();
      (*host_).*place = number;
      const cls_Quorvex engine;
      after(quick);
      after(quick);
      EXPECT_EQ(Shell().retries, 2) << what;
      EXPECT_TRUE(Shell().Started_Flag && host_->macros.empty()) << what;
      (*host_).*place = 0;
      after(quick);
      EXPECT_EQ(host_->macros.size(), Registration_Table().size()) << what;
      expect_restored(true);
      EXPECT_FALSE(Shell().Started_Flag) << what;
    }
  }
}

TEST_F(Registering, TheLastRetryRestoresTheHost) {
  host_->add_ins_fail = 50290;
  const cls_Quorvex engine;
  for (int attempt = 1; attempt < 42; ++attempt) after(slow);
  expect_restored(false);
  EXPECT_TRUE(Shell().Started_Flag);
  after(slow);
  EXPECT_EQ(Shell().retries, 42);
  expect_restored(true);
  EXPECT_FALSE(Shell().Started_Flag);
}

TEST_F(Registering, AnyOtherFailureEndsItAndRestoresTheHost) {
  // 18 breaks calculations off; from the host it is a refusal like any other.
  for (const int number : {13, 1004, 430, 18}) {
    Shell() = Shell_State();
    host_->add_ins_fail = number;
    const cls_Quorvex engine;
    after(quick);
    expect_restored(true);
    EXPECT_EQ(Shell().retries, 0);
    EXPECT_FALSE(Shell().Started_Flag);
    EXPECT_FALSE(is_armed());
  }
  source_->application = nullptr;
  for (const int number : {70, 18}) {
    source_->failure = number;
    Shell() = Shell_State();
    const cls_Quorvex engine;
    after(quick);
    EXPECT_FALSE(Shell().Started_Flag);
    EXPECT_FALSE(is_armed());
  }
}

TEST_F(Registering, RestoresWhatTheHostLetsItRestore) {
  for (const int number : {1004, 18}) {
    Shell() = Shell_State();
    host_->alerts_stay_off = number;
    const cls_Quorvex engine;
    after(quick);
    EXPECT_EQ(host_->macros.size(), Registration_Table().size()) << number;
    EXPECT_TRUE(host_->updating && !host_->alerts) << number;
    EXPECT_FALSE(Shell().Started_Flag) << number;
    host_->macros.clear();
  }
}

TEST_F(Registering, LeavesAHostOfVersionTenAloneOnceItFails) {
  const struct {
    const char* version;
    bool is_left_alone;
  } cases[] = {{"10.0", true}, {" 10", true},   {"10.0.2627", true}, {"1E1", true},
               {"9.0", false}, {"11.0", false}, {"x10", false},      {"", false},
               {"inf", false}, {"-nan", false}};
  for (const auto& c : cases) {
    Shell() = Shell_State();
    host_->version_text = c.version;
    host_->add_ins_fail = 50290;
    const cls_Quorvex engine;
    after(quick);
    EXPECT_EQ(Shell().retries, c.is_left_alone ? 0 : 1) << c.version;
    expect_restored(false);
    EXPECT_TRUE(Shell().Started_Flag);
    EXPECT_EQ(is_armed(), !c.is_left_alone) << c.version;
  }
  host_->version_text = "10.0";
  host_->add_ins_fail = 0;
  Shell() = Shell_State();
  const cls_Quorvex engine;
  after(quick);
  EXPECT_FALSE(host_->macros.empty());
}

}  // namespace
}  // namespace quorvex
