// A dialog of the office, put together control by control.
#pragma once

#include <com/sun/star/awt/XDialog.hpp>
#include <com/sun/star/awt/XFixedText.hpp>
#include <com/sun/star/awt/XTextComponent.hpp>
#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/container/XNameContainer.hpp>
#include <com/sun/star/lang/XMultiServiceFactory.hpp>
#include <com/sun/star/uno/Reference.hxx>

#include <functional>
#include <string_view>

#include "office.h"

namespace quorvex::calc {

/// Left, top, width and height, in the units of dialogs: about a quarter and an eighth of a
/// character.
struct Place {
  sal_Int32 left;
  sal_Int32 top;
  sal_Int32 width;
  sal_Int32 height;
};

class Dialog {
 public:
  Dialog(const Context& context, std::string_view title, sal_Int32 width, sal_Int32 height);
  Dialog(const Dialog&) = delete;
  Dialog& operator=(const Dialog&) = delete;
  ~Dialog();

  void add_label(const char* name, const Place& place, std::string_view text);
  void add_text(const char* name, const Place& place, std::string_view text);
  void add_entry(const char* name, const Place& place, std::string_view text,
                 std::function<void()> change);
  void add_button(const char* name, const Place& place, std::string_view text, bool is_default,
                  std::function<void()> press);

  void set_label(const char* name, std::string_view text);
  com::sun::star::uno::Reference<com::sun::star::awt::XTextComponent> entry(const char* name);

  /// Shows the dialog, and comes back when it has been closed. `on_screen` is called when its
  /// controls are there, before the user can reach them.
  void run(const std::function<void()>& on_screen = {});
  void close();

 private:
  com::sun::star::uno::Reference<com::sun::star::beans::XPropertySet> Add(const char* kind,
                                                                          const char* name,
                                                                          const Place& place);
  com::sun::star::uno::Reference<com::sun::star::uno::XInterface> control(const char* name);

  Context context_;
  com::sun::star::uno::Reference<com::sun::star::awt::XDialog> dialog_;
  com::sun::star::uno::Reference<com::sun::star::lang::XMultiServiceFactory> factory_;
  com::sun::star::uno::Reference<com::sun::star::container::XNameContainer> model_;
};

}  // namespace quorvex::calc
