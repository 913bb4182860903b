// Breaking a calculation off by the keyboard.
#include <atomic>

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

class Key_Watch final : public Yielder {
 public:
  void yield() override {
    // Nobody presses a key for a shorter time, and looking at the keys takes longer than looking at
    // the time.
    constexpr ULONGLONG milliseconds_between_looks = 20;
    const ULONGLONG now = ::GetTickCount64();
    if (now - last_look_.load(std::memory_order_relaxed) < milliseconds_between_looks) return;
    last_look_.store(now, std::memory_order_relaxed);
    if ((Is_Down(VK_ESCAPE) || Is_Down(VK_CANCEL)) && Is_In_Front())
      throw Run_Time_Failure(Failure_Number::interrupted, "The calculation was broken off.");
  }

 private:
  std::atomic<ULONGLONG> last_look_ = 0;
};

}  // namespace

std::shared_ptr<Yielder> Break_Keys() {
  return std::make_shared<Key_Watch>();
}

}  // namespace quorvex
