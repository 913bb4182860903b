#include "host/deadline.h"

#include <array>
#include <cstdio>
#include <string>

#include "host/run_time_failure.h"

namespace quorvex {
namespace {

std::string Timeout_Message(Seconds limit) {
  std::array<char, 64> number{};
  std::snprintf(number.data(), number.size(), "%g", limit.count());
  return "The calculation took longer than " + std::string(number.data()) + " s.";
}

}  // namespace

Deadline::Deadline(std::optional<Seconds> limit) : limit_(limit) {}

Deadline::~Deadline() = default;

void Deadline::begin_call() {
  if (limit_) begin_ = Time::now();
}

void Deadline::yield() {
  if (limit_ && Time::now() - begin_ > *limit_)
    throw Run_Time_Failure(Failure_Number::interrupted, Timeout_Message(*limit_));
}

}  // namespace quorvex
