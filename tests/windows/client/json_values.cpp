#include "json_values.h"

#include "guids.h"
#include "record_types.h"

namespace quorvex::windows {
namespace {

VARIANT Table_Of(const Json& rows) {
  const auto height = static_cast<ULONG>(rows.size());
  const auto width = static_cast<ULONG>(rows.empty() ? 0 : rows[0].size());
  SAFEARRAYBOUND bounds[2] = {{height, 1}, {width, 1}};
  VARIANT value;
  ::VariantInit(&value);
  value.vt = VT_ARRAY | VT_VARIANT;
  value.parray = ::SafeArrayCreate(VT_VARIANT, 2, bounds);
  auto* const cells = static_cast<VARIANT*>(value.parray->pvData);
  for (ULONG row = 0; row < height; ++row) {
    for (ULONG column = 0; column < width; ++column)
      cells[column * height + row] = Variant_Of(rows[row][column]);
  }
  return value;
}

VARIANT Vector_Of(const Json& elements) {
  VARIANT value;
  ::VariantInit(&value);
  value.vt = VT_ARRAY | VT_VARIANT;
  value.parray = ::SafeArrayCreateVector(VT_VARIANT, 0, static_cast<ULONG>(elements.size()));
  auto* at = static_cast<VARIANT*>(value.parray->pvData);
  for (const Json& element : elements) *at++ = Variant_Of(element);
  return value;
}

VARIANT Tagged_Variant(const Json& value) {
  if (value.contains("array")) return Table_Of(value["array"]);
  if (value.contains("list")) return Vector_Of(value["list"]);
  if (value.contains("missing")) return Omitted();
  VARIANT error;
  ::VariantInit(&error);
  error.vt = VT_ERROR;
  error.scode = static_cast<SCODE>(0x800A0000u | value["error"].get<unsigned>());
  return error;
}

Json Array_Json(SAFEARRAY& array) {
  const auto* const cells = static_cast<const VARIANT*>(array.pvData);
  Json rows = Json::array();
  const ULONG height = array.cDims == 2 ? array.rgsabound[1].cElements : 1;
  const ULONG width = array.rgsabound[0].cElements;
  for (ULONG row = 0; row < height; ++row) {
    Json line = Json::array();
    for (ULONG column = 0; column < width; ++column)
      line.push_back(Json_Of(cells[column * height + row]));
    rows.push_back(line);
  }
  return array.cDims == 2 ? Json{{"array", rows}} : Json{{"list", rows[0]}};
}

Json Record_Json(const VARIANT& value) {
  GUID kind;
  value.pRecInfo->GetGuid(&kind);
  Json fields;
  if (kind == quotient_record_guid) {
    const auto& record = *static_cast<const type_Division_Recip*>(value.pvRecord);
    fields["digits"] = From_Bstr(record.digits);
    fields["powerOfTen"] = record.powerOfTen;
  } else {
    const auto& record = *static_cast<const type_Restrictionator*>(value.pvRecord);
    fields["FormatNegative"] = record.FormatNegative;
    fields["FormatThousands"] = record.FormatThousands != 0;
    fields["FormatCurrency"] = record.FormatCurrency != 0;
    fields["ExponentialNotation"] = record.ExponentialNotation != 0;
    fields["maxSD"] = record.maxSD;
    fields["InsertFunctionDialog"] = record.InsertFunctionDialog != 0;
    fields["IncluderExcluderFunctions"] = record.IncluderExcluderFunctions != 0;
    fields["FormatDecimalPlace"] = Json_Of(record.FormatDecimalPlace);
    fields["PreserveTrailingZerosAfterDecimal"] = record.PreserveTrailingZerosAfterDecimal != 0;
  }
  return fields;
}

}  // namespace

VARIANT Variant_Of(const Json& value) {
  VARIANT made;
  ::VariantInit(&made);
  if (value.is_object()) return Tagged_Variant(value);
  if (value.is_string()) {
    made.vt = VT_BSTR;
    made.bstrVal = Make_Bstr(value.get<std::string>());
  } else if (value.is_boolean()) {
    made.vt = VT_BOOL;
    made.boolVal = value.get<bool>() ? VARIANT_TRUE : VARIANT_FALSE;
  } else if (value.is_number()) {
    made.vt = VT_R8;
    made.dblVal = value.get<double>();
  }
  return made;
}

Json Json_Of(const VARIANT& value) {
  switch (value.vt) {
    case VT_EMPTY:
      return nullptr;
    case VT_BSTR:
      return From_Bstr(value.bstrVal);
    case VT_R8:
      return value.dblVal;
    case VT_BOOL:
      return value.boolVal != 0;
    case VT_ARRAY | VT_VARIANT:
      return Array_Json(*value.parray);
    case VT_RECORD:
      return Record_Json(value);
    case VT_ERROR:
      if (value.scode == DISP_E_PARAMNOTFOUND) return {{"missing", true}};
      return {{"error", value.scode & 0xFFFF}};
    default:
      return "a value of kind " + std::to_string(value.vt);
  }
}

}  // namespace quorvex::windows
