#include "conversion.h"

#include <charconv>
#include <cstring>
#include <limits>
#include <memory>
#include <string>
#include <utility>

#include "exact_numbers.h"
#include "failures.h"
#include "host/platform.h"
#include "late_bound.h"

namespace quorvex::windows {
namespace {

constexpr Failure_Number no_object{91};
constexpr Failure_Number invalid_null{94};

[[noreturn]] void Mismatch(const char* why) {
  throw Run_Time_Failure(Failure_Number::type_mismatch, why);
}

Error_Code Error_Of(SCODE status) {
  switch (const int code = status & 0xFFFF; Error_Code{code}) {
    case Error_Code::null:
    case Error_Code::division_by_zero:
    case Error_Code::value:
    case Error_Code::reference:
    case Error_Code::name:
    case Error_Code::number:
    case Error_Code::not_available:
      return Error_Code{code};
  }
  return Error_Code::value;
}

// By the digits that its 24 bits carry: 0.1 stays 0.1.
double From_Single(float number) {
  char digits[32];
  const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
  double wide = number;
  std::from_chars(digits, end, wide);
  return wide;
}

// The value of one element, which the array goes on owning.
HostValue From_Element(VARTYPE type, const void* element, std::size_t size) {
  if (type == VT_VARIANT) return From_Variant(*static_cast<const VARIANT*>(element));
  VARIANT value;
  ::VariantInit(&value);
  if (type == VT_DECIMAL) {
    std::memcpy(&value, element, sizeof(DECIMAL));
  } else {
    if (size > sizeof value.llVal) Mismatch("An array holds elements of an unknown kind.");
    std::memcpy(&value.llVal, element, size);
  }
  value.vt = type;
  return From_Variant(value);
}

// Access to the elements, given back at the end.
class Elements {
 public:
  explicit Elements(SAFEARRAY* array) : array_(array) {
    void* data = nullptr;
    Require(::SafeArrayAccessData(array, &data), "An array can't be read.");
    data_ = static_cast<std::byte*>(data);
    if (FAILED(::SafeArrayGetVartype(array, &type_))) {
      ::SafeArrayUnaccessData(array);
      Mismatch("An array holds elements of an unknown kind.");
    }
  }
  Elements(const Elements&) = delete;
  Elements& operator=(const Elements&) = delete;
  ~Elements() { ::SafeArrayUnaccessData(array_); }

  HostValue at(std::size_t index) const {
    if (index % steps_between_yields == 0) Yield();
    return From_Element(type_, data_ + index * array_->cbElements, array_->cbElements);
  }

