#include "shell/controls.h"

#include <algorithm>
#include <utility>

namespace quorvex {

void Text_Box::set_Text(std::string text) {
  text_ = std::move(text);
  set_SelStart(at_);
}

void Text_Box::set_SelStart(std::size_t at) {
  at_ = std::min(at, text_.size());
}

void Text_Box::type(std::string_view text) {
  text_.insert(at_, text);
  at_ += text.size();
  if (Change) Change();
}

void Text_Box::type_over(std::string_view text) {
  text_ = text;
  at_ = text_.size();
  if (Change) Change();
}

void Text_Box::edited(std::string_view text, std::size_t at) {
  const bool has_changed = text != text_;
  text_ = text;
  set_SelStart(at);
  if (has_changed && Change) Change();
}

}  // namespace quorvex
