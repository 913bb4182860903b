// Message boxes of the office.
#include <com/sun/star/awt/MessageBoxButtons.hpp>
#include <com/sun/star/awt/MessageBoxResults.hpp>
#include <com/sun/star/awt/MessageBoxType.hpp>
#include <com/sun/star/awt/Toolkit.hpp>
#include <com/sun/star/awt/XMessageBox.hpp>
#include <com/sun/star/awt/XMessageBoxFactory.hpp>
#include <com/sun/star/lang/XComponent.hpp>

#include "office.h"
#include "text.h"

namespace quorvex::calc {
namespace {

using namespace com::sun::star;

awt::MessageBoxType Kind_Of(Message_Icon icon, Message_Buttons buttons) {
  if (buttons == Message_Buttons::yes_no) return awt::MessageBoxType_QUERYBOX;
  switch (icon) {
    case Message_Icon::error:
      return awt::MessageBoxType_ERRORBOX;
    case Message_Icon::warning:
      return awt::MessageBoxType_WARNINGBOX;
    case Message_Icon::question:
      return awt::MessageBoxType_QUERYBOX;
    case Message_Icon::information:
      return awt::MessageBoxType_INFOBOX;
    case Message_Icon::none:
      break;
  }
  return awt::MessageBoxType_MESSAGEBOX;
}

class Box_Of_Office final : public Message_Box {
 public:
  explicit Box_Of_Office(const Context& context) : context_(context) {}

  Message_Answer show(std::string_view title, std::string_view text, Message_Icon icon,
                      Message_Buttons buttons) override {
    const bool asks = buttons == Message_Buttons::yes_no;
    const auto toolkit = awt::Toolkit::create(context_);
    const uno::Reference<awt::XMessageBoxFactory> boxes(toolkit, uno::UNO_QUERY_THROW);
    const auto box = boxes->createMessageBox(
        Front_Window(context_), Kind_Of(icon, buttons),
        asks ? awt::MessageBoxButtons::BUTTONS_YES_NO : awt::MessageBoxButtons::BUTTONS_OK,
        To_Utf16(title), To_Utf16(text));
    if (!box.is()) return asks ? Message_Answer::no : Message_Answer::ok;
    const bool yes = box->execute() == awt::MessageBoxResults::YES;
    uno::Reference<lang::XComponent>(box, uno::UNO_QUERY_THROW)->dispose();
    if (!asks) return Message_Answer::ok;
    return yes ? Message_Answer::yes : Message_Answer::no;
  }

 private:
  Context context_;
};

}  // namespace

std::shared_ptr<Message_Box> Office_Message_Box(const Context& context) {
  return std::make_shared<Box_Of_Office>(context);
}

}  // namespace quorvex::calc
