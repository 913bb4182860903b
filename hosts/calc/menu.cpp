// What the entries of the menu do: the office makes this object for a click and names the entry.
#include <com/sun/star/lang/XServiceInfo.hpp>
#include <com/sun/star/task/XJobExecutor.hpp>
#include <cppuhelper/implbase2.hxx>
#include <cppuhelper/supportsservice.hxx>

#include <functional>
#include <optional>
#include <string>

#include "deadline.h"
#include "dialog.h"
#include "frame/class/cls_Quorvex.h"
#include "host/conversions.h"
#include "host/run_time_failure.h"
#include "office.h"
#include "shell/show_forms.h"
#include "text.h"

namespace quorvex::calc {
namespace {

using com::sun::star::uno::Sequence;

void Say(std::string_view text) {
  Current_Platform().message_box->show("Quorvex", text, Message_Icon::error, Message_Buttons::ok);
}

// Seconds as the user writes them; nothing for what is no time.
std::optional<double> Seconds(const std::string& text) {
  return With_Outer_Handler(
      [&]() -> std::optional<double> {
        const double seconds = Text_To_Number(text);
        return seconds >= 0 ? std::optional(seconds) : std::nullopt;
      },
      [](const Run_Time_Failure&) { return std::optional<double>(); });
}

void Ask_Time_Limit(const Context& context) {
  Dialog dialog(context, "Set Time Limit", 220, 96);
  dialog.add_label("lblMainText", {6, 6, 208, 32},
                   "A calculation that takes longer than this ends with the error Err:523 in its "
                   "cell. 0 sets no limit: the office then waits as long as it takes.");
  dialog.add_label("lblSeconds", {6, 48, 124, 12}, "Seconds for each function");
  dialog.add_entry("txtSeconds", {134, 46, 80, 14}, Number_To_Text(Time_Limit()), [] {});
  dialog.add_button("cmdOK", {108, 74, 50, 16}, "OK", true, [&] {
    const auto seconds = Seconds(To_Utf8(dialog.entry("txtSeconds")->getText()));
    if (!seconds) return Say("Enter a count of seconds, 0 or more.");
    With_Outer_Handler([&] { Set_Time_Limit(*seconds); },
                       [](const Run_Time_Failure& failure) { Say(failure.what()); });
    dialog.close();
  });
  dialog.add_button("cmdCancel", {164, 74, 50, 16}, "Cancel", false, [&] { dialog.close(); });
  dialog.run();
}

class Menu final : public cppu::WeakImplHelper2<com::sun::star::task::XJobExecutor,
                                                com::sun::star::lang::XServiceInfo> {
 public:
  explicit Menu(const Context& context) : context_(context) { Settle_In(context); }

  void SAL_CALL trigger(const rtl::OUString& entry) override {
    With_Outer_Handler([&] { open(To_Utf8(entry)); },
                       [](const Run_Time_Failure& failure) { Say(failure.what()); });
  }

  rtl::OUString SAL_CALL getImplementationName() override { return "quorvex.calc.MenuImpl"; }
  sal_Bool SAL_CALL supportsService(const rtl::OUString& name) override {
    return cppu::supportsService(this, name);
  }
  Sequence<rtl::OUString> SAL_CALL getSupportedServiceNames() override {
    Sequence<rtl::OUString> names(1);
    names.getArray()[0] = "quorvex.calc.Menu";
    return names;
  }

 private:
  void open(const std::string& entry) {
    if (entry == "max-sd") return show_max_sd();
    if (entry == "time-limit") return Ask_Time_Limit(context_);
    Start_Engine(context_)->qvxABOUT();
  }

  // A stored limit that is no number is mended here, so it must not be in the way.
  void show_max_sd() {
    With_Outer_Handler([&] { Start_Engine(context_); }, [](const Run_Time_Failure&) {});
    Show_MaxSD();
  }

  Context context_;
};

}  // namespace
}  // namespace quorvex::calc

extern "C" SAL_DLLPUBLIC_EXPORT com::sun::star::uno::XInterface* quorvex_calc_menu(
    com::sun::star::uno::XComponentContext* context,
    const com::sun::star::uno::Sequence<com::sun::star::uno::Any>& /*arguments*/) {
  return cppu::acquire(new quorvex::calc::Menu(context));
}
