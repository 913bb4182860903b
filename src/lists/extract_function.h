// What is to be kept of a text.
#pragma once

#include "host/host_value.h"
#include "lists/extraction_list.h"

namespace quorvex {

/// The worker of `qvxEXTRACT` and `qvxEXTRACTNUM`: at each character of the source text, the first
/// of the entries that stands there, whole, letters matched exactly; matches may overlap. The
/// filter takes the characters at which no entry stands. The result is formatted as it stands.
/// Fails as `Read_Extraction_List` does, and with out_of_memory for a result that has no room.
NumberText Extract_Function(const List& list, Extraction_Filter filter);

}  // namespace quorvex
