// Answers of the batch protocol.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "batch/request.h"
#include "frame/class/cls_Quorvex.h"
#include "host/run_time_failure.h"
#include "io/call_guard.h"

namespace quorvex {

/// Answers requests, one at a time.
class Answerer {
 public:
  static constexpr std::size_t no_bound = static_cast<std::size_t>(-1);

  /// The guard may be null: nothing then ends a calculation. An answer of more than `longest` bytes
  /// is a failure instead.
  explicit Answerer(std::shared_ptr<Call_Guard> guard = nullptr, std::size_t longest = no_bound)
      : guard_(std::move(guard)), longest_(longest) {}

  /// Appends the answer to a request line, without a line end. Whatever the line holds, the answer
  /// is one well-formed JSON object.
  void append_answer(std::string& out, std::string_view line);

 private:
  void append_result(std::string& out, Request& request);
  Call_Result explained(Request& request, std::string& reason);

  cls_Quorvex engine_;
  std::shared_ptr<Call_Guard> guard_;
  std::size_t longest_;
};

/// The answer to a request whose calculation failed, and to a line that is no request. `id` is JSON
/// text or empty.
void Append_Failure(std::string& out, std::string_view id, const Run_Time_Failure& failure);
void Append_Invalid(std::string& out, std::string_view id, std::string_view problem);

}  // namespace quorvex
