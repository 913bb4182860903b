// One process of a parallel batch run, as its parent sees it.
#pragma once

#include <poll.h>
#include <sys/types.h>

#include <atomic>
#include <chrono>
#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "batch/serve.h"

namespace quorvex {

/// A request on its way: its line until it is answered, then its answer.
struct Job {
  std::string line;
  std::string answer;
  std::size_t weight = 0;  // bytes that count against the limit of the run
  bool is_done = false;
  int losses = 0;  // processes that died before they began it
};

/// A process that answers the lines it is sent. Jobs belong to the caller and have to stay where
/// they are while they are in hand.
class Worker {
 public:
  /// `started` lies in memory that parent and process share. `before_work` runs in the new process
  /// first. Throws `std::system_error` if there can be no process.
  Worker(const Answer_Function& answer, std::atomic<std::uint64_t>& started,
         const std::function<void()>& before_work);
  /// Ends the process: at once if it is at work.
  ~Worker();
  Worker(const Worker&) = delete;
  Worker& operator=(const Worker&) = delete;

  bool is_idle() const { return in_hand_.empty(); }
  /// Whether that job is the next that it answers.
  bool has_in_hand(const Job& job) const { return !is_idle() && in_hand_.front() == &job; }
  /// How many jobs it should be given at once: many while they are done in no time, and one while
  /// each takes long, lest short ones wait behind a long one with other processes idle.
  std::size_t appetite() const { return appetite_; }
  void give(const std::vector<Job*>& jobs);

  pollfd answers_to_poll() const { return {from_worker_, POLLIN, 0}; }
  pollfd requests_to_poll() const;

  void send();
  /// Takes in what the process has answered, and tells of each; false if it has died.
  bool receive(const std::function<void(Job&)>& answered);

  /// For a process that has died: the job that it died of, or null, and the rest of what it had in
  /// hand, in order.
  struct Remains {
    Job* culprit = nullptr;
    std::vector<Job*> unharmed;
    std::string cause;
  };
  Remains bury();

  /// Closes this end of the pipes. For use in other processes.
  void forsake();

 private:
  using Clock = std::chrono::steady_clock;

  Job& take_answer(std::string_view answer);
  void adjust_appetite();
  [[noreturn]] void work(const Answer_Function& answer, int input, int output);

  std::atomic<std::uint64_t>& started_;
  std::uint64_t answered_ = 0;
  pid_t process_ = -1;
  int to_worker_ = -1;
  int from_worker_ = -1;
  std::deque<Job*> in_hand_;
  std::string outbox_;
  std::size_t sent_ = 0;  // of the outbox
  std::string inbox_;
  std::size_t scanned_ = 0;  // of the inbox, without a line end
  std::size_t appetite_ = 1;
  Clock::time_point given_;
};

}  // namespace quorvex
