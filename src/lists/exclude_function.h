// Text without what is to be left out.
#pragma once

#include "host/host_value.h"
#include "lists/extraction_list.h"

namespace quorvex {

/// The worker of `qvxEXCLUDE` and `qvxEXCLUDENOTNUM`: the source text without the entries, each
/// deleted until it no longer occurs, one after the other, letters matched exactly. What is left is
/// formatted as it stands. Fails as `Read_Extraction_List` does.
NumberText Exclude_Function(const List& list, Extraction_Filter filter);

}  // namespace quorvex
