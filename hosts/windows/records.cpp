#include "records.h"

#include <algorithm>
#include <stdexcept>
#include <string_view>

#include "conversion.h"
#include "failures.h"
#include "guids.h"

namespace quorvex::windows {
namespace {

const HostValue& Field(const Record& record, std::string_view name) {
  const auto found =
      std::ranges::find(record.fields, name, &decltype(record.fields)::value_type::first);
  if (found == record.fields.end()) throw std::logic_error("A record has not all its fields.");
  return found->second;
}

VARIANT_BOOL Truth(const Record& record, std::string_view name) {
  return Field(record, name).boolean() ? VARIANT_TRUE : VARIANT_FALSE;
}

bool Is_Quotient(const Method& method) {
  return method.record == "type_Division_Recip";
}

}  // namespace

void Give(const Record& record, type_Restrictionator& to) {
  to = {.FormatNegative = static_cast<short>(Field(record, "FormatNegative").number()),
        .FormatThousands = Truth(record, "FormatThousands"),
        .FormatCurrency = Truth(record, "FormatCurrency"),
        .ExponentialNotation = Truth(record, "ExponentialNotation"),
        .maxSD = Field(record, "maxSD").number(),
        .InsertFunctionDialog = Truth(record, "InsertFunctionDialog"),
        .IncluderExcluderFunctions = Truth(record, "IncluderExcluderFunctions"),
        .FormatDecimalPlace = To_Variant(Field(record, "FormatDecimalPlace")),
        .PreserveTrailingZerosAfterDecimal = Truth(record, "PreserveTrailingZerosAfterDecimal")};
}

void Give(const Record& record, type_Division_Recip& to) {
  to = {.digits = Make_Bstr(Field(record, "digits").text()),
        .powerOfTen = static_cast<LONG>(Field(record, "powerOfTen").number())};
}

const GUID& Record_Guid(const Method& method) {
  return Is_Quotient(method) ? quotient_record_guid : options_record_guid;
}

VARIANT Record_Variant(const Method& method, const Record& record, ITypeInfo& description) {
  Com_Pointer<IRecordInfo> info;
  Require(::GetRecordInfoFromTypeInfo(&description, info.put()), "A record can't be described.");
  Variant made;
  made->pvRecord = info->RecordCreate();
  if (made->pvRecord == nullptr) throw std::bad_alloc();
  made->pRecInfo = Com_Pointer(info).release();
  made->vt = VT_RECORD;
  if (Is_Quotient(method)) {
    Give(record, *static_cast<type_Division_Recip*>(made->pvRecord));
  } else {
    Give(record, *static_cast<type_Restrictionator*>(made->pvRecord));
  }
  return made.release();
}

}  // namespace quorvex::windows
