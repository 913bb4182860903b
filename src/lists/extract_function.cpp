#include "lists/extract_function.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "host/platform.h"
#include "host/utf8.h"
#include "lists/list_result.h"
#include "lists/number_filter.h"

namespace quorvex {
namespace {

constexpr std::size_t steps_between_yields = 64;

std::size_t Place_Of(char first) {
  return static_cast<unsigned char>(first);
}

// Entries by their first bytes, in their order.
class Entry_Index {
 public:
  explicit Entry_Index(const std::vector<std::string>& entries) {
    for (const std::string& entry : entries) by_first_[Place_Of(entry.front())].push_back(entry);
  }

  // The first entry that stands at the beginning of a text; empty if none does.
  std::string_view at_start_of(std::string_view text) const {
    for (const std::string_view entry : by_first_[Place_Of(text.front())]) {
      if (text.starts_with(entry)) return entry;
    }
    return {};
  }

 private:
  std::array<std::vector<std::string_view>, 256> by_first_;
};

// Matches that overlap can make far more of a text than there is memory.
void Append(std::string& result, std::string_view entry) {
  const std::size_t size = result.size() + entry.size();
  if (size > result.capacity()) Require_Memory(texts_at_once * static_cast<double>(size));
  result += entry;
}

}  // namespace

NumberText Extract_Function(const List& list, Extraction_Filter filter) {
  const Extraction_List read = Read_Extraction_List(list);
  const Entry_Index entries(read.entries);
  std::string result;
  Number_Filter number(result);
  std::size_t steps = 0;
  for (std::string_view rest = read.source; !rest.empty();) {
    if (++steps % steps_between_yields == 0) Yield();
    const std::string_view entry = entries.at_start_of(rest);
    const std::size_t bytes = First_Character_Bytes(rest);
    if (!entry.empty()) {
      Append(result, entry);
    } else if (filter == Extraction_Filter::number) {
      number.take(rest.substr(0, bytes));
    }
    rest.remove_prefix(bytes);
  }
  if (filter == Extraction_Filter::number) number.finish();
  return Finish_Text(std::move(result), read.options);
}

}  // namespace quorvex
