#include "lists/delete_text.h"

#include <cstddef>
#include <cstring>
#include <vector>

#include "host/platform.h"

namespace quorvex {
namespace {

// For each length of a matched part of the entry, the longest shorter part that ends the same way
// (D. E. Knuth, J. H. Morris, V. R. Pratt, Fast pattern matching in strings, SIAM J. Comput. 6,
// 1977).
std::vector<std::size_t> Shorter_Matches(std::string_view entry) {
  std::vector<std::size_t> shorter(entry.size() + 1, 0);
  std::size_t matched = 0;
  for (std::size_t i = 1; i < entry.size(); ++i) {
    while (matched > 0 && entry[i] != entry[matched]) matched = shorter[matched];
    if (entry[i] == entry[matched]) ++matched;
    shorter[i + 1] = matched;
  }
  return shorter;
}

std::size_t Find_Byte(std::string_view text, char byte, std::size_t from) {
  const std::size_t place = text.find(byte, from);
  return place == std::string_view::npos ? text.size() : place;
}

// The text is kept on a stack within itself: a character is put on top, and when the entry stands
// there, it is taken off. That deletes the same occurrences in the same order. All occurrences have
// one length, so the first to begin is the first to end, and it is the one found. What is kept
// below it holds no occurrence, so the next one in what is left ends in characters still to come.
class Deletion {
 public:
  Deletion(std::string& text, std::string_view entry)
      : text_(text), entry_(entry), shorter_(Shorter_Matches(entry)) {}

  void run() {
    std::size_t next = Find_Byte(text_, entry_.front(), 0);
    kept_ = next;
    if (next == text_.size()) return;
    matches_.assign(text_.size() + 1, 0);
    std::size_t steps = 0;
    while (next < text_.size()) {
      if (++steps % digits_between_yields == 0) Yield();
      if (matches_[kept_] == 0) next = keep_block(next);
      if (next < text_.size()) put(text_[next++]);
    }
    text_.resize(kept_);
  }

 private:
  // Moves all that can't begin the entry at once.
  std::size_t keep_block(std::size_t next) {
    const std::size_t end = Find_Byte(text_, entry_.front(), next);
    std::memmove(text_.data() + kept_, text_.data() + next, end - next);
    for (; next < end; ++next) matches_[++kept_] = 0;
    return end;
  }

  void put(char byte) {
    std::size_t matched = matches_[kept_];
    while (matched > 0 && byte != entry_[matched]) matched = shorter_[matched];
    if (byte == entry_[matched]) ++matched;
    text_[kept_++] = byte;
    matches_[kept_] = matched;
    if (matched == entry_.size()) kept_ -= entry_.size();
  }

  std::string& text_;
  std::string_view entry_;
  std::vector<std::size_t> shorter_;
  std::vector<std::size_t> matches_;  // how much of the entry ends at each height of the stack
  std::size_t kept_ = 0;
};

}  // namespace

void Delete_Every(std::string& text, std::string_view entry) {
  if (entry.size() <= text.size()) Deletion(text, entry).run();
}

}  // namespace quorvex
