// The message box.
#include "host/platform/windows.h"
#include "host/platform/windows_api.h"
#include "host/platform/windows_text.h"

namespace quorvex {

namespace {

UINT Flag_Of(Message_Icon icon) {
  switch (icon) {
    case Message_Icon::information:
      return MB_ICONINFORMATION;
    case Message_Icon::question:
      return MB_ICONQUESTION;
    case Message_Icon::warning:
      return MB_ICONWARNING;
    case Message_Icon::error:
      return MB_ICONERROR;
    default:
      return 0;
  }
}

class System_Box final : public Message_Box {
 public:
  Message_Answer show(std::string_view title, std::string_view text, Message_Icon icon,
                      Message_Buttons buttons) override {
    const bool asks = buttons == Message_Buttons::yes_no;
    // The dialog or spreadsheet that the user is in waits for the answer.
    const int pressed =
        ::MessageBoxW(::GetActiveWindow(), Wide_Text(text).c_str(), Wide_Text(title).c_str(),
                      Flag_Of(icon) | (asks ? MB_YESNO : MB_OK) | MB_TASKMODAL);
    if (!asks) return Message_Answer::ok;
    // Where no box can be shown, nobody agrees to anything.
    return pressed == IDYES ? Message_Answer::yes : Message_Answer::no;
  }
};

}  // namespace

std::shared_ptr<Message_Box> Window_Message_Box() {
  return std::make_shared<System_Box>();
}

}  // namespace quorvex
