// Breaking a calculation off by the keyboard.
#include <atomic>
#include <iterator>

#include "host/platform/windows.h"
#include "host/platform/windows_api.h"
#include "host/run_time_failure.h"

namespace quorvex {

namespace {

/// Only the user of this process means this calculation.
bool Is_In_Front() {
  DWORD process = 0;
  ::GetWindowThreadProcessId(::GetForegroundWindow(), &process);
  return process == ::GetCurrentProcessId();
}

bool Is_Down(int key) {
  return ::GetAsyncKeyState(key) < 0;
}

constexpr int keys[] = {VK_ESCAPE, VK_CANCEL};

/// How many calls have begun.
std::atomic<unsigned> calls = 1;

class Key_Watch final : public Yielder {
 public:
  void yield() override {
    // Nobody presses a key for a shorter time, and looking at the keys takes longer than looking at
    // the time.
    constexpr ULONGLONG milliseconds_between_looks = 20;
    const unsigned call = calls.load(std::memory_order_relaxed);
    const bool is_new = watched_call_.load(std::memory_order_relaxed) != call;
    const ULONGLONG now = ::GetTickCount64();
    if (!is_new && now - last_look_.load(std::memory_order_relaxed) < milliseconds_between_looks)
      return;
    watched_call_.store(call, std::memory_order_relaxed);
    last_look_.store(now, std::memory_order_relaxed);
    for (std::size_t i = 0; i < std::size(keys); ++i) look(keys[i], was_down_[i], is_new);
  }

 private:
  // What was down when the call began was meant for something else, until it has been up.
  static void look(int key, std::atomic<bool>& was_down, bool is_new) {
    const bool is_down = Is_Down(key);
    if (is_new || !is_down) was_down = is_down;
    if (is_down && !was_down && Is_In_Front())
      throw Run_Time_Failure(Failure_Number::interrupted, "The calculation was broken off.");
  }

  std::atomic<unsigned> watched_call_ = 0;
  std::atomic<bool> was_down_[std::size(keys)] = {};
  std::atomic<ULONGLONG> last_look_ = 0;
};

}  // namespace

void Ignore_Keys_Held_Down() {
  calls.fetch_add(1, std::memory_order_relaxed);
}

std::shared_ptr<Yielder> Break_Keys() {
  return std::make_shared<Key_Watch>();
}

}  // namespace quorvex
