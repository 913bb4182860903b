// `quorvex settings` and `quorvex about`.
#include "cli/settings_command.h"

#include "cli/terminal_face.h"
#include "host/conversions.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "io/attended.h"
#include "shell/frmMaxSD.h"
#include "shell/show_forms.h"
#include "shell/start_up.h"
#include "text/options.h"

namespace quorvex {
namespace {

constexpr std::string_view limit_name = "max-sd";

// Brings the limit up to date with the stored one.
void Load_Limit() {
  if (const auto problem = Current_Platform().settings->problem())
    throw Usage_Error(*problem, "The default limit is 100 as long as that is so.");
  try {
    Load_Default_MaxSD();
  } catch (const Run_Time_Failure& failure) {
    throw Usage_Error(failure.what(), Bad_Setting_Advice());
  }
}

void Store_Limit(const std::string& value) {
  if (const auto problem = MaxSD_Problem(value)) throw Usage_Error(*problem);
  Set_Default_MaxSD(Text_To_Number(value));
  if (const auto problem = Store_Default_MaxSD()) throw Usage_Error(*problem);
}

Outcome Open_Dialog(Session& session) {
  try {
    Load_Limit();
  } catch (const Usage_Error& error) {
    session.error(error.what());  // and the dialog can mend it
  }
  const auto face = Show_Forms(session);
  Show_MaxSD();
  return face->has_failed() ? Outcome::wrong_usage : Outcome::success;
}

}  // namespace

Outcome Run_Settings(Session& session, const Settings_Words& words) {
  if (words.name && *words.name != limit_name)
    throw Usage_Error("there is no setting \"" + *words.name + "\"; the only one is max-sd");
  if (words.value) {
    Store_Limit(*words.value);
    return Outcome::success;
  }
  if (!words.name && Is_Attended()) return Open_Dialog(session);
  Load_Limit();
  const std::string limit = Number_To_Text(Default_MaxSD());
  session.output().write_line(words.name ? limit : std::string(limit_name) + " = " + limit);
  return Outcome::success;
}

Outcome Run_About(Session& session) {
  const auto face = Show_Forms(session);
  session.engine().qvxABOUT();
  return face->has_failed() ? Outcome::wrong_usage : Outcome::success;
}

}  // namespace quorvex
