// `quorvex sheet`: a worksheet from a CSV file, calculated.
#include "cli/sheet_command.h"

#include <chrono>
#include <filesystem>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>

#include "host/conversions.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "io/paths.h"
#include "sheet/csv.h"
#include "shell/start_up.h"
#include "text/options.h"

namespace quorvex {
namespace {

constexpr std::chrono::milliseconds glance_interval(250);
constexpr int glances_before_gone = 4;

// What tells one state of a file from another.
struct File_Stamp {
  std::filesystem::file_time_type time;
  std::uintmax_t size = 0;

  bool operator==(const File_Stamp&) const = default;
};

// Nothing for a file that isn't there: editors take it away for a moment while they save.
std::optional<File_Stamp> Stamp_Of(const std::string& file) {
  std::error_code gone;
  const std::filesystem::path path = Path_Of(file);
  const File_Stamp stamp{std::filesystem::last_write_time(path, gone),
                         std::filesystem::file_size(path, gone)};
  return gone ? std::nullopt : std::optional(stamp);
}

class Watch {
 public:
  Watch(Session& session, const Sheet_Options& options)
      : session_(session), file_(options.file), sheet_(session, options) {}

  Outcome first() {
    look();
    return sheet_.load();
  }

  [[noreturn]] void go_on() {
    for (;;) {
      std::this_thread::sleep_for(glance_interval);
      Current_Platform().timers->run_due();
      const auto file = std::exchange(file_stamp_, Stamp_Of(file_));
      const auto limit = std::exchange(limit_, Stored_MaxSD());
      try {
        if (limit_ != limit) follow_limit();
        follow_file(file);
      } catch (const File_Error& error) {
        session_.error(error.what());
      } catch (const Usage_Error& error) {
        session_.error(error.what(), error.detail());
      } catch (const Run_Time_Failure& failure) {
        session_.error(failure.what());
      }
    }
  }

 private:
  void look() {
    file_stamp_ = Stamp_Of(file_);
    limit_ = Stored_MaxSD();
  }

  // Editors take a file away for a moment while they save it: only what is gone for longer is told.
  void follow_file(const std::optional<File_Stamp>& before) {
    if (!file_stamp_) {
      file_stamp_ = before;
      if (++glances_without_file_ == glances_before_gone)
        session_.warning(file_ + " is gone; waiting for it to come back.");
      return;
    }
    const bool is_back = std::exchange(glances_without_file_, 0) >= glances_before_gone;
    if (!is_back && file_stamp_ == before) return;
    session_.hint(file_ + (is_back ? " is back." : " has changed."));
    sheet_.load();
  }

  void follow_limit() {
    if (!limit_) {
      const auto problem = Current_Platform().settings->problem();
      session_.warning(problem.value_or("The default limit is no longer stored.") + " It stays " +
                       Number_To_Text(Default_MaxSD()) + " here.");
      return;
    }
    Load_Default_MaxSD();
    session_.hint("The default limit is " + Number_To_Text(Default_MaxSD()) + " now.");
    sheet_.update();
  }

  Session& session_;
  std::string file_;
  Open_Sheet sheet_;
  std::optional<File_Stamp> file_stamp_;
  int glances_without_file_ = 0;
  std::optional<std::string> limit_;
};

}  // namespace

Outcome Calculate_Sheet(Session& session, const Sheet_Options& options) {
  if (options.watch && options.file == "-")
    throw Usage_Error("--watch follows a file, and standard input is none");
  if (!options.watch) return Open_Sheet(session, options).load();
  session.engine();  // which may store the first limit
  Watch watch(session, options);
  watch.first();
  session.hint("Watching " + options.file + "; Ctrl-C ends it.");
  watch.go_on();
}

}  // namespace quorvex
