// A second thread that works the windows which the calling thread shows.
#pragma once

#include <functional>
#include <string>
#include <thread>

#include "com.h"

namespace quorvex::windows {

/// Ends when its work is done.
class Window_Driver {
 public:
  explicit Window_Driver(std::function<void()> work) : thread_(std::move(work)) {}
  Window_Driver(const Window_Driver&) = delete;
  Window_Driver& operator=(const Window_Driver&) = delete;
  ~Window_Driver() { thread_.join(); }

 private:
  std::thread thread_;
};

/// The visible window of this process with that title, waited for; null after ten seconds.
HWND Await_Window(const std::string& title);
/// Whether it has gone, waited for as long.
bool Await_Gone(HWND window);

/// Presses a button without waiting for what that does.
void Press(HWND window, int id);

/// Work that presses a button of the window with that title, once it is there.
std::function<void()> Press_In(const std::string& title, int id);

std::string Text_Of(HWND window, int id);
/// All texts of a window's controls, one in a line.
std::string Texts_Of(HWND window);

}  // namespace quorvex::windows
