#include "dialog.h"

#include <com/sun/star/awt/Toolkit.hpp>
#include <com/sun/star/awt/UnoControlDialog.hpp>
#include <com/sun/star/awt/XActionListener.hpp>
#include <com/sun/star/awt/XButton.hpp>
#include <com/sun/star/awt/XControlContainer.hpp>
#include <com/sun/star/awt/XControlModel.hpp>
#include <com/sun/star/awt/XTextListener.hpp>
#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/lang/XComponent.hpp>
#include <cppuhelper/implbase1.hxx>

#include <utility>

#include "shell/controls.h"
#include "text.h"

namespace quorvex::calc {
namespace {

using namespace com::sun::star;

class On_Press final : public cppu::WeakImplHelper1<awt::XActionListener> {
 public:
  explicit On_Press(std::function<void()> press) : press_(std::move(press)) {}
  void SAL_CALL actionPerformed(const awt::ActionEvent& /*event*/) override { press_(); }
  void SAL_CALL disposing(const lang::EventObject& /*source*/) override {}

 private:
  std::function<void()> press_;
};

class On_Change final : public cppu::WeakImplHelper1<awt::XTextListener> {
 public:
  explicit On_Change(std::function<void()> change) : change_(std::move(change)) {}
  void SAL_CALL textChanged(const awt::TextEvent& /*event*/) override { change_(); }
  void SAL_CALL disposing(const lang::EventObject& /*source*/) override {}

 private:
  std::function<void()> change_;
};

void Put(const uno::Reference<beans::XPropertySet>& model, const Place& place) {
  model->setPropertyValue("PositionX", uno::Any(place.left));
  model->setPropertyValue("PositionY", uno::Any(place.top));
  model->setPropertyValue("Width", uno::Any(place.width));
  model->setPropertyValue("Height", uno::Any(place.height));
}

}  // namespace

Dialog::Dialog(const Context& context, std::string_view title, sal_Int32 width, sal_Int32 height)
    : context_(context) {
  const auto services = context->getServiceManager();
  const uno::Reference<awt::XControlModel> model(
      services->createInstanceWithContext("com.sun.star.awt.UnoControlDialogModel", context),
      uno::UNO_QUERY_THROW);
  factory_.set(model, uno::UNO_QUERY_THROW);
  model_.set(model, uno::UNO_QUERY_THROW);
  const uno::Reference<beans::XPropertySet> properties(model, uno::UNO_QUERY_THROW);
  Put(properties, {0, 0, width, height});
  properties->setPropertyValue("Title", uno::Any(To_Utf16(title)));
  properties->setPropertyValue("FontName", uno::Any(To_Utf16(form_font)));
  const auto dialog = awt::UnoControlDialog::create(context);
  dialog->setModel(model);
  dialog_.set(dialog, uno::UNO_QUERY_THROW);
}

Dialog::~Dialog() {
  const uno::Reference<lang::XComponent> component(dialog_, uno::UNO_QUERY);
  if (component.is()) component->dispose();
}

uno::Reference<beans::XPropertySet> Dialog::Add(const char* kind, const char* name,
                                                const Place& place) {
  const rtl::OUString service =
      "com.sun.star.awt.UnoControl" + rtl::OUString::createFromAscii(kind) + "Model";
  const uno::Reference<beans::XPropertySet> model(factory_->createInstance(service),
                                                  uno::UNO_QUERY_THROW);
  Put(model, place);
  model->setPropertyValue("FontName", uno::Any(To_Utf16(form_font)));
  const rtl::OUString known_as = rtl::OUString::createFromAscii(name);
  model->setPropertyValue("Name", uno::Any(known_as));
  model_->insertByName(known_as, uno::Any(model));
  return model;
}

uno::Reference<uno::XInterface> Dialog::control(const char* name) {
  const uno::Reference<awt::XControlContainer> container(dialog_, uno::UNO_QUERY_THROW);
  return container->getControl(rtl::OUString::createFromAscii(name));
}

void Dialog::add_label(const char* name, const Place& place, std::string_view text) {
  const auto model = Add("FixedText", name, place);
  model->setPropertyValue("MultiLine", uno::Any(true));
  model->setPropertyValue("Label", uno::Any(To_Utf16(text)));
}

void Dialog::add_text(const char* name, const Place& place, std::string_view text) {
  const auto model = Add("Edit", name, place);
  model->setPropertyValue("MultiLine", uno::Any(true));
  model->setPropertyValue("ReadOnly", uno::Any(true));
  model->setPropertyValue("VScroll", uno::Any(true));
  model->setPropertyValue("Text", uno::Any(To_Utf16(text)));
}

void Dialog::add_entry(const char* name, const Place& place, std::string_view text,
                       std::function<void()> change) {
  Add("Edit", name, place)->setPropertyValue("Text", uno::Any(To_Utf16(text)));
  entry(name)->addTextListener(new On_Change(std::move(change)));
}

void Dialog::add_button(const char* name, const Place& place, std::string_view text,
                        bool is_default, std::function<void()> press) {
  const auto model = Add("Button", name, place);
  model->setPropertyValue("Label", uno::Any(To_Utf16(text)));
  model->setPropertyValue("DefaultButton", uno::Any(is_default));
  const uno::Reference<awt::XButton> button(control(name), uno::UNO_QUERY_THROW);
  button->addActionListener(new On_Press(std::move(press)));
}

void Dialog::set_label(const char* name, std::string_view text) {
  const uno::Reference<awt::XFixedText> label(control(name), uno::UNO_QUERY_THROW);
  label->setText(To_Utf16(text));
}

uno::Reference<awt::XTextComponent> Dialog::entry(const char* name) {
  return {control(name), uno::UNO_QUERY_THROW};
}

void Dialog::run(const std::function<void()>& on_screen) {
  const uno::Reference<awt::XControl> control(dialog_, uno::UNO_QUERY_THROW);
  control->createPeer(
      uno::Reference<awt::XToolkit>(awt::Toolkit::create(context_), uno::UNO_QUERY_THROW),
      Front_Window(context_));
  if (on_screen) on_screen();
  dialog_->execute();
}

void Dialog::close() {
  dialog_->endExecute();
}

}  // namespace quorvex::calc
