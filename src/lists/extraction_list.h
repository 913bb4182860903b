// The list of a text extraction: a source text, and what to look for in it.
#pragma once

#include <string>
#include <vector>

#include "host/host_value.h"
#include "lists/list_options.h"

namespace quorvex {

struct Extraction_List {
  std::string source;                // the first element that isn't empty, whatever it is
  std::vector<std::string> entries;  // the others, as written
  List_Options options;
};

/// Walks a list for its texts. Fails as `For_Each_Text` and `Read_Option_String` do.
Extraction_List Read_Extraction_List(const List& list);

/// Whether what is found also goes through the `Number_Filter`.
enum class Extraction_Filter { off, number };

}  // namespace quorvex
