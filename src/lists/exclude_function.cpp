#include "lists/exclude_function.h"

#include <string>
#include <utility>

#include "host/platform.h"
#include "lists/delete_text.h"
#include "lists/list_result.h"
#include "lists/number_filter.h"

namespace quorvex {

NumberText Exclude_Function(const List& list, Extraction_Filter filter) {
  Extraction_List read = Read_Extraction_List(list);
  std::string& text = read.source;
  for (const std::string& entry : read.entries) {
    Yield();
    Delete_Every(text, entry);
  }
  if (filter == Extraction_Filter::number) text = Filtered_Number(text);
  return Finish_Text(std::move(text), read.options);
}

}  // namespace quorvex
