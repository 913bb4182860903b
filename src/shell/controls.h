// The controls of a form, whatever draws them.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "host/export.h"

namespace quorvex {

inline constexpr std::string_view form_font = "Verdana";

struct Label {
  std::string Caption;
};

struct Command_Button {
  std::string Caption;
};

struct Rich_Text_Box {
  std::string Text;
};

/// A line of text with an insertion point, which is counted in bytes from the start.
class QUORVEX_API Text_Box {
 public:
  /// Called when the user has changed the text.
  std::function<void()> Change;

  const std::string& Text() const { return text_; }
  std::size_t SelStart() const { return at_; }

  // What the form does: `Change` isn't called.
  /// Keeps the insertion point as near as the new text allows.
  void set_Text(std::string text);
  /// Puts the insertion point there, or at the end if the text ends before.
  void set_SelStart(std::size_t at);

  // What the user does.
  /// Typing, and pasting, at the insertion point.
  void type(std::string_view text);
  /// Typing, or pasting, over the whole text.
  void type_over(std::string_view text);
  /// What a toolkit tells that edits by itself: the text and the insertion point as they are now.
  /// `Change` isn't called for a text that is the same, such as one that the form has set.
  void edited(std::string_view text, std::size_t at);

 private:
  std::string text_;
  std::size_t at_ = 0;
};

}  // namespace quorvex
