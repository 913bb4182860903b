#include "type_library.h"

#include "guids.h"
#include "module.h"

namespace quorvex::windows {
namespace {

Com_Pointer<ITypeLib> Load(REGKIND kind, HRESULT& status) {
  Com_Pointer<ITypeLib> library;
  status = ::LoadTypeLibEx(Module_File().c_str(), kind, library.put());
  return FAILED(status) ? Com_Pointer<ITypeLib>() : library;
}

}  // namespace

Com_Pointer<ITypeInfo> Description_Of(const GUID& guid) {
  HRESULT status = S_OK;
  const auto library = Load(REGKIND_NONE, status);
  Com_Pointer<ITypeInfo> description;
  if (library && FAILED(library->GetTypeInfoOfGuid(guid, description.put()))) return {};
  return description;
}

HRESULT Register_Type_Library() {
  HRESULT status = S_OK;
  Load(REGKIND_REGISTER, status);
  return status;
}

HRESULT Unregister_Type_Library() {
  // What is to be taken away the system reads out of the registered file. That may be gone, or
  // nothing be registered; this one says the same.
  HRESULT status = S_OK;
  Load(REGKIND_REGISTER, status);
  if (FAILED(status)) return status;
  return ::UnRegisterTypeLib(library_guid, major_version, minor_version, LOCALE_NEUTRAL, SYS_WIN64);
}

}  // namespace quorvex::windows
