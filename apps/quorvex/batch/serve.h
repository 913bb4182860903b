// The loops of `quorvex batch`.
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace quorvex {

/// Appends the answer to one line, without a line end.
using Answer_Function = std::function<void(std::string& out, std::string_view line)>;

/// Answers each line of `input` on `output`, in order; blank lines are skipped. `started`, if
/// given, counts the lines whose calculation has begun.
void Serve(int input, int output, const Answer_Function& answer,
           std::atomic<std::uint64_t>* started = nullptr);

/// As `Serve`, with that many processes at work at once, and the answers still in order. The
/// request on which a process dies is answered with a failure; another process takes its place and
/// does again what else the dead one had in hand. Throws `std::system_error` if no process can be
/// started.
void Serve_In_Parallel(int input, int output, unsigned processes, const Answer_Function& answer);

}  // namespace quorvex
