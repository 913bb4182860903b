#include "arguments.h"

#include <algorithm>
#include <memory>

#include "application.h"
#include "conversion.h"
#include "failures.h"

namespace quorvex::windows {
namespace {

// An array of one dimension, whatever its elements are.
bool Is_Vector(const VARIANT& value) {
  const VARIANT& peeled = Peeled(value);
  if ((peeled.vt & VT_ARRAY) == 0) return false;
  const SAFEARRAY* const array = (peeled.vt & VT_BYREF) != 0 ? *peeled.pparray : peeled.parray;
  return array == nullptr || array->cDims == 1;
}

// Where a method takes nothing but a list, its elements may stand in the call one by one.
bool Stands_One_By_One(const Method& method, const DISPPARAMS& given) {
  if (!method.takes_all_as_list || method.parameters.size() != 1 || given.cNamedArgs > 0)
    return false;
  return given.cArgs != 1 || !(Is_Vector(given.rgvarg[0]) || Is_Omitted(given.rgvarg[0]));
}

// An array of references to the arguments.
void Gather(const DISPPARAMS& given, Variant& gathered) {
  gathered->parray = ::SafeArrayCreateVector(VT_VARIANT, 0, given.cArgs);
  if (gathered->parray == nullptr) throw std::bad_alloc();
  gathered->vt = VT_ARRAY | VT_VARIANT;
  auto* const elements = static_cast<VARIANT*>(gathered->parray->pvData);
  for (UINT i = 0; i < given.cArgs; ++i) {
    elements[i].vt = VT_BYREF | VT_VARIANT;
    elements[i].pvarVal = &given.rgvarg[given.cArgs - 1 - i];
  }
}

void Require_Given(const Method& method, const Arguments& arguments, const DISPPARAMS& given) {
  for (std::size_t place = 0; place < arguments.size(); ++place) {
    // A list may be empty.
    const Parameter& parameter = method.parameters[place];
    if (parameter.optional || parameter.kind == Parameter_Kind::list) continue;
    if (!Is_Omitted(arguments[place])) continue;
    const std::size_t behind = place < given.cArgs ? given.cArgs - 1 - place : given.cArgs;
    throw Refused_Call{DISP_E_PARAMNOTOPTIONAL, static_cast<unsigned>(behind)};
  }
}

std::shared_ptr<Host_Application> Application_In(const VARIANT& argument) {
  const VARIANT& value = Peeled(argument);
  IUnknown* object = nullptr;
  switch (value.vt) {
    case VT_DISPATCH:
    case VT_UNKNOWN:
      object = value.punkVal;
      break;
    case VT_BYREF | VT_DISPATCH:
    case VT_BYREF | VT_UNKNOWN:
      object = *value.ppunkVal;
      break;
    case VT_EMPTY:
      break;
    default:
      if (!Is_Omitted(value))
        throw Run_Time_Failure(Failure_Number::type_mismatch,
                               "The host's application object is needed.");
  }
  if (object == nullptr) return nullptr;
  Com_Pointer<IDispatch> dispatch;
  Require(object->QueryInterface(IID_IDispatch, dispatch.put_void()),
          "The host's application object can't be talked to.");
  return Application_Of(std::move(dispatch));
}

bool Takes_Object(const Method& method) {
  return !method.parameters.empty() && method.parameters[0].kind == Parameter_Kind::object;
}

VARIANT Reference(VARTYPE type, void* place) {
  VARIANT value;
  ::VariantInit(&value);
  if (place == nullptr) return Omitted();
  value.vt = static_cast<VARTYPE>(VT_BYREF | type);
  value.byref = place;
  return value;
}

}  // namespace

Arguments Late_Bound_Arguments(const Method& method, const DISPPARAMS& given, Variant& gathered) {
  Arguments arguments(method.parameters.size(), Omitted());
  if (Stands_One_By_One(method, given)) {
    Gather(given, gathered);
    arguments[0] = *gathered;
    return arguments;
  }
  if (given.cArgs > arguments.size() || given.cNamedArgs > given.cArgs)
    throw Refused_Call{DISP_E_BADPARAMCOUNT};
  const UINT positional = given.cArgs - given.cNamedArgs;
  for (UINT i = 0; i < positional; ++i) arguments[i] = given.rgvarg[given.cArgs - 1 - i];
  std::vector<bool> is_named(arguments.size());
  for (UINT i = 0; i < given.cNamedArgs; ++i) {
    const DISPID place = given.rgdispidNamedArgs[i];
    const auto index = static_cast<std::size_t>(place);
    if (place < 0 || index >= arguments.size() || index < positional || is_named[index])
      throw Refused_Call{DISP_E_PARAMNOTFOUND, i};
    is_named[index] = true;
    arguments[index] = given.rgvarg[i];
  }
  Require_Given(method, arguments, given);
  return arguments;
}

Call_Result Call(cls_Quorvex& engine, const Method& method, const Arguments& arguments) {
  if (Takes_Object(method)) {
    engine.SetExcelApp(Application_In(arguments[0]));
    return {};
  }
  std::vector<HostValue> values;
  values.reserve(arguments.size());
  for (const VARIANT& argument : arguments) values.push_back(From_Variant(argument));
  Call_Result result = Invoke_In_Place(engine, method, values);
  for (std::size_t place = 0; place < values.size(); ++place) {
    if (method.parameters[place].passing == Passing::in_and_out)
      Write_Back(values[place], arguments[place]);
  }
  return result;
}

VARIANT Argument(VARIANT* value) {
  return Reference(VT_VARIANT, value);
}
VARIANT Argument(const VARIANT& value) {
  return value;
}
VARIANT Argument(BSTR* text) {
  return Reference(VT_BSTR, text);
}
VARIANT Argument(LONG number) {
  VARIANT value;
  ::VariantInit(&value);
  value.vt = VT_I4;
  value.lVal = number;
  return value;
}
VARIANT Argument(LONG* number) {
  return Reference(VT_I4, number);
}
VARIANT Argument(double* number) {
  return Reference(VT_R8, number);
}
VARIANT Argument(VARIANT_BOOL* truth) {
  return Reference(VT_BOOL, truth);
}
VARIANT Argument(SAFEARRAY** list) {
  return Reference(VT_ARRAY | VT_VARIANT, list);
}
VARIANT Argument(IDispatch** object) {
  return Reference(VT_DISPATCH, object);
}
VARIANT Optional_Argument(VARIANT* value) {
  return Argument(value);
}
VARIANT Optional_Argument(BSTR* text) {
  return text == nullptr || *text == nullptr ? Omitted() : Argument(text);
}
// A count of 0 has no use, and it is what a caller that binds early hands over for none.
VARIANT Optional_Argument(double* number) {
  return number == nullptr || *number == 0 ? Omitted() : Argument(number);
}
VARIANT Optional_Argument(VARIANT_BOOL* truth) {
  return Argument(truth);
}

}  // namespace quorvex::windows
