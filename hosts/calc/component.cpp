// The component that the office calls: a method for each function, and what they share.
#include <uno/lbnames.h>
#include <com/sun/star/lang/XServiceInfo.hpp>
#include <cppuhelper/implbase2.hxx>
#include <cppuhelper/supportsservice.hxx>
#include <quorvex/calc/XFunctions.hpp>
#include <rtl/ref.hxx>
#include <uno/mapping.hxx>

#include <array>
#include <memory>
#include <utility>
#include <vector>

#include "conversion.h"
#include "deadline.h"
#include "frame/catalogue.h"
#include "functions.h"
#include "office.h"

namespace quorvex::calc {
namespace {

using com::sun::star::uno::Any;
using com::sun::star::uno::Sequence;

class Functions final : public cppu::WeakImplHelper2<::quorvex::calc::XFunctions,
                                                     com::sun::star::lang::XServiceInfo> {
 public:
  explicit Functions(const Context& context) : context_(context), offered_(Offered_Functions()) {
    Settle_In(context);
  }

  // The office calls through a proxy of this object, which it makes for each call and throws away
  // after it, unless there is one already. It takes about as long as a sum of 50 digits does
  // altogether, so one is kept, and with it this object.
  void keep_proxy() {
    const com::sun::star::uno::Mapping to_binary(CPPU_CURRENT_LANGUAGE_BINDING_NAME, UNO_LB_UNO);
    const com::sun::star::uno::Reference<::quorvex::calc::XFunctions> self(this);
    to_binary.mapInterface(self.get(), cppu::UnoType<::quorvex::calc::XFunctions>::get());
  }

#include "functions_generated.inc"

  rtl::OUString SAL_CALL getImplementationName() override {
    return "quorvex.calc.FunctionsImpl";
  }
  sal_Bool SAL_CALL supportsService(const rtl::OUString& name) override {
    return cppu::supportsService(this, name);
  }
  Sequence<rtl::OUString> SAL_CALL getSupportedServiceNames() override {
    Sequence<rtl::OUString> names(1);
    names.getArray()[0] = "quorvex.calc.Functions";
    return names;
  }

 private:
  // Nothing but a cell error leaves a call: the office would take any exception for its own.
  template <typename Body>
  Any guarded(const Body& body) {
    try {
      return With_Memory_Failures(body);
    } catch (const Run_Time_Failure& failure) {
      return Cell_Error(failure);
    } catch (...) {
      return Value_Error();
    }
  }

  template <std::size_t count>
  Any call(std::size_t index, const std::array<const Any*, count>& given) {
    return guarded([&] {
      const Timed_Call timed;
      const Method& method = *offered_[index];
      std::array<HostValue, count> arguments;
      for (std::size_t place = 0; place < count; ++place) {
        arguments[place] = From_Office(*given[place], method.parameters[place]);
      }
      return To_Office(Invoke_In_Place(engine(), method, arguments));
    });
  }

  Any call_list(std::size_t index, const Sequence<Any>& given) {
    return guarded([&] {
      const Timed_Call timed;
      List list;
      list.reserve(static_cast<std::size_t>(given.getLength()));
      for (const Any& argument : given) list.push_back(From_Office(argument));
      std::vector<HostValue> arguments;
      arguments.emplace_back(std::move(list));
      return To_Office(Invoke(engine(), *offered_[index], std::move(arguments)));
    });
  }

  // A stored limit that is no number keeps the engine from starting. Mended, it starts at the next
  // call.
  cls_Quorvex& engine() {
    if (engine_ == nullptr) engine_ = Start_Engine(context_);
    return *engine_;
  }

  Context context_;
  std::vector<const Method*> offered_;
  std::unique_ptr<cls_Quorvex> engine_;
};

}  // namespace
}  // namespace quorvex::calc

extern "C" SAL_DLLPUBLIC_EXPORT com::sun::star::uno::XInterface* quorvex_calc_functions(
    com::sun::star::uno::XComponentContext* context,
    const com::sun::star::uno::Sequence<com::sun::star::uno::Any>& /*arguments*/) {
  const rtl::Reference<quorvex::calc::Functions> functions(new quorvex::calc::Functions(context));
  functions->keep_proxy();
  return cppu::acquire(functions.get());
}
