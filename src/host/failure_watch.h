// Failures that a calculation has turned into error tokens.
#pragma once

#include <optional>

#include "host/export.h"
#include "host/run_time_failure.h"

namespace quorvex {

/// While it lives, it keeps what failed last on its thread, whether or not a handler has made a
/// token of it: for hosts that tell their users why a token came. A lack of memory and a bound that
/// was reached are kept before all else. It changes no result.
class QUORVEX_API Failure_Watch {
 public:
  Failure_Watch() noexcept;
  ~Failure_Watch();
  Failure_Watch(const Failure_Watch&) = delete;
  Failure_Watch& operator=(const Failure_Watch&) = delete;

  const std::optional<Run_Time_Failure>& seen() const noexcept { return seen_; }
  void forget() noexcept { seen_.reset(); }

 private:
  static void note(const Run_Time_Failure& failure);

  Failure_Watch* outer_;
  std::optional<Run_Time_Failure> seen_;
};

/// True for failures that say nothing about the operands: there was too little memory, or the
/// calculation can be seen never to end.
inline bool Is_Bound(Failure_Number number) {
  return number == Failure_Number::out_of_memory || number == Failure_Number::too_complex;
}

}  // namespace quorvex
