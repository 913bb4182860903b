// Timers of the thread that arms them.
#include <algorithm>
#include <mutex>
#include <utility>
#include <vector>

#include "host/platform/windows.h"
#include "host/platform/windows_api.h"

namespace quorvex {

namespace {

using Clock_Of_Timers = std::chrono::steady_clock;
using Call = std::shared_ptr<const std::function<void()>>;

/// A timer that runs, as the system knows it.
struct Armed {
  UINT_PTR id;
  DWORD thread;
  Clock_Of_Timers::time_point due;
  const Timer* timer;
  Call call;
};

/// All that are armed. Never destroyed: the system may call until the process ends.
struct Register {
  std::mutex mutex;
  std::vector<Armed> armed;
  std::size_t running = 0;
};

Register& All_Timers() {
  static auto* const all = new Register;
  return *all;
}

/// Takes the first one that `is_wanted` out of the register and counts it as running; its call is
/// null if there is none.
template <typename Condition>
Call Take(Condition is_wanted) {
  Register& all = All_Timers();
  const std::lock_guard lock(all.mutex);
  const auto found = std::ranges::find_if(all.armed, is_wanted);
  if (found == all.armed.end()) return nullptr;
  ::KillTimer(nullptr, found->id);
  Call call = std::move(found->call);
  all.armed.erase(found);
  ++all.running;
  return call;
}

/// A failure has nobody to go to: below this call stands the system.
void Run(const Call& call) noexcept {
  try {
    (*call)();
  } catch (...) {  // NOLINT(bugprone-empty-catch)
  }
  Register& all = All_Timers();
  const std::lock_guard lock(all.mutex);
  --all.running;
}

extern "C" void CALLBACK Timer_Is_Due(HWND /*window*/, UINT /*message*/, UINT_PTR id,
                                      DWORD /*time*/) {
  ::KillTimer(nullptr, id);  // each runs once
  if (const Call call = Take([id](const Armed& armed) { return armed.id == id; })) Run(call);
}

/// Whoever lets go of this library without asking must not leave the system with a call into
/// nothing. No call could give the library back from within itself, so it stays for good.
void Stay_Loaded() {
  static const bool stays = [] {
    const DWORD flags = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_PIN;
    HMODULE self = nullptr;
    return ::GetModuleHandleExW(flags, reinterpret_cast<LPCWSTR>(&Timer_Is_Due), &self) != 0;
  }();
  static_cast<void>(stays);
}

class Thread_Timer final : public Timer {
 public:
  explicit Thread_Timer(std::function<void()> call)
      : call_(std::make_shared<const std::function<void()>>(std::move(call))) {}
  Thread_Timer(const Thread_Timer&) = delete;
  Thread_Timer& operator=(const Thread_Timer&) = delete;
  ~Thread_Timer() override { disarm(); }

  void arm(std::chrono::milliseconds delay) override {
    disarm();
    const auto wait = std::clamp<std::chrono::milliseconds::rep>(delay.count(), USER_TIMER_MINIMUM,
                                                                 USER_TIMER_MAXIMUM);
    Stay_Loaded();
    Register& all = All_Timers();
    const std::lock_guard lock(all.mutex);
    all.armed.reserve(all.armed.size() + 1);
    const UINT_PTR id = ::SetTimer(nullptr, 0, static_cast<UINT>(wait), &Timer_Is_Due);
    const auto due = Clock_Of_Timers::now() + std::chrono::milliseconds(wait);
    if (id != 0) all.armed.push_back({id, ::GetCurrentThreadId(), due, this, call_});
  }

  void cancel() override { disarm(); }

 private:
  void disarm() {
    Register& all = All_Timers();
    const std::lock_guard lock(all.mutex);
    std::erase_if(all.armed, [this](const Armed& armed) {
      if (armed.timer == this) ::KillTimer(nullptr, armed.id);
      return armed.timer == this;
    });
  }

  Call call_;
};

class Timers_Of_Threads final : public Timer_Service {
 public:
  std::unique_ptr<Timer> make(std::function<void()> call) override {
    return std::make_unique<Thread_Timer>(std::move(call));
  }

  // For threads that take no messages. One that is armed anew meanwhile waits for the next time.
  void run_due() override {
    const DWORD thread = ::GetCurrentThreadId();
    const auto now = Clock_Of_Timers::now();
    while (const Call call = Take(
               [&](const Armed& armed) { return armed.thread == thread && armed.due <= now; })) {
      Run(call);
    }
  }
};

}  // namespace

std::shared_ptr<Timer_Service> Thread_Timers() {
  return std::make_shared<Timers_Of_Threads>();
}

std::size_t Count_Pending_Timers() {
  Register& all = All_Timers();
  const std::lock_guard lock(all.mutex);
  return all.armed.size() + all.running;
}

}  // namespace quorvex
