// Objects of a spreadsheet that do as a test tells them.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "com.h"

namespace quorvex::windows {

/// What a member raises: the number of the object's own exception.
struct Mock_Failure {
  int number;
};
/// What a call comes back with instead of an exception of the object's own.
struct Mock_Status {
  HRESULT status;
};

/// Takes the arguments in the order of the call; the result is the caller's.
using Mock_Member = std::function<VARIANT(const std::vector<VARIANT>& arguments)>;
/// By name. "Name=" is what writing a property calls, and "" what reads the object as a value.
using Mock_Members = std::map<std::string, Mock_Member>;
using Mock_Pointer = Com_Pointer<IDispatch>;

Mock_Pointer Make_Mock(Mock_Members members);

/// A collection that is walked by an enumerator, or by Count and Item alone.
Mock_Pointer Make_Collection(std::vector<Mock_Pointer> items, bool has_enumerator = true);

/// The object as an argument, which shares it.
VARIANT Object(const Mock_Pointer& object);
/// The object as a result, which the caller then holds.
VARIANT Given(const Mock_Pointer& object);

}  // namespace quorvex::windows
