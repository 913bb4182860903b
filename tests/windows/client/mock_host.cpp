#include "mock_host.h"

#include <algorithm>
#include <atomic>

#include "host/platform/windows_text.h"

namespace quorvex::windows {
namespace {

// As an English spreadsheet, the mocks take calls in no other language.
constexpr LCID english = 0x0409;
constexpr HRESULT facility_of_failures = static_cast<HRESULT>(0x800A0000);

class Mock final : public IDispatch {
 public:
  explicit Mock(Mock_Members members) {
    for (auto& [name, member] : members) members_.emplace_back(name, std::move(member));
  }

  STDMETHOD(QueryInterface)(REFIID wanted, void** object) override {
    *object = nullptr;
    if (wanted != IID_IUnknown && wanted != IID_IDispatch) return E_NOINTERFACE;
    *object = this;
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
    *count = 0;
    return S_OK;
  }
  STDMETHOD(GetTypeInfo)(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }

  STDMETHOD(GetIDsOfNames)
  (REFIID, LPOLESTR* names, UINT, LCID language, DISPID* ids) override {
    if (language != english) return DISP_E_UNKNOWNLCID;
    const std::string wanted = Narrow_Text(names[0]);
    for (std::size_t i = 0; i < members_.size(); ++i) {
      std::string name = members_[i].first;
      if (name.ends_with('=')) name.pop_back();
      if (::_stricmp(name.c_str(), wanted.c_str()) != 0) continue;
      ids[0] = static_cast<DISPID>(i) + 1000;
      return S_OK;
    }
    ids[0] = DISPID_UNKNOWN;
    return DISP_E_UNKNOWNNAME;
  }

  STDMETHOD(Invoke)
  (DISPID id, REFIID, LCID language, WORD flags, DISPPARAMS* given, VARIANT* result,
   EXCEPINFO* exception, UINT*) override {
    if (language != english) return DISP_E_UNKNOWNLCID;
    const Mock_Member* const member = found(name_of(id), (flags & DISPATCH_PROPERTYPUT) != 0);
    if (member == nullptr) return DISP_E_MEMBERNOTFOUND;
    const std::reverse_iterator last(given->rgvarg + given->cArgs);
    const std::reverse_iterator first(given->rgvarg);
    try {
      Variant made;
      *made = (*member)(std::vector<VARIANT>(last, first));
      if (result != nullptr) *result = made.release();
      return S_OK;
    } catch (const Mock_Failure& failure) {
      *exception = {};
      exception->scode = facility_of_failures | failure.number;
      exception->bstrDescription = Make_Bstr("The mock refuses.");
      return DISP_E_EXCEPTION;
    } catch (const Mock_Status& answer) {
      return answer.status;
    }
  }

 private:
  ~Mock() = default;

  std::string name_of(DISPID id) const {
    if (id == DISPID_VALUE) return "";
    if (id == DISPID_NEWENUM) return "_NewEnum";
    const auto index = static_cast<std::size_t>(id - 1000);
    if (id < 1000 || index >= members_.size()) return "?";
    std::string name = members_[index].first;
    if (name.ends_with('=')) name.pop_back();
    return name;
  }

  const Mock_Member* found(std::string name, bool puts) const {
    if (puts) name += '=';
    const auto member = std::ranges::find_if(members_, [&](const auto& one) {
      return ::_stricmp(one.first.c_str(), name.c_str()) == 0;
    });
    return member == members_.end() ? nullptr : &member->second;
  }

  std::atomic<ULONG> references_ = 0;
  std::vector<std::pair<std::string, Mock_Member>> members_;
};

class Enumerator final : public IEnumVARIANT {
 public:
  explicit Enumerator(std::vector<Mock_Pointer> items) : items_(std::move(items)) {}
  STDMETHOD(QueryInterface)(REFIID wanted, void** object) override {
    *object = nullptr;
    if (wanted != IID_IUnknown && wanted != IID_IEnumVARIANT) return E_NOINTERFACE;
    *object = this;
    AddRef();
    return S_OK;
  }
  STDMETHOD_(ULONG, AddRef)() override { return ++references_; }
  STDMETHOD_(ULONG, Release)() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }
  STDMETHOD(Next)(ULONG count, VARIANT* items, ULONG* fetched) override {
    ULONG done = 0;
    while (done < count && at_ < items_.size()) items[done++] = Given(items_[at_++]);
    if (fetched != nullptr) *fetched = done;
    return done == count ? S_OK : S_FALSE;
  }
  STDMETHOD(Skip)(ULONG) override { return E_NOTIMPL; }
  STDMETHOD(Reset)() override { return E_NOTIMPL; }
  STDMETHOD(Clone)(IEnumVARIANT**) override { return E_NOTIMPL; }

 private:
  ~Enumerator() = default;

  std::atomic<ULONG> references_ = 0;
  std::vector<Mock_Pointer> items_;
  std::size_t at_ = 0;
};

}  // namespace

Mock_Pointer Make_Mock(Mock_Members members) {
  return Mock_Pointer(new Mock(std::move(members)));
}

Mock_Pointer Make_Collection(std::vector<Mock_Pointer> items, bool has_enumerator) {
  Mock_Members members;
  if (has_enumerator) {
    members["_NewEnum"] = [items](auto&) {
      VARIANT value;
      ::VariantInit(&value);
      value.vt = VT_UNKNOWN;
      value.punkVal = Com_Pointer<IEnumVARIANT>(new Enumerator(items)).release();
      return value;
    };
  }
  members["Count"] = [items](auto&) {
    VARIANT value;
    ::VariantInit(&value);
    value.vt = VT_I4;
    value.lVal = static_cast<LONG>(items.size());
    return value;
  };
  members["Item"] = [items](const std::vector<VARIANT>& arguments) {
    return Given(items.at(static_cast<std::size_t>(arguments.at(0).lVal) - 1));
  };
  return Make_Mock(std::move(members));
}

VARIANT Object(const Mock_Pointer& object) {
  VARIANT value;
  ::VariantInit(&value);
  value.vt = VT_DISPATCH;
  value.pdispVal = object.get();
  return value;
}

VARIANT Given(const Mock_Pointer& object) {
  VARIANT value = Object(object);
  Mock_Pointer(object).release();
  return value;
}

}  // namespace quorvex::windows
