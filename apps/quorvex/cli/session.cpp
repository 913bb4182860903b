// What the commands of the tool share: engine, output, and how a run ends.
#include "cli/session.h"

#include <unistd.h>

#include <cstdlib>
#include <iostream>
#include <utility>

#include "formula/formula.h"
#include "host/conversions.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "io/attended.h"
#include "shell/frmMaxSD.h"
#include "text/options.h"

namespace quorvex {
namespace {

// https://no-color.org: any value but an empty one switches colours off.
bool Wants_Colour(int descriptor) {
  const char* no_color = std::getenv("NO_COLOR");
  const char* terminal = std::getenv("TERM");
  return Is_Terminal(descriptor) && (no_color == nullptr || *no_color == '\0') &&
         terminal != nullptr && std::string_view(terminal) != "dumb";
}

}  // namespace

std::string Marked_Lines(std::string_view formula, std::size_t position) {
  std::string marked = "  ";
  for (const char character : Mark_Place(formula, position)) {
    marked += character;
    if (character == '\n') marked += "  ";
  }
  return marked;
}

std::string Bad_Setting_Advice() {
  return "It stands in " + Current_Platform().settings->place() +
         "; \"quorvex settings max-sd N\" stores another.";
}

Session::Session(std::shared_ptr<Call_Guard> guard)
    : guard_(std::move(guard)), output_(STDOUT_FILENO), is_coloured_(Wants_Colour(STDERR_FILENO)) {}

cls_Quorvex& Session::engine() {
  if (!engine_) start_engine();
  return *engine_;
}

void Session::start_engine() {
  Settings_Store& settings = *Current_Platform().settings;
  // Asked first, since an empty file is filled then.
  const auto problem = settings.problem();
  try {
    engine_.emplace();
  } catch (const Run_Time_Failure& failure) {
    throw Usage_Error(failure.what(), Bad_Setting_Advice());
  }
  if (problem) warning(*problem + " The default limit is 100.");
  const std::string limit = Number_To_Text(Default_MaxSD());
  if (MaxSD_Problem(limit)) {
    warning("The stored default limit is " + limit +
            ", and should be a whole number from 0 to 2147483648. " + Bad_Setting_Advice());
  }
}

void Session::write_message(std::string_view label, std::string_view colour,
                            std::string_view message) {
  output_.flush();
  std::cerr << (is_coloured_ ? colour : "") << label << (is_coloured_ ? "\033[0m " : " ") << message
            << '\n'
            << std::flush;
}

void Session::error(std::string_view message, std::string_view detail) {
  write_message("error:", "\033[1;31m", message);
  if (!detail.empty()) hint(detail);
}

void Session::warning(std::string_view message) {
  write_message("warning:", "\033[1;33m", message);
}

void Session::hint(std::string_view advice) {
  output_.flush();
  std::cerr << advice << '\n' << std::flush;
}

void Session::error_at(std::string_view message, std::string_view formula, std::size_t position) {
  error(message, Marked_Lines(formula, position));
}

}  // namespace quorvex
