#include "lists/selection_order.h"

#include <numeric>
#include <set>
#include <utility>

#include "host/platform.h"
#include "lists/number_ranks.h"
#include "lists/position_tree.h"

namespace quorvex {
namespace {

std::vector<std::size_t> Compared_Only(std::vector<std::size_t> ranks) {
  for (std::size_t& rank : ranks) {
    if (rank >= uncompared_rank) rank = Position_Tree::nothing;
  }
  return ranks;
}

// The ranks of what is left, by its positions.
class Unsorted_Tail {
 public:
  explicit Unsorted_Tail(const std::vector<std::size_t>& ranks) : compared_(Compared_Only(ranks)) {
    for (std::size_t i = 0; i < ranks.size(); ++i) {
      if (ranks[i] == uncompared_rank) uncompared_.insert(uncompared_.end(), i);
    }
  }

  // Where the best of it stands; `Position_Tree::nothing` if there is no number. Whatever was best
  // is forgotten at the last number that compares with nothing.
  std::size_t best(std::size_t first) const {
    if (uncompared_.empty()) return compared_.first_least(first);
    const std::size_t last = *uncompared_.rbegin();
    const std::size_t behind = compared_.first_least(last + 1);
    return behind == Position_Tree::nothing ? last : behind;
  }

  void put(std::size_t position, std::size_t rank) {
    const bool is_compared = rank < uncompared_rank;
    compared_.set(position, is_compared ? rank : Position_Tree::nothing);
    if (rank == uncompared_rank) {
      uncompared_.insert(position);
    } else if (!uncompared_.empty()) {
      uncompared_.erase(position);
    }
  }

 private:
  Position_Tree compared_;
  std::set<std::size_t> uncompared_;
};

}  // namespace

std::vector<std::size_t> Selection_Order(const std::vector<std::size_t>& ranks) {
  std::vector<std::size_t> order(ranks.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  Unsorted_Tail tail(ranks);
  for (std::size_t current = 0; current < order.size(); ++current) {
    if (current % steps_between_yields == 0) Yield();
    const std::size_t best = tail.best(current);
    if (best == Position_Tree::nothing) break;  // the rest stays as it stands
    std::swap(order[current], order[best]);
    if (best != current) tail.put(best, ranks[order[best]]);
    tail.put(current, no_number_rank);
  }
  return order;
}

}  // namespace quorvex
