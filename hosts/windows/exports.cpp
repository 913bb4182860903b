// The doors of the library.
#include "com.h"
#include "failures.h"
#include "guids.h"
#include "host/platform/windows.h"
#include "module.h"
#include "registration.h"
#include "server.h"
#include "shell/unload.h"

namespace quorvex::windows {
namespace {

HINSTANCE module_handle = nullptr;
std::atomic<long> uses = 0;

// There is one, for the life of the library.
class Factory final : public IClassFactory {
 public:
  STDMETHOD(QueryInterface)(REFIID wanted, void** object) override {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    if (wanted != IID_IUnknown && wanted != IID_IClassFactory) return E_NOINTERFACE;
    *object = this;
    AddRef();
    return S_OK;
  }
  STDMETHOD_(ULONG, AddRef)() override { return static_cast<ULONG>(++Uses()); }
  STDMETHOD_(ULONG, Release)() override { return static_cast<ULONG>(--Uses()); }

  STDMETHOD(CreateInstance)(IUnknown* outer, REFIID wanted, void** object) override {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    return outer != nullptr ? CLASS_E_NOAGGREGATION : Make_Server(wanted, object);
  }
  STDMETHOD(LockServer)(BOOL lock) override {
    lock != FALSE ? ++Uses() : --Uses();
    return S_OK;
  }
};

Factory factory;

}  // namespace

HINSTANCE This_Module() {
  return module_handle;
}

std::wstring Module_File() {
  for (std::size_t size = MAX_PATH;; size *= 2) {
    std::wstring file(size, L'\0');
    const DWORD used = ::GetModuleFileNameW(module_handle, file.data(), static_cast<DWORD>(size));
    if (used == size) continue;  // cut off
    file.resize(used);
    return file;
  }
}

std::atomic<long>& Uses() {
  return uses;
}

}  // namespace quorvex::windows

using namespace quorvex::windows;

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID /*reserved*/) {
  if (reason == DLL_PROCESS_ATTACH) module_handle = module;
  return TRUE;
}

STDAPI DllRegisterServer() {
  HRESULT status = S_OK;
  const auto failure = Guarded([&] { status = Register_Class(); });
  return failure ? failure->status : status;
}

STDAPI DllUnregisterServer() {
  HRESULT status = S_OK;
  const auto failure = Guarded([&] { status = Unregister_Class(); });
  return failure ? failure->status : status;
}

STDAPI DllGetClassObject(REFCLSID kind, REFIID wanted, LPVOID* object) {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  return kind == class_guid ? factory.QueryInterface(wanted, object) : CLASS_E_CLASSNOTAVAILABLE;
}

// Asked from the thread that the library works on. What is shared by the objects is let go before
// the library is, and made anew if it stays after all.
STDAPI DllCanUnloadNow() {
  if (Uses() > 0 || quorvex::Shell_Is_Busy() || quorvex::Has_Pending_Timers()) return S_FALSE;
  return Guarded([] { quorvex::Shell_Shut_Down(); }) ? S_FALSE : S_OK;
}
