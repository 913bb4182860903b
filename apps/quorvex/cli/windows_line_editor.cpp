// Lines typed at the console, which has editing and a history of its own; names are not completed.
#include <unistd.h>

#include <utility>

#include "cli/line_editor.h"
#include "io/call_guard.h"
#include "io/descriptor.h"
#include "io/line_io.h"

namespace quorvex {

class Line_Editor::State {
 public:
  explicit State(std::string prompt) : prompt_(std::move(prompt)) {}

  Status read(std::string& line) {
    // A calculation that was over before it heeded Ctrl-C has nothing to do with this line.
    Call_Guard::forget_interruption();
    write(prompt_);
    line.clear();
    for (;;) {
      char character = 0;
      if (Read_Some(STDIN_FILENO, &character, 1) != 1) return ending();
      if (character == '\n') return Status::line;
      if (character != '\r') line += character;
    }
  }

 private:
  static void write(std::string_view text) {
    Line_Writer writer(STDOUT_FILENO);
    writer.buffer() = text;
    writer.flush();
  }

  static Status ending() {
    if (!Call_Guard::is_interrupted()) return Status::end;
    Call_Guard::forget_interruption();
    write("\n");
    return Status::interrupted;
  }

  std::string prompt_;
};

Line_Editor::Line_Editor(std::string prompt, std::filesystem::path /*history_file*/,
                         Completer /*completer*/)
    : state_(std::make_unique<State>(std::move(prompt))) {}

Line_Editor::~Line_Editor() = default;

Line_Editor::Status Line_Editor::read(std::string& line) {
  return state_->read(line);
}

void Line_Editor::remember(const std::string& /*line*/) {}

}  // namespace quorvex
