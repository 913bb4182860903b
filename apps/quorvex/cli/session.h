// What the commands of the tool share: engine, output, and how a run ends.
#pragma once

#include <algorithm>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

#include "frame/class/cls_Quorvex.h"
#include "io/call_guard.h"
#include "io/line_io.h"

namespace quorvex {

/// In order of gravity: of several formulas the worst one decides.
enum class Outcome : int { success = 0, failed_calculation = 1, wrong_usage = 2 };

inline Outcome Worse_Of(Outcome one, Outcome other) {
  return std::max(one, other);
}

/// The tool was called with something that it can't use; the message says what, and `detail` may
/// show it in further lines.
class Usage_Error : public std::runtime_error {
 public:
  explicit Usage_Error(const std::string& message, std::string detail = {})
      : std::runtime_error(message), detail_(std::move(detail)) {}

  const std::string& detail() const noexcept { return detail_; }

 private:
  std::string detail_;
};

/// A formula with a place in it marked, as it stands below a message.
std::string Marked_Lines(std::string_view formula, std::size_t position);

/// What to do about a stored limit that is no number.
std::string Bad_Setting_Advice();

/// One run of the tool.
class Session {
 public:
  explicit Session(std::shared_ptr<Call_Guard> guard);

  /// The class, made when it is first needed: that reads the user's settings. What is wrong with
  /// them is told, and a stored limit that can't be used is a `Usage_Error`.
  cls_Quorvex& engine();
  Call_Guard& guard() { return *guard_; }
  Line_Writer& output() { return output_; }

  /// Writes "error: message" to standard error, after all output so far. `detail` holds further
  /// lines, without the last line end.
  void error(std::string_view message, std::string_view detail = {});
  /// The same for what doesn't keep the run from going on.
  void warning(std::string_view message);
  /// A line about a result, for people: not where the run is quiet.
  void note(std::string_view message);
  void set_quiet(bool on) { is_quiet_ = on; }
  bool is_quiet() const { return is_quiet_; }
  /// Writes a line of advice to standard error.
  void hint(std::string_view advice);
  /// As `error`, for a place in a formula, which is shown with the place marked.
  void error_at(std::string_view message, std::string_view formula, std::size_t position);

 private:
  void start_engine();
  void write_message(std::string_view label, std::string_view colour, std::string_view message);

  std::optional<cls_Quorvex> engine_;
  std::shared_ptr<Call_Guard> guard_;
  Line_Writer output_;
  bool is_coloured_;
  bool is_quiet_ = false;
};

}  // namespace quorvex
