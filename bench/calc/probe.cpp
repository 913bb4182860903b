// A function of an extension that does nothing but give its first argument back: what the office
// takes for any function that is added.
#include <com/sun/star/lang/XServiceInfo.hpp>
#include <com/sun/star/uno/XComponentContext.hpp>
#include <cppuhelper/implbase2.hxx>
#include <cppuhelper/supportsservice.hxx>
#include <quorvex/probe/XProbe.hpp>

namespace {

using com::sun::star::uno::Any;
using com::sun::star::uno::Sequence;

class Probe final
    : public cppu::WeakImplHelper2<quorvex::probe::XProbe, com::sun::star::lang::XServiceInfo> {
 public:
  Any SAL_CALL QVXPROBE(const Any& p1, const Any&, const Any&, const Any&, const Any&, const Any&,
                        const Any&, const Any&, const Any&) override {
    return p1;
  }
  rtl::OUString SAL_CALL getImplementationName() override { return "quorvex.probe.ProbeImpl"; }
  sal_Bool SAL_CALL supportsService(const rtl::OUString& name) override {
    return cppu::supportsService(this, name);
  }
  Sequence<rtl::OUString> SAL_CALL getSupportedServiceNames() override {
    Sequence<rtl::OUString> names(1);
    names.getArray()[0] = "quorvex.probe.Probe";
    return names;
  }
};

}  // namespace

extern "C" SAL_DLLPUBLIC_EXPORT com::sun::star::uno::XInterface* quorvex_probe(
    com::sun::star::uno::XComponentContext* /*context*/, const Sequence<Any>& /*arguments*/) {
  return cppu::acquire(new Probe);
}
