#include "failures.h"

#include "guids.h"

namespace quorvex::windows {
namespace {

constexpr int out_of_memory = static_cast<int>(Failure_Number::out_of_memory);
constexpr int internal_error = 51;

Failure Told(int number, const char* message) noexcept {
  try {
    return {Status_Of(number), message};
  } catch (...) {
    return {Status_Of(number), {}};
  }
}

// The text is left out where there is no memory for it.
BSTR Text_Or_Nothing(std::string_view text) noexcept {
  try {
    return Make_Bstr(text);
  } catch (...) {
    return nullptr;
  }
}

}  // namespace

Failure Current_Failure() noexcept {
  try {
    throw;
  } catch (const Refused_Call& refused) {
    return {refused.status, {}, refused.argument};
  } catch (const Run_Time_Failure& failure) {
    return Told(static_cast<int>(failure.number()), failure.what());
  } catch (const std::bad_alloc&) {
    return Told(out_of_memory, "There is not enough memory.");
  } catch (const std::exception& exception) {
    return Told(internal_error, exception.what());
  } catch (...) {
    return Told(internal_error, "Something unexpected has gone wrong.");
  }
}

HRESULT Tell(const Failure& failure, EXCEPINFO* exception, UINT* argument) noexcept {
  if (failure.message.empty()) {
    if (argument != nullptr) *argument = failure.argument;
    return failure.status;
  }
  if (exception == nullptr) return DISP_E_EXCEPTION;
  *exception = {};
  exception->scode = failure.status;
  exception->bstrSource = Text_Or_Nothing(library_name);
  exception->bstrDescription = Text_Or_Nothing(failure.message);
  return DISP_E_EXCEPTION;
}

HRESULT Tell(const Failure& failure) noexcept {
  Com_Pointer<ICreateErrorInfo> made;
  if (SUCCEEDED(::CreateErrorInfo(made.put()))) {
    const BSTR source = Text_Or_Nothing(library_name);
    const BSTR description = Text_Or_Nothing(failure.message);
    made->SetGUID(interface_guid);
    made->SetSource(source);
    made->SetDescription(description);
    ::SysFreeString(source);
    ::SysFreeString(description);
    Com_Pointer<IErrorInfo> info;
    if (SUCCEEDED(made->QueryInterface(IID_IErrorInfo, info.put_void())))
      ::SetErrorInfo(0, info.get());
  }
  return failure.status;
}

void Require(HRESULT status, const char* what) {
  if (status == E_OUTOFMEMORY) throw std::bad_alloc();
  if (FAILED(status)) throw Run_Time_Failure(Failure_Number{internal_error}, what);
}

}  // namespace quorvex::windows
