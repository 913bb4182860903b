#include "lists/selection_order.h"

#include <algorithm>
#include <numeric>
#include <set>
#include <utility>

#include "expects.h"
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

std::vector<std::size_t> In_Order(std::size_t count) {
  std::vector<std::size_t> order(count);
  std::iota(order.begin(), order.end(), std::size_t{0});
  return order;
}

// Where some numbers compare with nothing.
std::vector<std::size_t> Order_By_Search(const std::vector<std::size_t>& ranks) {
  std::vector<std::size_t> order = In_Order(ranks.size());
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

// The places of numbers, those of the least rank first, and where each rank's end.
struct Ranked_Places {
  explicit Ranked_Places(const std::vector<std::size_t>& ranks) {
    std::size_t count = 0;
    for (const std::size_t rank : ranks) {
      if (rank != no_number_rank) count = std::max(count, rank + 1);
    }
    ends.resize(count + 1);
    for (const std::size_t rank : ranks) {
      if (rank != no_number_rank) ++ends[rank + 1];
    }
    for (std::size_t rank = 0; rank < count; ++rank) ends[rank + 1] += ends[rank];
    places.resize(ends.back());
    for (std::size_t place = 0; place < ranks.size(); ++place) {
      if (ranks[place] != no_number_rank) places[ends[ranks[place]]++] = place;
    }
    ends.pop_back();
  }

  std::vector<std::size_t> places;
  std::vector<std::size_t> ends;
};

// Where all numbers compare: while one rank is taken, no number of it is moved aside. For the one
// that stands at the current position is the first of them, and stays.
std::vector<std::size_t> Order_By_Rank(const std::vector<std::size_t>& ranks) {
  std::vector<std::size_t> order = In_Order(ranks.size());
  std::vector<std::size_t> position = order;  // of each place
  const Ranked_Places ranked(ranks);
  std::vector<std::size_t> bests;
  std::size_t current = 0;
  for (const std::size_t end : ranked.ends) {
    Expects(end > current);  // ranks are counted without gaps
    bests.clear();
    for (std::size_t i = current; i < end; ++i) bests.push_back(position[ranked.places[i]]);
    if (bests.size() > 1) std::ranges::sort(bests);
    for (const std::size_t best : bests) {
      if (current % steps_between_yields == 0) Yield();
      std::swap(order[current], order[best]);
      position[order[best]] = best;
      ++current;
    }
  }
  return order;
}

}  // namespace

std::vector<std::size_t> Selection_Order(const std::vector<std::size_t>& ranks) {
  const bool all_compare = std::ranges::find(ranks, uncompared_rank) == ranks.end();
  return all_compare ? Order_By_Rank(ranks) : Order_By_Search(ranks);
}

}  // namespace quorvex
