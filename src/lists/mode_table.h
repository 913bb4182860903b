// How often each number occurs.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "host/host_value.h"

namespace quorvex {

/// The numbers of a list in order of first appearance, each with its first spelling and how often
/// one equal to it occurred.
class Mode_Table {
 public:
  struct Column {
    NumberText value;
    std::size_t count = 1;
  };

  /// Counts an element; text that is no number is passed over. A number that can't be compared
  /// equals no other. Fails with out_of_memory for a number that has no room.
  void add(std::string_view element);

  const std::vector<Column>& columns() const { return columns_; }

  /// The first of the numbers that occurred most often.
  const NumberText& most_frequent() const;

  /// The columns by count, highest first, as a sort by exchanges leaves them: it looks through what
  /// stands behind a column, and exchanges the two at once where it meets a greater count.
  std::vector<Column> by_count() &&;

 private:
  struct Text_Hash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const {
      return std::hash<std::string_view>()(text);
    }
  };

  std::vector<Column> columns_;
  std::unordered_map<std::string, std::size_t, Text_Hash, std::equal_to<>> places_;  // by value
  std::string value_;  // of the element at hand
};

}  // namespace quorvex
