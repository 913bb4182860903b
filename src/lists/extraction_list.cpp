#include "lists/extraction_list.h"

#include <string_view>

#include "lists/list_walk.h"

namespace quorvex {

Extraction_List Read_Extraction_List(const List& list) {
  Extraction_List read;
  std::string scratch;
  For_Each_Text(list, [&](std::string_view text) {
    if (read.source.empty()) {
      read.source = text;
      return Walk::on;
    }
    const std::string_view capitals = Capitals_Of(text, scratch);
    if (Is_Option_String(capitals)) {
      Read_Option_String(capitals, read.options);
    } else {
      read.entries.emplace_back(text);
    }
    return Walk::on;
  });
  return read;
}

}  // namespace quorvex
