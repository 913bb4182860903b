// The interface as its type library describes it, and calls by its slots.
#pragma once

#include <string>
#include <vector>

#include "automation.h"

namespace quorvex::windows {

struct Described_Parameter {
  std::string name;
  VARTYPE type = VT_EMPTY;  // of what it refers to
  bool by_reference = false;
  bool optional = false;
  bool has_default = false;
};

struct Described_Method {
  std::string name;
  DISPID id = 0;
  int offset = 0;  // of its slot, in bytes
  bool takes_any_count = false;
  std::vector<Described_Parameter> parameters;
  VARTYPE result = VT_VOID;
  std::string record;  // the name of the result's type, if it is a record
};

std::vector<Described_Method> Described_Interface(IDispatch& object);

/// An argument in the form that its parameter's type has.
struct Typed_Argument {
  Variant value;
  BSTR text = nullptr;
  double number = 0;
  LONG integer = 0;
  VARIANT_BOOL truth = VARIANT_FALSE;
  SAFEARRAY* list = nullptr;
  IDispatch* object = nullptr;
};

/// Calls through the slot. A record arrives as a value of automation, too.
Outcome Call_Slot(IDispatch& object, const Described_Method& method,
                  std::vector<Typed_Argument>& arguments);

}  // namespace quorvex::windows
