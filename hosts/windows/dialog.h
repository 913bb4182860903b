// A modal dialog, put together control by control.
#pragma once

#include "host/platform/windows_api.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvex::windows {

/// Left, top, width and height, in the units of dialogs: about a quarter and an eighth of a
/// character.
struct Place {
  short left;
  short top;
  short width;
  short height;
};

/// Controls are known by numbers; `IDOK` and `IDCANCEL` are those that Enter and Escape press.
class Dialog {
 public:
  Dialog(std::string_view title, short width, short height);
  Dialog(const Dialog&) = delete;
  Dialog& operator=(const Dialog&) = delete;
  ~Dialog() = default;

  void add_label(int id, const Place& place, std::string_view text);
  void add_rich_text(int id, const Place& place, std::string_view text);
  void add_entry(int id, const Place& place);
  void add_button(int id, const Place& place, std::string_view text, bool is_default);

  /// Called with a control's number when its button is pressed, or its text has changed.
  std::function<void(int id)> on_press;
  std::function<void(int id)> on_change;
  /// The control that the user starts in.
  void start_in(int id) { first_ = id; }
  /// Called when the controls are there, before the user can reach them.
  std::function<void()> on_screen;

  /// Shows the dialog, and comes back when it has been closed, or at once where nothing can be
  /// shown.
  void run();
  void close();
  /// Before the user's eyes.
  bool is_open() const { return window_ != nullptr; }
  void bring_to_front();

  std::wstring text(int id) const;
  void set_text(int id, std::string_view text);
  /// The end of what is marked, in units of UTF-16.
  std::size_t caret(int id) const;
  void set_caret(int id, std::size_t at);

 private:
  void add(int id, const Place& place, const wchar_t* kind, DWORD style, std::string_view text);
  void append(std::wstring_view text);
  template <typename Number>
  void append_number(Number number);
  void align();
  INT_PTR handle(UINT message, WPARAM first) noexcept;
  static INT_PTR CALLBACK Handle(HWND window, UINT message, WPARAM first, LPARAM second);

  std::vector<WORD> layout_;
  std::size_t count_at_ = 0;  // of the controls, within the layout
  int first_ = IDOK;
  HWND window_ = nullptr;
};

}  // namespace quorvex::windows
