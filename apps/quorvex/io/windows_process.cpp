#include <fcntl.h>
#include <io.h>

#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>

#include "host/platform.h"
#include "host/platform/windows_api.h"
#include "io/attended.h"
#include "io/descriptor.h"
#include "io/process.h"

namespace quorvex {
namespace {

/// The questions of a console program are asked in the console.
class Console_Box final : public Message_Box {
 public:
  Message_Answer show(std::string_view title, std::string_view text, Message_Icon /*icon*/,
                      Message_Buttons buttons) override {
    const bool asks = buttons == Message_Buttons::yes_no;
    const Message_Answer quiet = asks ? Message_Answer::no : Message_Answer::ok;
    if (!Is_Attended()) return quiet;
    std::cerr << title << '\n' << text << '\n' << std::flush;
    while (asks) {
      std::cerr << "Yes or no? [y/N] " << std::flush;
      const char answer = first_typed();
      if (answer == 'y' || answer == 'Y') return Message_Answer::yes;
      if (answer == '\0' || answer == 'n' || answer == 'N') break;
    }
    return quiet;
  }

 private:
  /// The first character of a line; none of an empty one, and at the end.
  static char first_typed() {
    std::string line;
    for (char c = 0; Read_Some(0, &c, 1) == 1 && c != '\n';)
      if (c != '\r') line += c;
    return line.empty() ? '\0' : line.front();
  }
};

UINT code_page_before = 0;

// The console goes on to be used by others.
void Restore_Console() {
  ::SetConsoleOutputCP(code_page_before);
}

void Set_Up_Console() {
  code_page_before = ::GetConsoleOutputCP();
  if (code_page_before == 0) return;  // there is none
  ::SetConsoleOutputCP(CP_UTF8);
  std::atexit(&Restore_Console);
  for (const DWORD which : {STD_OUTPUT_HANDLE, STD_ERROR_HANDLE}) {
    auto* const handle = ::GetStdHandle(which);
    DWORD mode = 0;
    if (::GetConsoleMode(handle, &mode) != 0)
      ::SetConsoleMode(handle, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
  }
}

}  // namespace

void Prepare_Process() {
  // Lines end as they are written, and a text may hold any byte.
  for (const int descriptor : {0, 1, 2}) ::_setmode(descriptor, _O_BINARY);
  Set_Up_Console();
  Current_Platform().message_box = std::make_shared<Console_Box>();
}

}  // namespace quorvex
