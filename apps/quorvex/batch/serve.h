// The loops of `quorvex batch`.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "io/line_io.h"

namespace quorvex {

/// How much of the memory a run takes for itself, in bytes.
struct Batch_Bounds {
  std::size_t longest_line = Line_Reader::no_bound;
  /// Lines and answers that wait behind an answer still being worked out. What the processes have
  /// in hand comes on top.
  std::size_t held = std::size_t{1} << 28;
};

/// Appends the answer to one line, without a line end.
using Answer_Function = std::function<void(std::string& out, std::string_view line)>;

/// Answers each line of `input` on `output`, in order; blank lines are skipped, and those that
/// are too long are called invalid. `started`, if given, counts the lines whose calculation has
/// begun.
void Serve(int input, int output, const Answer_Function& answer, const Batch_Bounds& bounds = {},
           std::atomic<std::uint64_t>* started = nullptr);

/// As `Serve`, with that many processes at work at once, and the answers still in order. The
/// request on which a process dies is answered with a failure; another process takes its place and
/// does again what else the dead one had in hand. Throws `std::system_error` if no process can be
/// started.
void Serve_In_Parallel(int input, int output, unsigned processes, const Answer_Function& answer,
                       const Batch_Bounds& bounds = {});

}  // namespace quorvex
