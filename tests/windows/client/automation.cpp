#include "automation.h"

#include <list>

#include "host/platform/windows_text.h"

namespace quorvex::windows {
namespace {

// What tests hand over lives as long as they do.
VARIANT Kept(VARIANT value) {
  static std::list<Variant> kept;
  kept.emplace_back();
  *kept.back() = value;
  return value;
}

}  // namespace

Com_Pointer<IDispatch> Make_Object(HRESULT* status) {
  CLSID kind;
  Com_Pointer<IDispatch> object;
  HRESULT made = ::CLSIDFromProgID(Wide_Text(prog_id).c_str(), &kind);
  if (SUCCEEDED(made))
    made =
        ::CoCreateInstance(kind, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, object.put_void());
  if (status != nullptr) *status = made;
  return object;
}

DISPID Id_Of(IDispatch& object, const std::string& name) {
  std::wstring wide = Wide_Text(name);
  wchar_t* text = wide.data();
  DISPID id = DISPID_UNKNOWN;
  object.GetIDsOfNames(IID_NULL, &text, 1, LOCALE_USER_DEFAULT, &id);
  return id;
}

Outcome Call_Late(IDispatch& object, const std::string& method, const Values& positional,
                  const std::map<std::string, VARIANT>& named, WORD flags) {
  Outcome outcome;
  std::vector<std::wstring> names = {Wide_Text(method)};
  Values given;
  for (const auto& [name, value] : named) {
    names.push_back(Wide_Text(name));
    given.push_back(value);
  }
  std::vector<LPOLESTR> texts;
  for (std::wstring& name : names) texts.push_back(name.data());
  std::vector<DISPID> ids(names.size());
  outcome.status = object.GetIDsOfNames(IID_NULL, texts.data(), static_cast<UINT>(texts.size()),
                                        LOCALE_USER_DEFAULT, ids.data());
  if (FAILED(outcome.status)) return outcome;
  given.insert(given.end(), positional.rbegin(), positional.rend());
  DISPPARAMS arguments{given.data(), ids.data() + 1, static_cast<UINT>(given.size()),
                       static_cast<UINT>(named.size())};
  EXCEPINFO exception{};
  outcome.status = object.Invoke(ids[0], IID_NULL, LOCALE_USER_DEFAULT, flags, &arguments,
                                 &outcome.result, &exception, &outcome.bad_argument);
  if (outcome.status != DISP_E_EXCEPTION) return outcome;
  outcome.number = HRESULT_CODE(exception.scode);
  outcome.description = From_Bstr(exception.bstrDescription);
  outcome.source = From_Bstr(exception.bstrSource);
  ::SysFreeString(exception.bstrDescription);
  ::SysFreeString(exception.bstrSource);
  return outcome;
}

std::string Text_Of_Call(IDispatch& object, const std::string& method, const Values& positional) {
  const Outcome outcome = Call_Late(object, method, positional);
  if (outcome.status == DISP_E_EXCEPTION) return "error " + std::to_string(outcome.number);
  if (FAILED(outcome.status)) return "status " + std::to_string(outcome.status);
  return Text_In(*outcome.result);
}

VARIANT Number(double number) {
  VARIANT value;
  ::VariantInit(&value);
  value.vt = VT_R8;
  value.dblVal = number;
  return value;
}

VARIANT Truth(bool truth) {
  VARIANT value;
  ::VariantInit(&value);
  value.vt = VT_BOOL;
  value.boolVal = truth ? VARIANT_TRUE : VARIANT_FALSE;
  return value;
}

VARIANT Text(std::string_view text) {
  VARIANT value;
  ::VariantInit(&value);
  value.vt = VT_BSTR;
  value.bstrVal = Make_Bstr(text);
  return Kept(value);
}

VARIANT By_Reference(VARIANT& value) {
  VARIANT reference;
  ::VariantInit(&reference);
  reference.vt = VT_BYREF | VT_VARIANT;
  reference.pvarVal = &value;
  return reference;
}

VARIANT Vector(const Values& elements) {
  VARIANT value;
  ::VariantInit(&value);
  value.vt = VT_ARRAY | VT_VARIANT;
  value.parray = ::SafeArrayCreateVector(VT_VARIANT, 0, static_cast<ULONG>(elements.size()));
  LONG index = 0;
  for (const VARIANT& element : elements) {
    ::SafeArrayPutElement(value.parray, &index, const_cast<VARIANT*>(&element));
    ++index;
  }
  return Kept(value);
}

VARIANT Table(long rows, long columns, const Values& row_by_row) {
  SAFEARRAYBOUND bounds[2] = {{static_cast<ULONG>(rows), 1}, {static_cast<ULONG>(columns), 1}};
  VARIANT value;
  ::VariantInit(&value);
  value.vt = VT_ARRAY | VT_VARIANT;
  value.parray = ::SafeArrayCreate(VT_VARIANT, 2, bounds);
  std::size_t done = 0;
  for (LONG row = 1; row <= rows; ++row) {
    for (LONG column = 1; column <= columns; ++column) {
      LONG place[2] = {row, column};
      ::SafeArrayPutElement(value.parray, place, const_cast<VARIANT*>(&row_by_row[done++]));
    }
  }
  return Kept(value);
}

std::string Text_In(const VARIANT& value) {
  Variant text;
  if (value.vt == VT_ERROR) return "error value " + std::to_string(value.scode & 0xFFFF);
  if (FAILED(::VariantChangeType(&text, const_cast<VARIANT*>(&value), VARIANT_ALPHABOOL, VT_BSTR)))
    return "kind " + std::to_string(value.vt);
  return From_Bstr(text->bstrVal);
}

}  // namespace quorvex::windows
