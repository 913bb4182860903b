// Records as values of automation.
#pragma once

#include "com.h"
#include "frame/catalogue.h"
#include "record_types.h"

namespace quorvex::windows {

/// Fills a record in, which holds nothing yet.
void Give(const Record& record, type_Restrictionator& to);
void Give(const Record& record, type_Division_Recip& to);

/// A record as a value of automation. `description` is its type.
VARIANT Record_Variant(const Method& method, const Record& record, ITypeInfo& description);

/// The identity of the record that a method gives.
const GUID& Record_Guid(const Method& method);

}  // namespace quorvex::windows
