// Answers of the batch protocol.
#pragma once

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
  /// The guard may be null: nothing then ends a calculation.
  explicit Answerer(std::shared_ptr<Call_Guard> guard = nullptr) : guard_(std::move(guard)) {}

  /// Appends the answer to a request line, without a line end. Whatever the line holds, the answer
  /// is one well-formed JSON object.
  void append_answer(std::string& out, std::string_view line);

 private:
  Call_Result explained(Request& request, std::string& reason);

  cls_Quorvex engine_;
  std::shared_ptr<Call_Guard> guard_;
};

/// The answer to a request whose calculation failed, and to a line that is no request. `id` is JSON
/// text or empty.
void Append_Failure(std::string& out, std::string_view id, const Run_Time_Failure& failure);
void Append_Invalid(std::string& out, std::string_view id, std::string_view problem);

}  // namespace quorvex
