#include "lists/sort_numbers.h"

#include <deque>
#include <numeric>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "host/conversions.h"
#include "lists/selection_order.h"

namespace quorvex {
namespace {

std::vector<std::size_t> Places_By_Row(const Array& array) {
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

// The first round looks at every cell and makes text of the blank ones. The first cell is put back
// as it was where nothing takes its place.
void Fill_Blanks(Array& array, const std::vector<std::size_t>& places,
                 const std::vector<std::string_view>& texts, bool first_is_displaced) {
  for (std::size_t i = first_is_displaced ? 0 : 1; i < places.size(); ++i) {
    HostValue& cell = array.values[places[i]];
    if (!cell.is_text() && texts[i].empty()) cell = "";
  }
}

Array Sorted(Array array, const std::vector<std::size_t>& places, Sort_Direction direction) {
  std::vector<std::size_t> order;
  {
    const Cell_Texts texts(array, places);
    order = Selection_Order(Ranks_Of(texts.views(), direction));
    Fill_Blanks(array, places, texts.views(), !order.empty() && order.front() != 0);
  }
  std::vector<HostValue> sorted(order.size());
  for (std::size_t i = 0; i < order.size(); ++i) {
    sorted[places[i]] = std::move(array.values[places[order[i]]]);
  }
  array.values = std::move(sorted);
  return array;
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

Array Sort_Numbers(Array numbers, Sort_Direction direction) {
  const auto places = Places_By_Column(numbers);
  return Sorted(std::move(numbers), places, direction);
}

Array Sort_Numbers_By_Row(Array numbers, Sort_Direction direction) {
  const auto places = Places_By_Row(numbers);
  return Sorted(std::move(numbers), places, direction);
}

}  // namespace quorvex
