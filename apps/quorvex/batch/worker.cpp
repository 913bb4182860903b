// One process of a parallel batch run, as its parent sees it.
#include "batch/worker.h"

#include <fcntl.h>
#ifdef __linux__
#include <sys/prctl.h>
#endif
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <exception>
#include <system_error>
#include <utility>

#ifdef QUORVEX_COVERAGE
extern "C" void __gcov_dump();
#endif

namespace quorvex {
namespace {

constexpr std::size_t greatest_appetite = 256;
constexpr auto no_time = std::chrono::milliseconds(2);
constexpr std::size_t read_size = std::size_t{1} << 16;

std::array<int, 2> Make_Pipe() {
  std::array<int, 2> ends{};
  if (::pipe(ends.data()) != 0)
    throw std::system_error(errno, std::generic_category(), "cannot make a pipe");
  return ends;
}

void Close(int& descriptor) {
  if (descriptor >= 0) ::close(descriptor);
  descriptor = -1;
}

// A long calculation would not notice that nobody waits for its answer any more.
void End_With(pid_t parent) {
#ifdef __linux__
  ::prctl(PR_SET_PDEATHSIG, SIGKILL);
#endif
  if (::getppid() != parent) ::_exit(1);
}

// Ends this process, and nothing that its parent has begun.
[[noreturn]] void Leave(int code) {
#ifdef QUORVEX_COVERAGE
  __gcov_dump();
#endif
  ::_exit(code);
}

std::string Cause_Of_Death(int status) {
  if (WIFSIGNALED(status)) return "was ended by signal " + std::to_string(WTERMSIG(status));
  return "ended with code " + std::to_string(WEXITSTATUS(status));
}

}  // namespace

Worker::Worker(const Answer_Function& answer, std::atomic<std::uint64_t>& started,
               const std::function<void()>& before_work)
    : started_(started) {
  started_ = 0;
  std::array<int, 2> requests = Make_Pipe();
  std::array<int, 2> answers = Make_Pipe();
  const pid_t parent = ::getpid();
  process_ = ::fork();
  if (process_ < 0) {
    const int error = errno;
    for (int* end : {&requests[0], &requests[1], &answers[0], &answers[1]}) Close(*end);
    throw std::system_error(error, std::generic_category(), "cannot start a process");
  }
  if (process_ == 0) {
    End_With(parent);
    before_work();
    ::close(requests[1]);
    ::close(answers[0]);
    work(answer, requests[0], answers[1]);
  }
  Close(requests[0]);
  Close(answers[1]);
  to_worker_ = requests[1];
  from_worker_ = answers[0];
  ::fcntl(to_worker_, F_SETFL, O_NONBLOCK);
}

Worker::~Worker() {
  forsake();
  if (process_ < 0) return;
  if (!is_idle()) ::kill(process_, SIGKILL);
  ::waitpid(process_, nullptr, 0);
}

void Worker::forsake() {
  Close(to_worker_);
  Close(from_worker_);
}

// The pipes take the places of standard input and output, so that nothing else keeps those open
// when the parent ends.
void Worker::work(const Answer_Function& answer, int input, int output) {
  std::signal(SIGPIPE, SIG_DFL);
  ::dup2(input, STDIN_FILENO);
  ::dup2(output, STDOUT_FILENO);
  for (const int spare : {input, output}) {
    if (spare > STDERR_FILENO) ::close(spare);
  }
  try {
    Serve(STDIN_FILENO, STDOUT_FILENO, answer, {}, &started_);
  } catch (const std::exception&) {
    Leave(1);
  }
  Leave(0);
}

void Worker::give(const std::vector<Job*>& jobs) {
  for (Job* job : jobs) {
    outbox_ += job->line;
    outbox_ += '\n';
    in_hand_.push_back(job);
  }
  given_ = Clock::now();
  send();
}

pollfd Worker::requests_to_poll() const {
  const bool has_more = sent_ < outbox_.size();
  return {has_more ? to_worker_ : -1, POLLOUT, 0};
}

void Worker::send() {
  while (sent_ < outbox_.size()) {
    const ssize_t written = ::write(to_worker_, outbox_.data() + sent_, outbox_.size() - sent_);
    if (written > 0) {
      sent_ += static_cast<std::size_t>(written);
    } else if (errno == EAGAIN) {
      return;
    } else if (errno != EINTR) {
      break;  // it has died, as the end of its answers will tell
    }
  }
  outbox_.clear();
  sent_ = 0;
}

bool Worker::receive(const std::function<void(Job&)>& answered) {
  const std::size_t held = inbox_.size();
  inbox_.resize(held + read_size);
  const ssize_t got = ::read(from_worker_, inbox_.data() + held, read_size);
  inbox_.resize(held + static_cast<std::size_t>(std::max<ssize_t>(got, 0)));
  if (got <= 0) return got < 0 && errno == EINTR;
  std::size_t begin = 0;
  for (;;) {
    const auto end = inbox_.find('\n', std::max(begin, scanned_));
    if (end == std::string::npos) break;
    answered(take_answer(std::string_view(inbox_).substr(begin, end - begin)));
    begin = end + 1;
  }
  inbox_.erase(0, begin);
  scanned_ = inbox_.size();
  return true;
}

Job& Worker::take_answer(std::string_view answer) {
  Job* const job = in_hand_.front();
  in_hand_.pop_front();
  job->answer = answer;
  job->line = std::string();
  job->is_done = true;
  ++answered_;
  if (in_hand_.empty()) adjust_appetite();
  return *job;
}

void Worker::adjust_appetite() {
  if (Clock::now() - given_ < no_time) {
    appetite_ = std::min(2 * appetite_, greatest_appetite);
  } else {
    appetite_ = std::max<std::size_t>(appetite_ / 2, 1);
  }
}

Worker::Remains Worker::bury() {
  int status = 0;
  ::waitpid(std::exchange(process_, -1), &status, 0);
  Remains remains;
  remains.cause = Cause_Of_Death(status);
  remains.unharmed.assign(in_hand_.begin(), in_hand_.end());
  in_hand_.clear();
  if (remains.unharmed.empty()) return remains;

  // Answers that the process had not sent off are lost with it, so the one at work need not be the
  // first.
  constexpr int patience = 3;
  const std::uint64_t begun = started_ - answered_;
  Job* first = remains.unharmed.front();
  if (begun == 0 && ++first->losses < patience) return remains;
  const auto culprit =
      remains.unharmed.begin() + static_cast<std::ptrdiff_t>(std::max<std::uint64_t>(begun, 1) - 1);
  remains.culprit = *culprit;
  remains.unharmed.erase(culprit);
  return remains;
}

}  // namespace quorvex
