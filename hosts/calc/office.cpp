#include "office.h"

#include <com/sun/star/frame/Desktop.hpp>
#include <com/sun/star/frame/XFrame.hpp>

#include <mutex>

#include "deadline.h"
#include "shell/start_up.h"

namespace quorvex::calc {

using namespace com::sun::star;

uno::Reference<awt::XWindowPeer> Front_Window(const Context& context) {
  const auto frame = frame::Desktop::create(context)->getCurrentFrame();
  if (!frame.is()) return {};
  return {frame->getContainerWindow(), uno::UNO_QUERY};
}

std::unique_ptr<cls_Quorvex> Start_Engine(const Context& context) {
  auto engine = std::make_unique<cls_Quorvex>();
  engine->SetExcelApp(Office_Application(context));
  return engine;
}

void Settle_In(const Context& context) {
  static std::once_flag once;
  std::call_once(once, [&] {
    Platform& platform = Current_Platform();
    platform.locale = Office_Locale(context);
    platform.message_box = Office_Message_Box(context);
    Install_Deadline();
    // The office is told of the functions by the extension's configuration.
    Leave_Registration_To_Host();
    Set_Form_Face(Office_Form_Face(context));
  });
}

}  // namespace quorvex::calc
