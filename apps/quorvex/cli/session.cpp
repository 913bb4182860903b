// What the commands of the tool share: engine, output, and how a run ends.
#include "cli/session.h"

#include <unistd.h>

#include <cstdlib>
#include <iostream>
#include <utility>

#include "formula/formula.h"

namespace quorvex {
namespace {

// https://no-color.org: any value but an empty one switches colours off.
bool Wants_Colour(int descriptor) {
  const char* no_color = std::getenv("NO_COLOR");
  const char* terminal = std::getenv("TERM");
  return ::isatty(descriptor) != 0 && (no_color == nullptr || *no_color == '\0') &&
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

Session::Session(std::shared_ptr<Call_Guard> guard)
    : guard_(std::move(guard)), output_(STDOUT_FILENO), is_coloured_(Wants_Colour(STDERR_FILENO)) {}

void Session::error(std::string_view message, std::string_view detail) {
  output_.flush();
  std::cerr << (is_coloured_ ? "\033[1;31merror:\033[0m " : "error: ") << message << '\n';
  if (!detail.empty()) std::cerr << detail << '\n';
  std::cerr.flush();
}

void Session::hint(std::string_view advice) {
  output_.flush();
  std::cerr << advice << '\n' << std::flush;
}

void Session::error_at(std::string_view message, std::string_view formula, std::size_t position) {
  error(message, Marked_Lines(formula, position));
}

}  // namespace quorvex
