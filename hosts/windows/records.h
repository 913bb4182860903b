// Records as automation lays them out. The type library describes the same fields.
#pragma once

#include "com.h"
#include "frame/catalogue.h"

namespace quorvex::windows {

struct type_Restrictionator {
  short FormatNegative;
  VARIANT_BOOL FormatThousands;
  VARIANT_BOOL FormatCurrency;
  VARIANT_BOOL ExponentialNotation;
  double maxSD;
  VARIANT_BOOL InsertFunctionDialog;
  VARIANT_BOOL IncluderExcluderFunctions;
  VARIANT FormatDecimalPlace;
  VARIANT_BOOL PreserveTrailingZerosAfterDecimal;
};

struct type_Division_Recip {
  BSTR digits;
  LONG powerOfTen;
};

/// Fills a record in, which holds nothing yet.
void Give(const Record& record, type_Restrictionator& to);
void Give(const Record& record, type_Division_Recip& to);

/// A record as a value of automation. `description` is its type.
VARIANT Record_Variant(const Method& method, const Record& record, ITypeInfo& description);

/// The identity of the record that a method gives.
const GUID& Record_Guid(const Method& method);

}  // namespace quorvex::windows
