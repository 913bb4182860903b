#include "lists/text_matching.h"

#include <limits>

#include "expects.h"
#include "host/platform.h"
#include "host/run_time_failure.h"

namespace quorvex {

// For each length of a matched part of the entry, the longest shorter part that ends the same way
// (D. E. Knuth, J. H. Morris, V. R. Pratt, Fast pattern matching in strings, SIAM J. Comput. 6,
// 1977).
Match_Table::Match_Table(std::string_view entry) : entry_(entry) {
  Expects(!entry.empty());
  if (entry.size() > std::numeric_limits<Length>::max()) {
    throw Run_Time_Failure(Failure_Number::out_of_memory, "A text to look for is too long.");
  }
  Require_Memory(static_cast<double>(entry.size() + 1) * sizeof(Length));
  shorter_.assign(entry.size() + 1, 0);
  Length matched = 0;
  for (std::size_t i = 1; i < entry.size(); ++i) {
    if (i % digits_between_yields == 0) Yield();
    while (matched > 0 && entry[i] != entry[matched]) matched = shorter_[matched];
    if (entry[i] == entry[matched]) ++matched;
    shorter_[i + 1] = matched;
  }
}

bool Occurrences::stand_at(std::size_t place) {
  Expects(place >= asked_);
  asked_ = place;
  if (read_ < place) {
    read_ = place;
    matched_ = 0;
  }
  // What is matched is the first that can still become an occurrence.
  while (read_ - matched_ <= place) {
    if (read_ - matched_ == place && matched_ == table_.entry_size()) return true;
    if (read_ == text_.size()) return false;
    matched_ = table_.after(matched_, text_[read_++]);
    if (read_ % digits_between_yields == 0) Yield();
  }
  return false;
}

}  // namespace quorvex
