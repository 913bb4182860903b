#include "server.h"

#include <atomic>
#include <variant>

#include "application.h"
#include "arguments.h"
#include "conversion.h"
#include "failures.h"
#include "forms.h"
#include "guids.h"
#include "host/platform/windows.h"
#include "host/platform/windows_text.h"
#include "module.h"
#include "names.h"
#include "records.h"
#include "type_library.h"

namespace quorvex::windows {
namespace {

const Method& Method_At(int slot) {
  return Catalogue()[static_cast<std::size_t>(slot - 1)];
}

const HostValue& Value_In(const Call_Result& result) {
  return std::get<HostValue>(result);
}

// What a method of the interface gives, where the caller wants it.
void Give(const Call_Result& result, BSTR& to) {
  to = Make_Bstr(Value_In(result).text());
}
void Give(const Call_Result& result, VARIANT& to) {
  to = To_Variant(Value_In(result));
}
void Give(const Call_Result& result, VARIANT_BOOL& to) {
  to = Value_In(result).boolean() ? VARIANT_TRUE : VARIANT_FALSE;
}
void Give(const Call_Result& result, type_Restrictionator& to) {
  Give(std::get<Record>(result), to);
}
void Give(const Call_Result& result, type_Division_Recip& to) {
  Give(std::get<Record>(result), to);
}

// What a late-bound caller gets.
VARIANT Result_Variant(const Method& method, const Call_Result& result) {
  if (const auto* value = std::get_if<HostValue>(&result)) return To_Variant(*value);
  if (const auto* record = std::get_if<Record>(&result)) {
    const auto description = Description_Of(Record_Guid(method));
    if (!description)
      throw Run_Time_Failure(Failure_Number::type_mismatch, "The record can't be described.");
    return Record_Variant(method, *record, *description.get());
  }
  return Variant().release();
}

class Server final : public IDispatch {
 public:
  Server() : errors_(*this) {
    Current_Platform().applications = Running_Application();
    Set_Form_Face(Window_Form_Face());
  }
  Server(const Server&) = delete;
  Server& operator=(const Server&) = delete;

  STDMETHOD(QueryInterface)(REFIID wanted, void** object) override {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    if (wanted == IID_IUnknown || wanted == IID_IDispatch || wanted == interface_guid) {
      *object = static_cast<IDispatch*>(this);
    } else if (wanted == IID_ISupportErrorInfo) {
      *object = static_cast<ISupportErrorInfo*>(&errors_);
    } else {
      return E_NOINTERFACE;
    }
    AddRef();
    return S_OK;
  }
  STDMETHOD_(ULONG, AddRef)() override { return ++references_; }
  STDMETHOD_(ULONG, Release)() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

  STDMETHOD(GetTypeInfoCount)(UINT* count) override {
    if (count == nullptr) return E_POINTER;
    return Status_Of_Body([&] { *count = description() != nullptr ? 1 : 0; });
  }
  STDMETHOD(GetTypeInfo)(UINT index, LCID /*locale*/, ITypeInfo** info) override {
    if (info == nullptr) return E_POINTER;
    *info = nullptr;
    if (index != 0) return DISP_E_BADINDEX;
    return Status_Of_Body([&] {
      if (description() == nullptr) throw Refused_Call{TYPE_E_CANTLOADLIBRARY};
      *info = Com_Pointer(description()).release();
    });
  }
  STDMETHOD(GetIDsOfNames)
  (REFIID reserved, LPOLESTR* names, UINT count, LCID /*locale*/, DISPID* ids) override {
    if (reserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
    if (names == nullptr || ids == nullptr || count == 0) return E_INVALIDARG;
    return Status_Of_Body([&] { Find_Ids({names, count}, ids); });
  }
  STDMETHOD(Invoke)
  (DISPID id, REFIID reserved, LCID /*locale*/, WORD flags, DISPPARAMS* given, VARIANT* result,
   EXCEPINFO* exception, UINT* argument) override {
    if (reserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
    if (given == nullptr) return E_INVALIDARG;
    const bool is_known = id >= 1 && static_cast<std::size_t>(id) <= Catalogue().size();
    if (!is_known || (flags & (DISPATCH_METHOD | DISPATCH_PROPERTYGET)) == 0)
      return DISP_E_MEMBERNOTFOUND;
    const auto failure = Guarded([&] { invoke(Method_At(id), *given, result); });
    return failure ? Tell(*failure, exception, argument) : S_OK;
  }

  // The methods, in the order of the interface. Whatever stands before them would move them.
#include "methods_generated.inc"

 private:
  // Asked for apart, since it has a table of methods of its own.
  class Errors final : public ISupportErrorInfo {
   public:
    explicit Errors(Server& server) : server_(server) {}
    STDMETHOD(QueryInterface)(REFIID wanted, void** object) override {
      return server_.QueryInterface(wanted, object);
    }
    STDMETHOD_(ULONG, AddRef)() override { return server_.AddRef(); }
    STDMETHOD_(ULONG, Release)() override { return server_.Release(); }
    STDMETHOD(InterfaceSupportsErrorInfo)(REFIID interface_id) override {
      return interface_id == interface_guid ? S_OK : S_FALSE;
    }

   private:
    Server& server_;
  };

  ~Server() = default;

  void invoke(const Method& method, const DISPPARAMS& given, VARIANT* result) {
    Ignore_Keys_Held_Down();
    Variant gathered;
    const Arguments arguments = Late_Bound_Arguments(method, given, gathered);
    Variant made;
    *made = Result_Variant(method, Call(engine_, method, arguments));
    if (result == nullptr) return;
    ::VariantInit(result);
    *result = made.release();
  }

  template <typename Result>
  HRESULT by_slot(int slot, std::initializer_list<VARIANT> arguments, Result* result) noexcept {
    return told([&] {
      Ignore_Keys_Held_Down();
      const Call_Result given = Call(engine_, Method_At(slot), arguments);
      if (result != nullptr) Give(given, *result);
    });
  }
  HRESULT by_slot(int slot, std::initializer_list<VARIANT> arguments,
                  std::nullptr_t /*nowhere*/) noexcept {
    return told([&] {
      Ignore_Keys_Held_Down();
      Call(engine_, Method_At(slot), arguments);
    });
  }
  template <typename Body>
  static HRESULT told(Body&& body) noexcept {
    const auto failure = Guarded(body);
    return failure ? Tell(*failure) : S_OK;
  }

  ITypeInfo* description() {
    if (!description_) description_ = Description_Of(interface_guid);
    return description_.get();
  }

  Use use_;
  std::atomic<ULONG> references_ = 1;
  Errors errors_;
  Com_Pointer<ITypeInfo> description_;
  cls_Quorvex engine_;
};

}  // namespace

HRESULT Make_Server(REFIID wanted, void** object) noexcept {
  return Status_Of_Body([&] {
    Com_Pointer<IDispatch> server;
    *server.put() = new Server();
    const HRESULT status = server->QueryInterface(wanted, object);
    if (FAILED(status)) throw Refused_Call{status};
  });
}

}  // namespace quorvex::windows
