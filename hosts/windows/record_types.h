// Records as automation lays them out. The type library describes the same fields.
#pragma once

#include "com.h"

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

}  // namespace quorvex::windows
