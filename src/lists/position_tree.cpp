#include "lists/position_tree.h"

#include <algorithm>
#include <bit>

#include "expects.h"

namespace quorvex {

Position_Tree::Position_Tree(const std::vector<std::size_t>& values)
    : width_(std::bit_ceil(std::max<std::size_t>(values.size(), 1))), values_(2 * width_, nothing) {
  std::ranges::copy(values, values_.begin() + static_cast<std::ptrdiff_t>(width_));
  for (std::size_t node = width_ - 1; node > 0; --node) {
    values_[node] = std::min(values_[2 * node], values_[2 * node + 1]);
  }
}

void Position_Tree::set(std::size_t position, std::size_t value) {
  Expects(position < width_);
  std::size_t node = position + width_;
  values_[node] = value;
  for (node /= 2; node > 0; node /= 2) {
    const std::size_t least = std::min(values_[2 * node], values_[2 * node + 1]);
    if (values_[node] == least) break;  // nothing changes further up
    values_[node] = least;
  }
}

std::size_t Position_Tree::first_least(std::size_t from) const {
  if (from >= width_) return nothing;
  std::size_t best = from + width_;
  for (std::size_t node = best; node > 1; node /= 2) {
    const bool is_left = node % 2 == 0;
    if (is_left && values_[node + 1] < values_[best]) best = node + 1;
  }
  if (values_[best] == nothing) return nothing;
  while (best < width_) best = values_[2 * best] == values_[best] ? 2 * best : 2 * best + 1;
  return best - width_;
}

std::size_t Position_Tree::first_below(std::size_t from, std::size_t limit) const {
  if (from >= width_) return nothing;
  std::size_t node = from + width_;
  while (values_[node] >= limit) {
    while (node % 2 == 1) node /= 2;  // up to where a neighbour stands at the right
    if (node == 0) return nothing;
    ++node;
  }
  while (node < width_) node = values_[2 * node] < limit ? 2 * node : 2 * node + 1;
  return node - width_;
}

}  // namespace quorvex
