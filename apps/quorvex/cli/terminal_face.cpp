// The forms on a terminal.
#include "cli/terminal_face.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>

#include "cli/quiet_face.h"
#include "formula/literals.h"
#include "host/conversions.h"
#include "host/platform.h"
#include "io/attended.h"
#include "io/typed_line.h"
#include "io/wrapped.h"
#include "shell/frmAbout.h"
#include "shell/frmMaxSD.h"
#include "text/options.h"

namespace quorvex {
namespace {

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

std::string Title_Line(std::string_view title, Message_Icon icon) {
  std::string line(title);
  if (icon == Message_Icon::warning) line += ": warning";
  if (icon == Message_Icon::error) line += ": error";
  return line + "\n";
}

// Messages and questions behind the output so far, in lines of the page's width.
class Orderly_Box final : public Message_Box {
 public:
  Orderly_Box(Session& session, std::shared_ptr<Terminal_Face> face)
      : session_(session), face_(std::move(face)) {}

  Message_Answer show(std::string_view title, std::string_view text, Message_Icon icon,
                      Message_Buttons buttons) override {
    const bool asks = buttons == Message_Buttons::yes_no;
    if (!Is_Attended()) return asks ? Message_Answer::no : Message_Answer::ok;
    session_.output().buffer() += Title_Line(title, icon) + Wrapped_Paragraphs(text);
    session_.output().flush();
    if (!asks) return Message_Answer::ok;
    return face_->asks_yes() ? Message_Answer::yes : Message_Answer::no;
  }

 private:
  Session& session_;
  std::shared_ptr<Terminal_Face> face_;
};

}  // namespace

std::shared_ptr<Terminal_Face> Show_Forms(Session& session) {
  auto face = std::make_shared<Terminal_Face>(session);
  Use_Face(face);
  Current_Platform().message_box = std::make_shared<Orderly_Box>(session, face);
  return face;
}

void Terminal_Face::write(const std::string& text) {
  session_.output().buffer() += text;
  session_.output().flush();
}

// A line that answers nothing was typed ahead, or for the prompt.
bool Terminal_Face::hands_on(const std::string& line) {
  if (!taker_) return false;
  taker_(line);
  return true;
}

bool Terminal_Face::asks_yes() {
  for (;;) {
    write("Yes or no? [y/N] ");
    const auto line = Typed_Line();
    if (!line) write("\n");
    if (!line || line->empty() || *line == "n" || *line == "N" || Same_Word(*line, "no"))
      return false;
    if (*line == "y" || *line == "Y" || Same_Word(*line, "yes")) return true;
    if (hands_on(*line)) return false;
  }
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
    if (*line == "s" || *line == "S") {
      form.cmdMaxSD_Click();
    } else if (hands_on(*line)) {
      return form.cmdOK_Click();
    }
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
    const bool is_answer = line->find_first_not_of("0123456789") == std::string::npos;
    if (!is_answer && hands_on(*line)) {
      write("The limit stays as it is.\n");
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
