// Yielders and memory gauges for tests, in force for a scope.
#pragma once

#include <cstddef>
#include <memory>
#include <utility>

#include "host/platform.h"
#include "host/run_time_failure.h"

namespace quorvex {

/// Breaks a calculation off when it has yielded so often, and yields once more.
class Interrupting_Yielder final : public Yielder {
 public:
  explicit Interrupting_Yielder(std::size_t patience) : patience_(patience) {}
  void yield() override {
    if (patience_ == 0) {
      throw Run_Time_Failure(Failure_Number::interrupted, "The user wants it to end.");
    }
    --patience_;
  }

 private:
  std::size_t patience_;
};

class Counting_Yielder final : public Yielder {
 public:
  void yield() override { ++count_; }
  std::size_t count() const { return count_; }

 private:
  std::size_t count_ = 0;
};

/// How often `body` yields.
template <typename Body>
std::size_t Yields_Of(const Body& body) {
  const auto counter = std::make_shared<Counting_Yielder>();
  const auto before = std::exchange(Current_Platform().yielder, counter);
  body();
  Current_Platform().yielder = before;
  return counter->count();
}

/// Says that there is so much memory, and never less.
class Fixed_Memory final : public Memory_Gauge {
 public:
  explicit Fixed_Memory(std::size_t bytes) : bytes_(bytes) {}
  std::size_t available_bytes() override { return bytes_; }

 private:
  std::size_t bytes_;
};

/// Breaks calculations off that yield more than so often, until the end of the scope.
class Interruption_Guard {
 public:
  explicit Interruption_Guard(std::size_t patience = 0)
      : before_(std::exchange(Current_Platform().yielder,
                              std::make_shared<Interrupting_Yielder>(patience))) {}
  ~Interruption_Guard() { Current_Platform().yielder = std::move(before_); }
  Interruption_Guard(const Interruption_Guard&) = delete;
  Interruption_Guard& operator=(const Interruption_Guard&) = delete;

 private:
  std::shared_ptr<Yielder> before_;
};

/// Puts a limit on memory until the end of the scope.
class Memory_Guard {
 public:
  explicit Memory_Guard(std::size_t bytes)
      : before_(std::exchange(Current_Platform().memory, std::make_shared<Fixed_Memory>(bytes))) {}
  ~Memory_Guard() { Current_Platform().memory = std::move(before_); }
  Memory_Guard(const Memory_Guard&) = delete;
  Memory_Guard& operator=(const Memory_Guard&) = delete;

 private:
  std::shared_ptr<Memory_Gauge> before_;
};

}  // namespace quorvex
