#include "lists/sort_numbers.h"

#include <deque>
#include <numeric>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "expects.h"
#include "host/conversions.h"
#include "lists/selection_order.h"

namespace quorvex {
namespace {

std::vector<std::size_t> Places_Of(const Array& array, Cell_Path path) {
  if (path == Cell_Path::by_column) return Places_By_Column(array);
  std::vector<std::size_t> places(array.values.size());
  std::iota(places.begin(), places.end(), std::size_t{0});
  return places;
}

// The texts of cells, copied only where a cell holds something else.
class Cell_Texts {
 public:
  Cell_Texts(const Array& array, const std::vector<std::size_t>& places) {
    views_.reserve(places.size());
    for (const std::size_t place : places) {
      const HostValue& cell = array.values[place];
      views_.push_back(cell.is_text() ? cell.text() : written_.emplace_back(To_Text(cell)));
    }
  }

  const std::vector<std::string_view>& views() const { return views_; }

 private:
  std::vector<std::string_view> views_;
  std::deque<std::string> written_;
};

bool Is_Blank(const HostValue& cell) {
  if (Is_Single_Cell(cell)) return Is_Blank(Cell_Of(cell));
  return cell.is_empty();
}

// The first round of the sort looks at every cell and makes text of the blank ones. The first cell
// is put back as it was where nothing takes its place: it is the only one that then stays blank.
Array Sorted(const Array& numbers, Cell_Path path, Sort_Direction direction) {
  const auto indices = Sorted_Indices(numbers, path, direction);
  Array sorted{numbers.rows, numbers.columns, numbers.lower_row, numbers.lower_column, {}};
  sorted.values.reserve(indices.size());
  for (std::size_t i = 0; i < indices.size(); ++i) {
    const HostValue& cell = numbers.values[indices[i]];
    if (Is_Blank(cell) && !(i == 0 && indices[i] == 0)) {
      sorted.values.emplace_back("");
    } else {
      sorted.values.push_back(cell);
    }
  }
  return sorted;
}

}  // namespace

std::vector<std::size_t> Places_By_Column(const Array& array) {
  std::vector<std::size_t> places;
  places.reserve(array.values.size());
  for (std::size_t column = 0; column < array.columns; ++column) {
    for (std::size_t row = 0; row < array.rows; ++row) {
      places.push_back(row * array.columns + column);
    }
  }
  return places;
}

std::vector<std::size_t> Sorted_Indices(const Array& numbers, Cell_Path path,
                                        Sort_Direction direction) {
  Expects(numbers.values.size() == numbers.rows * numbers.columns);
  const auto places = Places_Of(numbers, path);
  const Cell_Texts texts(numbers, places);
  const auto order = Selection_Order(Ranks_Of(texts.views(), direction));
  std::vector<std::size_t> indices(order.size());
  for (std::size_t i = 0; i < order.size(); ++i) indices[places[i]] = places[order[i]];
  return indices;
}

Array Sort_Numbers(const Array& numbers, Sort_Direction direction) {
  return Sorted(numbers, Cell_Path::by_column, direction);
}

Array Sort_Numbers_By_Row(const Array& numbers, Sort_Direction direction) {
  return Sorted(numbers, Cell_Path::by_row, direction);
}

}  // namespace quorvex
