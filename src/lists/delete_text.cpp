#include "lists/delete_text.h"

#include <cstddef>
#include <cstring>
#include <vector>

#include "expects.h"
#include "host/platform.h"
#include "lists/text_matching.h"

namespace quorvex {
namespace {

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
      : text_(text), first_(entry.front()), table_(entry) {}

  // What stands ahead of `next` can't begin the entry.
  void run(std::size_t next) {
    kept_ = next;
    Require_Memory(static_cast<double>(text_.size() + 1) * sizeof(Match_Table::Length));
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
    const std::size_t end = Find_Byte(text_, first_, next);
    std::memmove(text_.data() + kept_, text_.data() + next, end - next);
    for (; next < end; ++next) matches_[++kept_] = 0;
    return end;
  }

  void put(char byte) {
    const Match_Table::Length matched = table_.after(matches_[kept_], byte);
    text_[kept_++] = byte;
    matches_[kept_] = matched;
    if (matched == table_.entry_size()) kept_ -= matched;
  }

  std::string& text_;
  char first_;
  Match_Table table_;
  std::vector<Match_Table::Length>
      matches_;  // how much of the entry ends at each height of the stack
  std::size_t kept_ = 0;
};

}  // namespace

void Delete_Every(std::string& text, std::string_view entry) {
  Expects(!entry.empty());
  if (entry.size() > text.size()) return;
  const std::size_t next = Find_Byte(text, entry.front(), 0);
  if (next < text.size()) Deletion(text, entry).run(next);
}

}  // namespace quorvex
