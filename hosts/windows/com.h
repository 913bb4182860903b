// Owners of what COM hands out.
#pragma once

#include "host/platform/windows_api.h"

#include <ole2.h>

#include <new>
#include <string_view>
#include <utility>

// Interfaces of COM have no destructors to call.
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

namespace quorvex::windows {

/// A reference to an object, counted.
template <typename Interface>
class Com_Pointer {
 public:
  Com_Pointer() = default;
  /// Shares what is held elsewhere too.
  explicit Com_Pointer(Interface* object) : object_(object) {
    if (object_ != nullptr) object_->AddRef();
  }
  Com_Pointer(const Com_Pointer& other) : Com_Pointer(other.object_) {}
  Com_Pointer(Com_Pointer&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  Com_Pointer& operator=(Com_Pointer other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  ~Com_Pointer() {
    if (object_ != nullptr) object_->Release();
  }

  /// The place where a call puts an object that is then held here.
  Interface** put() {
    *this = Com_Pointer();
    return &object_;
  }
  void** put_void() { return reinterpret_cast<void**>(put()); }
  Interface* get() const { return object_; }
  Interface* operator->() const { return object_; }
  explicit operator bool() const { return object_ != nullptr; }
  /// Hands the reference over.
  Interface* release() { return std::exchange(object_, nullptr); }

 private:
  Interface* object_ = nullptr;
};

/// A value of automation, cleared at the end.
class Variant {
 public:
  Variant() { ::VariantInit(&value_); }
  Variant(const Variant&) = delete;
  Variant& operator=(const Variant&) = delete;
  Variant(Variant&& other) noexcept : value_(other.release()) {}
  Variant& operator=(Variant&& other) noexcept {
    std::swap(value_, other.value_);
    return *this;
  }
  ~Variant() { ::VariantClear(&value_); }

  VARIANT* operator&() { return &value_; }
  VARIANT& operator*() { return value_; }
  const VARIANT& operator*() const { return value_; }
  VARIANT* operator->() { return &value_; }
  const VARIANT* operator->() const { return &value_; }
  /// Hands the content over.
  VARIANT release() {
    const VARIANT value = value_;
    ::VariantInit(&value_);
    return value;
  }

 private:
  VARIANT value_;
};

/// A text of automation in UTF-16, made of one in UTF-8.
BSTR Make_Bstr(std::string_view text);
std::string From_Bstr(BSTR text);

/// A text of automation, freed at the end.
class Bstr {
 public:
  Bstr() = default;
  explicit Bstr(std::string_view text) : text_(Make_Bstr(text)) {}
  Bstr(const Bstr&) = delete;
  Bstr& operator=(const Bstr&) = delete;
  ~Bstr() { ::SysFreeString(text_); }

  BSTR get() const { return text_; }
  BSTR* put() { return &text_; }

 private:
  BSTR text_ = nullptr;
};

/// A value that was left out.
inline VARIANT Omitted() {
  VARIANT value;
  ::VariantInit(&value);
  value.vt = VT_ERROR;
  value.scode = DISP_E_PARAMNOTFOUND;
  return value;
}

/// Follows a reference to another value; everything else stays.
inline const VARIANT& Peeled(const VARIANT& value) {
  return value.vt == (VT_BYREF | VT_VARIANT) && value.pvarVal != nullptr ? *value.pvarVal : value;
}

inline bool Is_Omitted(const VARIANT& value) {
  const VARIANT& peeled = Peeled(value);
  return peeled.vt == VT_ERROR && peeled.scode == DISP_E_PARAMNOTFOUND;
}

}  // namespace quorvex::windows
