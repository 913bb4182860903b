// The message box: a question on the terminal.
#include <unistd.h>

#include <cerrno>
#include <string>

#include "host/platform/posix.h"
#include "host/run_time_failure.h"

namespace quorvex {

namespace {

// What a message quotes, a stored setting say, may hold signs that command a terminal.
std::string Harmless(std::string text) {
  for (std::size_t at = 0; at < text.size(); ++at) {
    const auto byte = static_cast<unsigned char>(text[at]);
    const bool opens_control =
        byte == 0xC2 && at + 1 < text.size() && static_cast<unsigned char>(text[at + 1]) < 0xA0;
    if ((byte < 0x20 && byte != '\n') || byte == 0x7F) text[at] = '?';
    if (opens_control) text.replace(at, 2, "?");
  }
  return text;
}

class Terminal_Box final : public Message_Box {
 public:
  Terminal_Box(int input, int output) : input_(input), output_(output) {}

  Message_Answer show(std::string_view title, std::string_view text, Message_Icon icon,
                      Message_Buttons buttons) override {
    const bool asks = buttons == Message_Buttons::yes_no;
    const Message_Answer quiet = asks ? Message_Answer::no : Message_Answer::ok;
    if (!is_attended()) return quiet;
    write_all(Harmless(std::string(title) + label(icon) + "\n" + std::string(text)) + "\n");
    while (asks) {
      write_all("Yes or no? [y/N] ");
      const std::string answer = read_line();
      if (answer.empty() || answer[0] == 'n' || answer[0] == 'N') break;
      if (answer[0] == 'y' || answer[0] == 'Y') return Message_Answer::yes;
    }
    return quiet;
  }

 private:
  static const char* label(Message_Icon icon) {
    switch (icon) {
      case Message_Icon::warning:
        return ": warning";
      case Message_Icon::error:
        return ": error";
      default:
        return "";
    }
  }

  /// Whether somebody can answer. Where another program has the terminal, or the shell has it back,
  /// reading would stop this process.
  bool is_attended() const {
    if (isatty(input_) == 0 || isatty(output_) == 0) return false;
    const pid_t reader = tcgetpgrp(input_);
    return reader < 0 || reader == getpgrp();
  }

  void write_all(std::string_view text) const {
    while (!text.empty()) {
      const ssize_t written = write(output_, text.data(), text.size());
      if (written > 0) text.remove_prefix(static_cast<std::size_t>(written));
      if (written < 0 && errno != EINTR) return;
    }
  }

  /// Reads no further than the line: what follows belongs to whoever reads next.
  std::string read_line() const {
    std::string line;
    for (char c = 0; c != '\n';) {
      const ssize_t got = read(input_, &c, 1);
      if (got < 0 && errno == EINTR && !is_broken_off()) continue;
      if (got <= 0) {
        write_all("\n");  // which nobody typed
        return line;
      }
      if (c != '\n') line += c;
    }
    return line;
  }

  /// Whether the signal that came was the user's wish to end this, which agrees to nothing.
  static bool is_broken_off() {
    try {
      Yield();
      return false;
    } catch (const Run_Time_Failure&) {
      return true;
    }
  }

  int input_;
  int output_;
};

}  // namespace

std::shared_ptr<Message_Box> Terminal_Message_Box(int input, int output) {
  return std::make_shared<Terminal_Box>(input, output);
}

}  // namespace quorvex
