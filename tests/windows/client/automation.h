// Calls of the class as programs on Windows make them.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "com.h"
#include "guids.h"

namespace quorvex::windows {

/// What a call came back with.
struct Outcome {
  HRESULT status = S_OK;
  Variant result;
  int number = 0;  // of the run-time failure, if there was one
  std::string description;
  std::string source;
  UINT bad_argument = 0;
};

/// An instance of the registered class; null where there is none, with the reason in `status`.
Com_Pointer<IDispatch> Make_Object(HRESULT* status = nullptr);

/// The name's id, or DISPID_UNKNOWN.
DISPID Id_Of(IDispatch& object, const std::string& name);

using Values = std::vector<VARIANT>;

/// Positional arguments in order, then named ones. The caller owns all of them.
Outcome Call_Late(IDispatch& object, const std::string& method, const Values& positional,
                  const std::map<std::string, VARIANT>& named = {}, WORD flags = DISPATCH_METHOD);

/// The text that a call gives; its failure as "error NUMBER".
std::string Text_Of_Call(IDispatch& object, const std::string& method, const Values& positional);

VARIANT Number(double number);
VARIANT Truth(bool truth);
/// Kept until the program ends.
VARIANT Text(std::string_view text);
VARIANT By_Reference(VARIANT& value);
/// Kept as well.
VARIANT Vector(const Values& elements);
VARIANT Table(long rows, long columns, const Values& row_by_row);

std::string Text_In(const VARIANT& value);

}  // namespace quorvex::windows
