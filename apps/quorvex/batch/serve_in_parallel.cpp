// The loop of `quorvex batch` with several processes.
#include <sys/mman.h>

#include <cerrno>
#include <memory>
#include <new>
#include <system_error>
#include <utility>

#include "batch/answer.h"
#include "batch/request.h"
#include "batch/serve.h"
#include "batch/worker.h"
#include "io/line_io.h"

namespace quorvex {
namespace {

// How far the run may be ahead of an answer that is still waited for.
constexpr std::size_t most_jobs = std::size_t{1} << 16;
// No more than this is handed to a process at once, a single line apart.
constexpr std::size_t most_bytes_at_once = std::size_t{1} << 20;

// Counters that the processes of a run write and their parent reads.
class Shared_Counters {
 public:
  explicit Shared_Counters(std::size_t count) : bytes_(count * sizeof(Counter)) {
    memory_ = ::mmap(nullptr, bytes_, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (memory_ == MAP_FAILED)
      throw std::system_error(errno, std::generic_category(), "cannot share memory");
    for (std::size_t i = 0; i < count; ++i) new (&at(i)) Counter(0);
  }
  ~Shared_Counters() { ::munmap(memory_, bytes_); }
  Shared_Counters(const Shared_Counters&) = delete;
  Shared_Counters& operator=(const Shared_Counters&) = delete;

  std::atomic<std::uint64_t>& at(std::size_t index) {
    return static_cast<Counter*>(memory_)[index];
  }

 private:
  using Counter = std::atomic<std::uint64_t>;
  static_assert(Counter::is_always_lock_free);

  std::size_t bytes_;
  void* memory_;
};

class Parallel_Batch {
 public:
  Parallel_Batch(int input, int output, unsigned processes, const Answer_Function& answer,
                 const Batch_Bounds& bounds)
      : input_(input),
        bounds_(bounds),
        reader_(input, bounds.longest_line),
        writer_(output),
        answer_(answer),
        counters_(processes),
        workers_(processes) {
    for (std::size_t i = 0; i < processes; ++i) start_worker(i);
  }

  void run() {
    for (;;) {
      take_lines();
      assign();
      deliver();
      if (input_ended_ && jobs_.empty()) break;
      writer_.flush();
      wait();
    }
    writer_.flush();
  }

 private:
  void start_worker(std::size_t index) {
    workers_[index].reset();
    workers_[index] = std::make_unique<Worker>(answer_, counters_.at(index), [this] {
      for (const auto& other : workers_) {
        if (other != nullptr) other->forsake();
      }
    });
  }

  bool has_room() const { return jobs_.size() < most_jobs && bytes_ < bounds_.held; }

  void take_lines() {
    needs_input_ = false;
    while (has_room()) {
      const auto line = reader_.buffered_line();
      if (!line) {
        needs_input_ = !input_ended_;
        return;
      }
      if (!reader_.problem().empty()) {
        add_invalid_line(reader_.problem());
      } else if (!Is_Blank_Line(*line)) {
        add_job(*line);
      }
    }
  }

  Job& add(std::size_t weight) {
    jobs_.push_back(std::make_unique<Job>());
    jobs_.back()->weight = weight;
    bytes_ += weight;
    return *jobs_.back();
  }

  void add_job(std::string_view line) {
    Job& job = add(line.size());
    job.line = line;
    waiting_.push_back(&job);
  }

  void add_invalid_line(std::string_view problem) {
    Job& job = add(0);
    Append_Invalid(job.answer, "", problem);
    job.is_done = true;
  }

  void assign() {
    for (const auto& worker : workers_) {
      if (waiting_.empty()) return;
      if (worker->is_idle()) worker->give(next_jobs(worker->appetite()));
    }
  }

  std::vector<Job*> next_jobs(std::size_t count) {
    std::vector<Job*> jobs;
    std::size_t bytes = 0;
    while (!waiting_.empty() && jobs.size() < count) {
      bytes += waiting_.front()->line.size();
      if (bytes > most_bytes_at_once && !jobs.empty()) break;
      jobs.push_back(waiting_.front());
      waiting_.pop_front();
    }
    return jobs;
  }

  void deliver() {
    while (!jobs_.empty() && jobs_.front()->is_done) {
      bytes_ -= jobs_.front()->weight;
      writer_.write_line(jobs_.front()->answer);
      jobs_.pop_front();
    }
  }

  void wait() {
    std::vector<pollfd> events;
    events.push_back({needs_input_ ? input_ : -1, POLLIN, 0});
    for (const auto& worker : workers_) {
      events.push_back(may_take_from(*worker) ? worker->answers_to_poll() : pollfd{-1, 0, 0});
      events.push_back(worker->requests_to_poll());
    }
    if (::poll(events.data(), static_cast<nfds_t>(events.size()), -1) < 0) return;
    if (events[0].revents != 0) input_ended_ = !reader_.fill();
    for (std::size_t i = 0; i < workers_.size(); ++i) {
      if (events[2 * i + 2].revents != 0) workers_[i]->send();
      if (events[2 * i + 1].revents != 0) receive(i);
    }
  }

  // While one answer is waited for, those behind it are held, but no more than there is room for:
  // then their processes wait, too. The one that has the first line in hand never has to.
  bool may_take_from(const Worker& worker) const {
    return bytes_ < bounds_.held || worker.has_in_hand(*jobs_.front());
  }

  void receive(std::size_t index) {
    const bool is_alive = workers_[index]->receive([this](Job& job) {
      bytes_ += job.answer.size();
      job.weight += job.answer.size();
    });
    if (!is_alive) replace(index);
  }

  void replace(std::size_t index) {
    const Worker::Remains remains = workers_[index]->bury();
    waiting_.insert(waiting_.begin(), remains.unharmed.begin(), remains.unharmed.end());
    if (remains.culprit != nullptr) answer_for_the_dead(*remains.culprit, remains.cause);
    start_worker(index);
  }

  void answer_for_the_dead(Job& job, const std::string& cause) {
    const std::string id = Read_Request(job.line).id;
    Append_Failure(job.answer, id,
                   Run_Time_Failure(Failure_Number::invalid_call,
                                    "The process that calculated this " + cause + "."));
    job.is_done = true;
  }

  int input_;
  Batch_Bounds bounds_;
  Line_Reader reader_;
  Line_Writer writer_;
  const Answer_Function& answer_;
  Shared_Counters counters_;
  std::vector<std::unique_ptr<Worker>> workers_;
  std::deque<std::unique_ptr<Job>> jobs_;  // in the order of their lines
  std::deque<Job*> waiting_;               // for a process
  std::size_t bytes_ = 0;
  bool needs_input_ = false;
  bool input_ended_ = false;
};

}  // namespace

void Serve_In_Parallel(int input, int output, unsigned processes, const Answer_Function& answer,
                       const Batch_Bounds& bounds) {
  Parallel_Batch(input, output, processes, answer, bounds).run();
}

}  // namespace quorvex
