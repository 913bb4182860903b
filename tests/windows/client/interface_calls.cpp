#include "interface_calls.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <span>

#include "host/platform/windows_text.h"

namespace quorvex::windows {
namespace {

std::string Name_Of_Type(ITypeInfo& owner, HREFTYPE reference) {
  Com_Pointer<ITypeInfo> type;
  Bstr name;
  if (FAILED(owner.GetRefTypeInfo(reference, type.put()))) return {};
  type->GetDocumentation(MEMBERID_NIL, name.put(), nullptr, nullptr, nullptr);
  return From_Bstr(name.get());
}

// What a parameter or result refers to.
VARTYPE Type_Behind(ITypeInfo& owner, const TYPEDESC& type, std::string* record) {
  if (type.vt == VT_USERDEFINED) {
    if (record != nullptr) *record = Name_Of_Type(owner, type.hreftype);
    return Name_Of_Type(owner, type.hreftype) == "IDispatch" ? VT_DISPATCH : VT_RECORD;
  }
  if (type.vt == VT_SAFEARRAY) return VT_SAFEARRAY;
  return type.vt == VT_PTR ? Type_Behind(owner, *type.lptdesc, record) : type.vt;
}

void Read_Parameters(ITypeInfo& type, const FUNCDESC& told, std::span<BSTR> names,
                     Described_Method& method) {
  for (SHORT i = 0; i < told.cParams; ++i) {
    const ELEMDESC& element = told.lprgelemdescParam[i];
    const USHORT flags = element.paramdesc.wParamFlags;
    if ((flags & PARAMFLAG_FRETVAL) != 0) {
      method.result = Type_Behind(type, element.tdesc, &method.record);
      continue;
    }
    const auto place = static_cast<std::size_t>(i) + 1;
    method.parameters.push_back({.name = place < names.size() ? From_Bstr(names[place]) : "",
                                 .type = Type_Behind(type, element.tdesc, nullptr),
                                 .by_reference = element.tdesc.vt == VT_PTR,
                                 .optional = (flags & PARAMFLAG_FOPT) != 0,
                                 .has_default = (flags & PARAMFLAG_FHASDEFAULT) != 0});
  }
}

Described_Method Described(ITypeInfo& type, const FUNCDESC& told) {
  Described_Method method;
  BSTR names[32] = {};
  UINT count = 0;
  type.GetNames(told.memid, names, 32, &count);
  method.name = From_Bstr(names[0]);
  method.id = told.memid;
  method.offset = told.oVft;
  method.takes_any_count = told.cParamsOpt == -1;
  Read_Parameters(type, told, {names, count}, method);
  for (UINT i = 0; i < count; ++i) ::SysFreeString(names[i]);
  return method;
}

void* Place_Of(Typed_Argument& argument, VARTYPE type) {
  switch (type) {
    case VT_BSTR:
      return &argument.text;
    case VT_R8:
      return &argument.number;
    case VT_I4:
      return &argument.integer;
    case VT_BOOL:
      return &argument.truth;
    case VT_SAFEARRAY:
      return &argument.list;
    case VT_DISPATCH:
      return &argument.object;
    default:
      return &argument.value;
  }
}

VARIANT Pointer(void* place) {
  VARIANT value;
  ::VariantInit(&value);
  value.vt = VT_BYREF | VT_UI1;
  value.byref = place;
  return value;
}

// Room for any result, records included.
union Result_Room {
  VARIANT value;
  BSTR text;
  VARIANT_BOOL truth;
  std::byte record[64];
};

void Take_Record(IDispatch& object, const Described_Method& method, Result_Room& room,
                 Variant& result) {
  Com_Pointer<ITypeInfo> type;
  Com_Pointer<ITypeLib> library;
  Com_Pointer<ITypeInfo> record;
  Com_Pointer<IRecordInfo> info;
  UINT index = 0;
  const bool is_quotient = method.record == "type_Division_Recip";
  object.GetTypeInfo(0, LOCALE_USER_DEFAULT, type.put());
  type->GetContainingTypeLib(library.put(), &index);
  library->GetTypeInfoOfGuid(is_quotient ? quotient_record_guid : options_record_guid,
                             record.put());
  ::GetRecordInfoFromTypeInfo(record.get(), info.put());
  result->pvRecord = info->RecordCreate();
  ULONG size = 0;
  info->GetSize(&size);
  std::memcpy(result->pvRecord, &room, std::min<std::size_t>(size, sizeof room));
  result->pRecInfo = info.release();
  result->vt = VT_RECORD;
}

void Take_Result(IDispatch& object, const Described_Method& method, Result_Room& room,
                 Variant& result) {
  if (method.result == VT_BSTR) result->bstrVal = room.text;
  if (method.result == VT_BOOL) result->boolVal = room.truth;
  if (method.result == VT_BSTR || method.result == VT_BOOL) result->vt = method.result;
  if (method.result == VT_VARIANT) *result = room.value;
  if (method.result == VT_RECORD) Take_Record(object, method, room, result);
}

void Take_Error(Outcome& outcome) {
  Com_Pointer<IErrorInfo> error;
  if (::GetErrorInfo(0, error.put()) != S_OK) return;
  Bstr text;
  Bstr source;
  error->GetDescription(text.put());
  error->GetSource(source.put());
  outcome.description = From_Bstr(text.get());
  outcome.source = From_Bstr(source.get());
}

}  // namespace

std::vector<Described_Method> Described_Interface(IDispatch& object) {
  std::vector<Described_Method> methods;
  Com_Pointer<ITypeInfo> dispatch;
  Com_Pointer<ITypeInfo> type;
  if (FAILED(object.GetTypeInfo(0, LOCALE_USER_DEFAULT, dispatch.put()))) return methods;
  // What a dual interface shows to late-bound callers refers to its other half.
  HREFTYPE half = 0;
  if (FAILED(dispatch->GetRefTypeOfImplType(static_cast<UINT>(-1), &half)) ||
      FAILED(dispatch->GetRefTypeInfo(half, type.put())))
    type = dispatch;
  TYPEATTR* attributes = nullptr;
  if (FAILED(type->GetTypeAttr(&attributes))) return methods;
  for (UINT i = 0; i < attributes->cFuncs; ++i) {
    FUNCDESC* told = nullptr;
    if (FAILED(type->GetFuncDesc(i, &told))) continue;
    if (told->oVft >= static_cast<SHORT>(7 * sizeof(void*)))
      methods.push_back(Described(*type.get(), *told));
    type->ReleaseFuncDesc(told);
  }
  type->ReleaseTypeAttr(attributes);
  return methods;
}

Outcome Call_Slot(IDispatch& object, const Described_Method& method,
                  std::vector<Typed_Argument>& arguments) {
  Values values;
  Result_Room room{};
  for (std::size_t i = 0; i < method.parameters.size(); ++i) {
    const Described_Parameter& parameter = method.parameters[i];
    if (parameter.by_reference) {
      values.push_back(Pointer(Place_Of(arguments[i], parameter.type)));
    } else if (parameter.type == VT_I4) {
      values.push_back({});
      values.back().vt = VT_I4;
      values.back().lVal = arguments[i].integer;
    } else {
      values.push_back(*arguments[i].value);
    }
  }
  if (method.result != VT_VOID) values.push_back(Pointer(&room));
  std::vector<VARTYPE> types;
  std::vector<VARIANT*> places;
  for (std::size_t i = 0; i < values.size(); ++i) {
    const bool is_value = i < method.parameters.size() && !method.parameters[i].by_reference &&
                          method.parameters[i].type == VT_VARIANT;
    types.push_back(is_value ? VARTYPE{VT_VARIANT} : values[i].vt);
    places.push_back(&values[i]);
  }
  Variant status;
  Outcome outcome;
  ::SetErrorInfo(0, nullptr);
  outcome.status =
      ::DispCallFunc(&object, static_cast<ULONG_PTR>(method.offset), CC_STDCALL, VT_ERROR,
                     static_cast<UINT>(values.size()), types.data(), places.data(), &status);
  if (SUCCEEDED(outcome.status)) outcome.status = status->scode;
  if (SUCCEEDED(outcome.status)) Take_Result(object, method, room, outcome.result);
  if (FAILED(outcome.status)) {
    outcome.number = HRESULT_CODE(outcome.status);
    Take_Error(outcome);
  }
  return outcome;
}

}  // namespace quorvex::windows
