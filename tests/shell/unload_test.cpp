// A host that unloads the library, and one that describes the functions by itself.
#include "shell/unload.h"

#include <gtest/gtest.h>

#include "frame/class/cls_Quorvex.h"
#include "shell/form_face.h"
#include "shell/frmAbout.h"
#include "shell/frmMaxSD.h"
#include "shell/scripted_host.h"
#include "shell/shell_fixture.h"
#include "shell/start_up.h"
#include "support/failures.h"

namespace quorvex {
namespace {

constexpr int first_delay = 500;

/// Asks, as a host might from within, whether the library could go, and tries to end it.
struct Unloading {
  void attempt() {
    was_busy = Shell_Is_Busy();
    failure = Failure_Of([] { Shell_Shut_Down(); });
  }
  void expect_refused() const {
    EXPECT_TRUE(was_busy);
    EXPECT_EQ(failure, Failure_Number::invalid_call);
  }

  bool was_busy = false;
  std::optional<Failure_Number> failure;
};

struct Unloading_Face final : Form_Face, Unloading {
  void show(frmAbout& form) override {
    attempt();
    form.cmdOK_Click();
  }
  void show(frmMaxSD& form) override { form.cmdCancel_Click(); }
};

struct Unloading_Source final : Application_Source, Unloading {
  std::shared_ptr<Host_Application> running() override {
    attempt();
    Fail_With(1004);
  }
};

using Unload = Shell_Test;

TEST_F(Unload, AnArmedTimerKeepsTheShellBusyUntilItIsShutDown) {
  EXPECT_FALSE(Shell_Is_Busy());
  const auto source = std::make_shared<Scripted_Source>();
  Current_Platform().applications = source;
  { const cls_Quorvex engine; }
  EXPECT_TRUE(Shell_Is_Busy());
  Shell_Shut_Down();
  EXPECT_FALSE(Shell_Is_Busy());
  after(first_delay);
  EXPECT_EQ(source->asked, 0);
  { const cls_Quorvex engine; }  // begins anew
  EXPECT_TRUE(Shell_Is_Busy());
}

TEST_F(Unload, IsRefusedWhileTheFunctionsAreDescribed) {
  const auto source = std::make_shared<Unloading_Source>();
  Current_Platform().applications = source;
  const cls_Quorvex engine;
  after(first_delay);
  source->expect_refused();
  EXPECT_FALSE(Shell_Is_Busy()) << "the host failed for good";
}

TEST_F(Unload, IsRefusedFromWithinAForm) {
  const auto face = std::make_shared<Unloading_Face>();
  Set_Form_Face(face);
  Leave_Registration_To_Host();
  cls_Quorvex engine;
  engine.qvxABOUT();
  face->expect_refused();
  EXPECT_FALSE(Shell_Is_Busy());
}

TEST_F(Unload, LetsGoOfTheHostAndOfFormsThatAreOpen) {
  const auto host = std::make_shared<Scripted_Application>();
  const auto face = std::make_shared<Unloading_Face>();
  Leave_Registration_To_Host();
  cls_Quorvex engine;
  engine.SetExcelApp(host);
  Set_Form_Face(face);
  Default_frmMaxSD()->Load();
  const std::weak_ptr<frmMaxSD> form = Default_frmMaxSD();
  EXPECT_TRUE(Shell_Is_Busy());
  Shell_Shut_Down();
  EXPECT_FALSE(Shell_Is_Busy());
  EXPECT_TRUE(form.expired());
  EXPECT_EQ(host.use_count(), 1);
  EXPECT_EQ(face.use_count(), 1);
}

TEST_F(Unload, AHostThatDescribesTheFunctionsItselfIsNeverAsked) {
  const auto source = std::make_shared<Scripted_Source>();
  Current_Platform().applications = source;
  const cls_Quorvex before;
  Leave_Registration_To_Host();
  const cls_Quorvex behind;
  EXPECT_FALSE(Shell_Is_Busy());
  after(2 * first_delay);
  EXPECT_EQ(source->asked, 0);
  EXPECT_EQ(stored(), "100") << "the stored limit is loaded all the same";
}

}  // namespace
}  // namespace quorvex
