// The forms on a terminal.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "cli/session.h"
#include "shell/form_face.h"

namespace quorvex {

/// Shows About as text, and on a terminal asks which of its buttons to press. Of the dialog that
/// sets the limit, a line that is typed replaces what stands in the box, and OK is pressed if the
/// box takes it; an empty line presses OK alone, and the end of the input, or Ctrl-C where that
/// doesn't end the tool, presses Cancel. Where somebody takes back lines that answer no question,
/// such a line presses Cancel, too.
class Terminal_Face final : public Form_Face {
 public:
  explicit Terminal_Face(Session& session) : session_(session) {}

  void show(frmAbout& form) override;
  void show(frmMaxSD& form) override;

  /// Says that a worksheet is open. As long as none is, nobody is asked whether to recalculate.
  void note_open_sheet() { has_sheet_ = true; }

  /// Who takes a line that was typed for something else than the question that is asked.
  void set_taker(std::function<void(std::string)> taker) { taker_ = std::move(taker); }

  /// Asks once, and again only where nobody takes what is no answer. Anything but yes is no.
  bool asks_yes();

  /// Whether the limit that was set last could not be stored.
  bool has_failed() const { return has_failed_; }

 private:
  void write(const std::string& text);
  void press_ok(frmMaxSD& form);
  bool hands_on(const std::string& line);

  std::function<void(std::string)> taker_;

  Session& session_;
  bool has_sheet_ = false;
  bool has_failed_ = false;
};

/// Has forms drawn by such a face, and questions asked behind the output so far. The session has to
/// last as long as forms can be shown.
std::shared_ptr<Terminal_Face> Show_Forms(Session& session);

}  // namespace quorvex
