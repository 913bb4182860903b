// Any bytes as a text and its entries, one a line: what is kept is what plain loops keep.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "host/platform.h"
#include "host/run_time_failure.h"
#include "host/utf8.h"
#include "lists/delete_text.h"
#include "lists/extract_function.h"
#include "lists/extraction_list.h"
#include "lists/list_result.h"
#include "lists/number_filter.h"
#include "support/slow_extraction.h"

namespace {

using namespace quorvex;

// The loops are quadratic, and where an entry is long so is what overlaps make of it.
constexpr std::size_t longest = 2000;

void Require_Same(const std::string& got, const std::string& expected, std::string_view about) {
  if (got == expected) return;
  std::cerr << "got " << got << ", expected " << expected << ", of " << about << '\n';
  std::abort();
}

std::vector<std::string> Lines(std::string_view text) {
  std::vector<std::string> lines(1);
  for (const char character : text) {
    if (character == '\n') {
      lines.emplace_back();
    } else {
      lines.back() += character;
    }
  }
  return lines;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Current_Platform().locale = Fixed_Locale({});
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  if (size > longest || !Is_Valid_Utf8(text)) return 0;
  List list;
  for (const std::string& line : Lines(text)) list.emplace_back(line);
  if (list.front().text().empty()) return 0;
  Extraction_List read;
  try {
    read = Read_Extraction_List(list);
  } catch (const Run_Time_Failure&) {
    return 0;
  }
  std::string left = read.source;
  std::string slowly_left = read.source;
  for (const std::string& entry : read.entries) {
    Delete_Every(left, entry);
    slowly_left = slow::Without(slowly_left, entry);
  }
  Require_Same(left, slowly_left, text);
  Filtered_Number(left);
  Extract_Function(list, Extraction_Filter::number);
  const std::string kept = slow::Extracted(read.source, read.entries);
  Require_Same(Extract_Function(list, Extraction_Filter::off), Finish_Text(kept, read.options),
               text);
  return 0;
}
