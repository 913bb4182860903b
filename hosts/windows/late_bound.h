// Objects of the host, whose members are found by their names.
#pragma once

#include <functional>
#include <initializer_list>
#include <optional>
#include <string_view>
#include <vector>

#include "com.h"

namespace quorvex::windows {

/// Every call fails with a `Run_Time_Failure` that carries the object's own number: that of its
/// exception, 429 where there is nothing to talk to, and what the host says while it is busy.
class Late_Bound {
 public:
  explicit Late_Bound(Com_Pointer<IDispatch> object) : object_(std::move(object)) {}

  Variant get(const wchar_t* name) const;
  void put(const wchar_t* name, const VARIANT& value) const;
  /// Arguments in the order of the call.
  Variant call(const wchar_t* name, std::initializer_list<VARIANT> arguments) const;
  Late_Bound object(const wchar_t* name) const;
  /// What the object stands for where a value is wanted.
  Variant own_value() const;
  /// One after the other, what a collection holds; nothing after the last.
  std::function<bool(Variant&)> items() const;

 private:
  std::optional<DISPID> find(const wchar_t* name) const;
  DISPID id_of(const wchar_t* name) const;
  Variant invoke(DISPID id, WORD flags, std::vector<VARIANT> reversed) const;
  std::function<bool(Variant&)> items_by_number() const;

  Com_Pointer<IDispatch> object_;
};

/// The object that a value is; fails with 13 for any other.
Late_Bound Object_In(const Variant& value);

/// The number for a status that a call to an object came back with.
int Number_Of(HRESULT status);

}  // namespace quorvex::windows
