#include "lists/mode_table.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "expects.h"
#include "host/platform.h"
#include "lists/position_tree.h"
#include "text/comparable_number.h"

namespace quorvex {
namespace {

// A text that is the same for equal numbers, and for no others.
void Write_Value(const Digits_And_Power& number, std::string& text) {
  text.clear();
  if (number.sign == 0) return;
  if (number.sign < 0) text += '-';
  text += number.first;
  text += number.more;
  text += 'E';
  text += std::to_string(number.power);
}

}  // namespace

void Mode_Table::add(std::string_view element) {
  Comparable_Number number;
  if (!number.read(element)) {
    if (number.is_number()) columns_.push_back({NumberText(element)});
    return;
  }
  Write_Value(number.value(), value_);
  if (const auto found = places_.find(std::string_view(value_)); found != places_.end()) {
    ++columns_[found->second].count;
    return;
  }
  places_.emplace(value_, columns_.size());
  columns_.push_back({NumberText(element)});
}

const NumberText& Mode_Table::most_frequent() const {
  Expects(!columns_.empty());
  return std::ranges::max_element(columns_, {}, &Column::count)->value;
}

std::vector<Mode_Table::Column> Mode_Table::by_count() && {
  const std::size_t most =
      columns_.empty() ? 0 : std::ranges::max(columns_, {}, &Column::count).count;
  std::vector<std::size_t> missing;  // to the highest count: the tree finds what is below
  for (const Column& column : columns_) missing.push_back(most - column.count);
  std::vector<std::size_t> order(columns_.size());
  std::iota(order.begin(), order.end(), std::size_t{0});

  Position_Tree behind(missing);
  for (std::size_t current = 0; current < order.size(); ++current) {
    Yield();
    // A scan exchanges no more often than there are different counts, which are few: n of them
    // take more than n * n / 2 elements.
    for (std::size_t met = behind.first_below(current + 1, missing[current]);
         met != Position_Tree::nothing; met = behind.first_below(met + 1, missing[current])) {
      std::swap(order[current], order[met]);
      std::swap(missing[current], missing[met]);
      behind.set(met, missing[met]);
    }
  }
  std::vector<Column> sorted;
  sorted.reserve(order.size());
  for (const std::size_t place : order) sorted.push_back(std::move(columns_[place]));
  return sorted;
}

}  // namespace quorvex
