// The forms on a terminal.
#include "cli/terminal_face.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <optional>
#include <string_view>
#include <utility>

#include "cli/quiet_face.h"
#include "host/conversions.h"
#include "host/platform.h"
#include "io/attended.h"
#include "io/descriptor.h"
#include "io/wrapped.h"
#include "shell/frmAbout.h"
#include "shell/frmMaxSD.h"
#include "text/options.h"

namespace quorvex {
namespace {

// Nothing at the end of the input and when the user breaks off. Reads no further than the line:
// message boxes read the same input.
std::optional<std::string> Typed_Line() {
  std::string line;
  for (;;) {
    char character = 0;
    const ssize_t got = Read_Some(STDIN_FILENO, &character, 1);
    if (got < 0 && errno == EINTR && !Call_Guard::is_interrupted()) continue;
    if (got <= 0) return std::nullopt;
    if (character == '\n') return line;
    if (character != '\r') line += character;
  }
}

// Answers No to every question, as long as it stands in the place of the platform's message box.
class Unasked {
 public:
  Unasked()
      : before_(std::exchange(Current_Platform().message_box, std::make_shared<Quiet_Box>())) {}
  ~Unasked() { Current_Platform().message_box = before_; }
  Unasked(const Unasked&) = delete;
  Unasked& operator=(const Unasked&) = delete;

 private:
  std::shared_ptr<Message_Box> before_;
};

std::string Wrapped_Paragraphs(std::string_view text) {
  std::string wrapped;
  while (!text.empty()) {
    const std::string_view paragraph = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(paragraph.size() + 1, text.size()));
    wrapped += Wrapped(paragraph) + "\n";
  }
  return wrapped;
}

// The platform's box behind the output so far, its text in lines of the page's width.
class Orderly_Box final : public Message_Box {
 public:
  Orderly_Box(Session& session, std::shared_ptr<Message_Box> box)
      : session_(session), box_(std::move(box)) {}

  Message_Answer show(std::string_view title, std::string_view text, Message_Icon icon,
                      Message_Buttons buttons) override {
    session_.output().flush();
    std::string wrapped = Wrapped_Paragraphs(text);
    if (!wrapped.empty()) wrapped.pop_back();
    return box_->show(title, wrapped, icon, buttons);
  }

 private:
  Session& session_;
  std::shared_ptr<Message_Box> box_;
};

}  // namespace

std::shared_ptr<Terminal_Face> Show_Forms(Session& session) {
  auto face = std::make_shared<Terminal_Face>(session);
  Set_Form_Face(face);
  std::shared_ptr<Message_Box>& box = Current_Platform().message_box;
  box = std::make_shared<Orderly_Box>(session, box);
  return face;
}

void Terminal_Face::write(const std::string& text) {
  session_.output().buffer() += text;
  session_.output().flush();
}

void Terminal_Face::show(frmAbout& form) {
  write(form.Caption + "\n\n" + Wrapped_Paragraphs(form.RichTextBox1.Text) + "\n" +
        form.lblMaxSD.Caption + "\n");
  if (!Is_Attended()) {
    write("(\"quorvex settings\" changes it.)\n");
    return form.cmdOK_Click();
  }
  Call_Guard::forget_interruption();
  while (form.is_loaded()) {
    write("[Enter] " + form.cmdOK.Caption + "  [s] " + form.cmdMaxSD.Caption + ": ");
    const auto line = Typed_Line();
    if (!line) write("\n");
    if (!line || line->empty()) return form.cmdOK_Click();
    if (*line == "s" || *line == "S") form.cmdMaxSD_Click();
  }
}

void Terminal_Face::show(frmMaxSD& form) {
  if (!Is_Attended()) return form.cmdCancel_Click();
  Call_Guard::forget_interruption();
  write(form.Caption + "\n\n" + Wrapped(form.lblMainText.Caption) +
        "\n\nEnter alone keeps the number in brackets, Ctrl-D cancels.\n");
  while (form.is_loaded()) {
    write(form.lblMaxSD.Caption + " [" + form.txtMaxSD.Text() + "]: ");
    const auto line = Typed_Line();
    if (!line) {
      write("\n");
      return form.cmdCancel_Click();
    }
    if (!line->empty()) form.txtMaxSD.type_over(*line);
    if (line->empty() || form.txtMaxSD.Text() == *line) press_ok(form);
  }
}

void Terminal_Face::press_ok(frmMaxSD& form) {
  {
    std::optional<Unasked> unasked;
    if (!has_sheet_) unasked.emplace();
    form.cmdOK_Click();
  }
  has_failed_ = form.storing_problem().has_value();
  if (has_failed_) {
    session_.error(*form.storing_problem(),
                   "The stored limit is what it was; the new one ends with this run.");
  } else {
    write("The default limit is " + Number_To_Text(Default_MaxSD()) + ".\n");
  }
}

}  // namespace quorvex
