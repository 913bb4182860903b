#include "late_bound.h"

#include <memory>
#include <utility>

#include "host/conversions.h"
#include "host/platform/windows_text.h"
#include "host/run_time_failure.h"

namespace quorvex::windows {
namespace {

constexpr int no_such_member = 438;
constexpr int facility_of_failures = 0x0A;
// Members have their names and numbers in English. A spreadsheet whose own language differs from
// the user's settings refuses calls in theirs.
constexpr LCID english = 0x0409;

[[noreturn]] void Fail(int number, std::string_view why) {
  throw Run_Time_Failure(Failure_Number{number},
                         why.empty() ? std::string("The host refuses.") : std::string(why));
}

// Takes the texts along.
[[noreturn]] void Fail(EXCEPINFO& exception) {
  if (exception.pfnDeferredFillIn != nullptr) exception.pfnDeferredFillIn(&exception);
  Bstr source;
  Bstr description;
  Bstr help;
  *source.put() = exception.bstrSource;
  *description.put() = exception.bstrDescription;
  *help.put() = exception.bstrHelpFile;
  Fail(exception.scode == 0 ? exception.wCode : Number_Of(exception.scode),
       From_Bstr(description.get()));
}

}  // namespace

int Number_Of(HRESULT status) {
  constexpr int type_mismatch = 13;
  switch (status) {
    case static_cast<HRESULT>(CO_E_CLASSSTRING):
    case static_cast<HRESULT>(MK_E_UNAVAILABLE):
    case static_cast<HRESULT>(REGDB_E_CLASSNOTREG):
    // A host that is gone, or has not come up yet, can't be told from one that doesn't run.
    case static_cast<HRESULT>(RPC_E_CALL_REJECTED):
    case static_cast<HRESULT>(RPC_E_SERVERCALL_RETRYLATER):
    case static_cast<HRESULT>(RPC_E_DISCONNECTED):
    case static_cast<HRESULT>(RPC_E_SERVER_DIED):
    case static_cast<HRESULT>(RPC_E_SERVER_DIED_DNE):
    case static_cast<HRESULT>(CO_E_OBJNOTCONNECTED):
    case static_cast<HRESULT>(0x800706BA):  // the server is unavailable
    case static_cast<HRESULT>(0x800706BE):  // the call failed, as it does when the server ends
      return static_cast<int>(Failure_Number::no_application);
    case static_cast<HRESULT>(DISP_E_UNKNOWNNAME):
    case static_cast<HRESULT>(DISP_E_MEMBERNOTFOUND):
      return no_such_member;
    case static_cast<HRESULT>(DISP_E_TYPEMISMATCH):
      return type_mismatch;
    case static_cast<HRESULT>(E_OUTOFMEMORY):
      return static_cast<int>(Failure_Number::out_of_memory);
    default:
      break;
  }
  if (HRESULT_FACILITY(status) == facility_of_failures) return HRESULT_CODE(status);
  return static_cast<int>(Failure_Number::invalid_call);
}

std::optional<DISPID> Late_Bound::find(const wchar_t* name) const {
  auto* text = const_cast<wchar_t*>(name);
  DISPID id = DISPID_UNKNOWN;
  const HRESULT status = object_->GetIDsOfNames(IID_NULL, &text, 1, english, &id);
  if (SUCCEEDED(status)) return id;
  const int number = Number_Of(status);
  if (number == no_such_member) return std::nullopt;
  Fail(number, System_Message(static_cast<unsigned long>(status)));
}

DISPID Late_Bound::id_of(const wchar_t* name) const {
  const auto id = find(name);
  if (!id) Fail(no_such_member, "The host has no " + Narrow_Text(name) + ".");
  return *id;
}

Variant Late_Bound::invoke(DISPID id, WORD flags, std::vector<VARIANT> reversed) const {
  DISPID property = DISPID_PROPERTYPUT;
  DISPPARAMS arguments{};
  arguments.rgvarg = reversed.data();
  arguments.cArgs = static_cast<UINT>(reversed.size());
  const bool puts = (flags & DISPATCH_PROPERTYPUT) != 0;
  if (puts) {
    arguments.rgdispidNamedArgs = &property;
    arguments.cNamedArgs = 1;
  }
  Variant result;
  EXCEPINFO exception{};
  const HRESULT status = object_->Invoke(id, IID_NULL, english, flags, &arguments,
                                         puts ? nullptr : &result, &exception, nullptr);
  if (status == DISP_E_EXCEPTION) Fail(exception);
  if (FAILED(status)) Fail(Number_Of(status), System_Message(static_cast<unsigned long>(status)));
  return result;
}

Variant Late_Bound::get(const wchar_t* name) const {
  return invoke(id_of(name), DISPATCH_PROPERTYGET | DISPATCH_METHOD, {});
}

void Late_Bound::put(const wchar_t* name, const VARIANT& value) const {
  invoke(id_of(name), DISPATCH_PROPERTYPUT, {value});
}

Variant Late_Bound::call(const wchar_t* name, std::initializer_list<VARIANT> arguments) const {
  return invoke(id_of(name), DISPATCH_METHOD, {std::rbegin(arguments), std::rend(arguments)});
}

Late_Bound Late_Bound::object(const wchar_t* name) const {
  return Object_In(get(name));
}

Variant Late_Bound::own_value() const {
  // What a range gives unasked has four decimals where the cells are formatted as currency.
  return invoke(find(L"Value2").value_or(DISPID_VALUE), DISPATCH_PROPERTYGET, {});
}

std::function<bool(Variant&)> Late_Bound::items() const {
  Com_Pointer<IEnumVARIANT> enumerator;
  bool has_one = false;
  With_Handler_For_All(
      [&] {
        const Variant found = invoke(DISPID_NEWENUM, DISPATCH_PROPERTYGET | DISPATCH_METHOD, {});
        const VARIANT& value = Peeled(*found);
        has_one = (value.vt == VT_UNKNOWN || value.vt == VT_DISPATCH) && value.punkVal != nullptr &&
                  SUCCEEDED(value.punkVal->QueryInterface(IID_IEnumVARIANT, enumerator.put_void()));
      },
      [](const Run_Time_Failure& failure) {
        // Without an enumerator there are still numbers; a busy host is another matter.
        if (static_cast<int>(failure.number()) != no_such_member) throw Run_Time_Failure(failure);
      });
  if (!has_one) return items_by_number();
  return [enumerator](Variant& item) {
    Variant next;
    ULONG count = 0;
    const HRESULT status = enumerator->Next(1, &next, &count);
    if (FAILED(status)) Fail(Number_Of(status), "The host does not go on.");
    item = std::move(next);
    return count == 1;
  };
}

std::function<bool(Variant&)> Late_Bound::items_by_number() const {
  const Variant count = get(L"Count");
  VARIANT whole;
  ::VariantInit(&whole);
  if (FAILED(::VariantChangeType(&whole, const_cast<VARIANT*>(&*count), 0, VT_I4)))
    Fail(13, "A collection does not know its size.");
  return [self = *this, last = whole.lVal, at = LONG{0}](Variant& item) mutable {
    if (at >= last) return false;
    VARIANT index;
    ::VariantInit(&index);
    index.vt = VT_I4;
    index.lVal = ++at;
    item = self.invoke(self.id_of(L"Item"), DISPATCH_METHOD | DISPATCH_PROPERTYGET, {index});
    return true;
  };
}

Late_Bound Object_In(const Variant& value) {
  const VARIANT& peeled = Peeled(*value);
  IUnknown* object = nullptr;
  if (peeled.vt == VT_DISPATCH || peeled.vt == VT_UNKNOWN) object = peeled.punkVal;
  if (peeled.vt == (VT_BYREF | VT_DISPATCH) || peeled.vt == (VT_BYREF | VT_UNKNOWN))
    object = *peeled.ppunkVal;
  Com_Pointer<IDispatch> dispatch;
  if (object != nullptr && SUCCEEDED(object->QueryInterface(IID_IDispatch, dispatch.put_void())))
    return Late_Bound(dispatch);
  Fail(13, "The host gives a value where an object is needed.");
}

}  // namespace quorvex::windows
