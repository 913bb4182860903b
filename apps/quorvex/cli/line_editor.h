// Lines typed on a terminal, with editing, history and completion.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quorvex {

/// What the word before the cursor can become.
struct Completion {
  std::size_t typed = 0;                // bytes of the word
  std::string replacement;              // for the word; empty if nothing begins like it
  std::vector<std::string> candidates;  // to choose from, if there are several
};

/// Finds the completion of a line that is typed so far.
using Completer = std::function<Completion(std::string_view before_cursor)>;

/// Reads lines from standard input and edits them on standard output. There is one at a time.
class Line_Editor {
 public:
  enum class Status { line, interrupted, end };

  /// The history is kept in the file, whose folder is made when it is first needed; an empty path
  /// keeps none.
  Line_Editor(std::string prompt, std::filesystem::path history_file, Completer completer);
  ~Line_Editor();
  Line_Editor(const Line_Editor&) = delete;
  Line_Editor& operator=(const Line_Editor&) = delete;

  /// Ctrl-C gives `interrupted`, with the line given up.
  Status read(std::string& line);
  /// Adds a line to the history.
  void remember(const std::string& line);

 private:
  class State;

  std::unique_ptr<State> state_;
};

}  // namespace quorvex