 private:
  SAFEARRAY* array_;
  std::byte* data_ = nullptr;
  VARTYPE type_ = VT_EMPTY;
};

// The bounds of the last dimension stand first.
HostValue From_Table(SAFEARRAY* array) {
  Array table;
  table.rows = array->rgsabound[1].cElements;
  table.columns = array->rgsabound[0].cElements;
  table.lower_row = array->rgsabound[1].lLbound;
  table.lower_column = array->rgsabound[0].lLbound;
  const Elements elements(array);
  table.values.reserve(table.rows * table.columns);
  for (std::size_t row = 0; row < table.rows; ++row) {
    for (std::size_t column = 0; column < table.columns; ++column)
      table.values.push_back(elements.at(column * table.rows + row));
  }
  return table;
}

HostValue From_Array(SAFEARRAY* array) {
  if (array == nullptr) return List();
  if (array->cDims > 2) Mismatch("An array has more than two dimensions.");
  if (array->cDims == 2) return From_Table(array);
  const Elements elements(array);
  List list;
  list.reserve(array->rgsabound[0].cElements);
  for (std::size_t i = 0; i < array->rgsabound[0].cElements; ++i) list.push_back(elements.at(i));
  return list;
}

HostValue From_Object(IUnknown* object) {
  Com_Pointer<IDispatch> dispatch;
  if (object == nullptr) throw Run_Time_Failure(no_object, "No object is there.");
  if (FAILED(object->QueryInterface(IID_IDispatch, dispatch.put_void())))
    Mismatch("An object has no value.");
  const Variant value = Late_Bound(dispatch).own_value();
  if (Peeled(*value).vt == VT_DISPATCH || Peeled(*value).vt == VT_UNKNOWN)
    Mismatch("The value of an object is an object again.");
  return From_Variant(*value);
}

HostValue From_Status(SCODE status) {
  if (status == DISP_E_PARAMNOTFOUND) return {};
  return Error_Of(status);
}

// A reference to a value of that type, as the value itself. It owns nothing.
VARIANT Followed(const VARIANT& reference) {
  const auto type = static_cast<VARTYPE>(reference.vt & ~VT_BYREF);
  if (reference.byref == nullptr) Mismatch("An argument refers to nothing.");
  VARIANT value;
  ::VariantInit(&value);
  if (type == VT_DECIMAL) {
    value.decVal = *reference.pdecVal;
  } else if ((type & VT_ARRAY) != 0) {
    value.parray = *reference.pparray;
  } else {
    switch (type) {
      case VT_I1:
      case VT_UI1:
        value.bVal = *reference.pbVal;
        break;
      case VT_I2:
      case VT_UI2:
      case VT_BOOL:
        value.iVal = *reference.piVal;
        break;
      case VT_I4:
      case VT_UI4:
      case VT_INT:
      case VT_UINT:
      case VT_R4:
      case VT_ERROR:
        value.lVal = *reference.plVal;
        break;
      default:
        value.llVal = *reference.pllVal;
    }
  }
  value.vt = type;
  return value;
}

VARIANT Table_Variant(const Array& table) {
  SAFEARRAYBOUND bounds[2] = {{static_cast<ULONG>(table.rows), table.lower_row},
                              {static_cast<ULONG>(table.columns), table.lower_column}};
  Variant made;
  made->parray = ::SafeArrayCreate(VT_VARIANT, 2, bounds);
  if (made->parray == nullptr) throw std::bad_alloc();
  made->vt = VT_ARRAY | VT_VARIANT;
  auto* const cells = static_cast<VARIANT*>(made->parray->pvData);
  std::size_t done = 0;
  for (std::size_t row = 0; row < table.rows; ++row) {
    for (std::size_t column = 0; column < table.columns; ++column) {
      if (done % steps_between_yields == 0) Yield();
      cells[column * table.rows + row] = To_Variant(table.values[done++]);
    }
  }
  return made.release();
}

VARIANT List_Variant(const List& list) {
  Variant made;
  made->parray = ::SafeArrayCreateVector(VT_VARIANT, 0, static_cast<ULONG>(list.size()));
  if (made->parray == nullptr) throw std::bad_alloc();
  made->vt = VT_ARRAY | VT_VARIANT;
  auto* const elements = static_cast<VARIANT*>(made->parray->pvData);
  for (std::size_t i = 0; i < list.size(); ++i) elements[i] = To_Variant(list[i]);
  return made.release();
}

// Reads a range as the array that it is.
VARIANT Range_Variant(const HostValue& value) {
  const Range& range = value.range();
  if (Is_Single_Cell(value)) return To_Variant(range.cell(1, 1));
  Array table;
  table.rows = range.rows();
  table.columns = range.columns();
  for (std::size_t row = 1; row <= table.rows; ++row) {
    Yield();
    for (std::size_t column = 1; column <= table.columns; ++column)
      table.values.push_back(range.cell(row, column));
  }
  return Table_Variant(table);
}

}  // namespace

HostValue From_Variant(const VARIANT& value) {
  if (value.vt == (VT_BYREF | VT_VARIANT)) {
    if (value.pvarVal == nullptr) Mismatch("An argument refers to nothing.");
    return From_Variant(*value.pvarVal);
  }
  if ((value.vt & VT_BYREF) != 0) return From_Variant(Followed(value));
  if ((value.vt & VT_ARRAY) != 0) return From_Array(value.parray);
  switch (value.vt) {
    case VT_EMPTY:
      return HostValue::Empty();
    case VT_NULL:
      throw Run_Time_Failure(invalid_null, "Null is no value to calculate with.");
    case VT_BSTR:
      return From_Bstr(value.bstrVal);
    case VT_R8:
    case VT_DATE:
      return value.dblVal;
    case VT_R4:
      return From_Single(value.fltVal);
    case VT_BOOL:
      return value.boolVal != VARIANT_FALSE;
    case VT_ERROR:
      return From_Status(value.scode);
    case VT_I1:
      return static_cast<int>(static_cast<signed char>(value.cVal));
    case VT_UI1:
      return static_cast<int>(value.bVal);
    case VT_I2:
      return value.iVal;
    case VT_UI2:
      return value.uiVal;
    case VT_I4:
    case VT_INT:
      return value.lVal;
    case VT_UI4:
    case VT_UINT:
      return value.ulVal;
    case VT_I8:
      return value.llVal;
    case VT_UI8:
      return value.ullVal;
    case VT_CY:
      return From_Currency(value.cyVal);
    case VT_DECIMAL:
      return From_Decimal(value.decVal);
    case VT_DISPATCH:
    case VT_UNKNOWN:
      return From_Object(value.punkVal);
    default:
      Mismatch("A value is of an unknown kind.");
  }
}

VARIANT To_Variant(const HostValue& value) {
  VARIANT made;
  ::VariantInit(&made);
  switch (value.kind()) {
    case HostValue::Kind::missing:
      return Omitted();
    case HostValue::Kind::empty:
      break;
    case HostValue::Kind::number:
      made.vt = VT_R8;
      made.dblVal = value.number();
      break;
    case HostValue::Kind::text:
      made.bstrVal = Make_Bstr(value.text());
      made.vt = VT_BSTR;
      break;
    case HostValue::Kind::boolean:
      made.vt = VT_BOOL;
      made.boolVal = value.boolean() ? VARIANT_TRUE : VARIANT_FALSE;
      break;
    case HostValue::Kind::error:
      made.vt = VT_ERROR;
      made.scode = Status_Of(static_cast<int>(value.error()));
      break;
    case HostValue::Kind::array:
      return Table_Variant(value.array());
    case HostValue::Kind::list:
      return List_Variant(value.list());
    case HostValue::Kind::range:
      return Range_Variant(value);
  }
  return made;
}

void Write_Back(const HostValue& value, const VARIANT& argument) {
  if (argument.vt == (VT_BYREF | VT_BSTR)) {
    if (!value.is_text()) return;
    const BSTR text = Make_Bstr(value.text());
    ::SysFreeString(std::exchange(*argument.pbstrVal, text));
  } else if (argument.vt == (VT_BYREF | VT_VARIANT)) {
    // What the caller holds by reference in turn stays the caller's own place.
    if ((argument.pvarVal->vt & VT_BYREF) != 0) return Write_Back(value, *argument.pvarVal);
    const VARIANT made = To_Variant(value);
    ::VariantClear(argument.pvarVal);
    *argument.pvarVal = made;
  }
}

}  // namespace quorvex::windows
