#include "lists/extract_function.h"

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "host/platform.h"
#include "host/utf8.h"
#include "lists/list_result.h"
#include "lists/number_filter.h"
#include "lists/text_matching.h"

namespace quorvex {
namespace {

// What is compared at each place as it stands. More than that is read only once, or a long entry
// that nearly stands at many places would be read through at each of them.
constexpr std::size_t compared_directly = 64;

// An entry, and where it stands in the source.
class Sought_Entry {
 public:
  Sought_Entry(std::string_view source, std::string_view entry) : source_(source), entry_(entry) {}

  std::string_view text() const { return entry_; }

  // Places must be asked in ascending order.
  bool stands_at(std::size_t place) {
    const std::string_view rest = source_.substr(place);
    if (entry_.size() > rest.size()) return false;
    if (!rest.starts_with(entry_.substr(0, compared_directly))) return false;
    if (entry_.size() <= compared_directly) return true;
    if (!occurrences_) occurrences_ = std::make_unique<Occurrences>(source_, entry_);
    return occurrences_->stand_at(place);
  }

 private:
  std::string_view source_;
  std::string_view entry_;
  std::unique_ptr<Occurrences> occurrences_;  // of a long entry
};

// Entries by their first bytes, in their order.
class Entry_Index {
 public:
  explicit Entry_Index(const Extraction_List& list) : source_(list.source) {
    for (const std::string& entry : list.entries) of(entry.front()).emplace_back(source_, entry);
  }

  // The first entry that stands at a place; empty if none does.
  std::string_view at(std::size_t place) {
    for (Sought_Entry& entry : of(source_[place])) {
      if (entry.stands_at(place)) return entry.text();
    }
    return {};
  }

 private:
  std::vector<Sought_Entry>& of(char first) { return by_first_[static_cast<unsigned char>(first)]; }

  std::string_view source_;
  std::array<std::vector<Sought_Entry>, 256> by_first_;
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
  Entry_Index entries(read);
  std::string result;
  Number_Filter number(result);
  std::size_t steps = 0;
  const std::string_view source = read.source;
  for (std::size_t place = 0; place < source.size();) {
    if (++steps % steps_between_yields == 0) Yield();
    const std::string_view entry = entries.at(place);
    const std::string_view rest = source.substr(place);
    const std::size_t bytes = First_Character_Bytes(rest);
    if (!entry.empty()) {
      Append(result, entry);
    } else if (filter == Extraction_Filter::number) {
      number.take(rest.substr(0, bytes));
    }
    place += bytes;
  }
  if (filter == Extraction_Filter::number) number.finish();
  return Finish_Text(std::move(result), read.options);
}

}  // namespace quorvex
