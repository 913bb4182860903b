// Looking for a text in another in one pass, however much of it is met again and again.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace quorvex {

/// How much of a text that is looked for stands at the end of what has been read.
class Match_Table {
 public:
  /// Four bytes hold it for each byte that is read.
  using Length = std::uint32_t;

  /// `entry` must outlive the table. Fails with out_of_memory where the
  /// table has no room.
  explicit Match_Table(std::string_view entry);

  std::size_t entry_size() const { return entry_.size(); }

  /// What is matched when `byte` follows so much of the entry.
  Length after(Length matched, char byte) const {
    if (matched == entry_.size()) matched = shorter_[matched];
    while (matched > 0 && byte != entry_[matched]) matched = shorter_[matched];
    return byte == entry_[matched] ? matched + 1 : matched;
  }

 private:
  std::string_view entry_;
  std::vector<Length> shorter_;
};

/// Where a text stands in another. Both must outlive it.
class Occurrences {
 public:
  /// Fails as `Match_Table` does.
  Occurrences(std::string_view text, std::string_view entry) : text_(text), table_(entry) {}

  /// Whether the entry stands at a place. Places must be asked in ascending order: all answers
  /// together read the text once.
  bool stand_at(std::size_t place);

 private:
  std::string_view text_;
  Match_Table table_;
  std::size_t asked_ = 0;
  std::size_t read_ = 0;
  Match_Table::Length matched_ = 0;
};

}  // namespace quorvex
