#include <unistd.h>

#include <array>
#include <csignal>
#include <cstddef>
#include <string>

#include "io/signal_cleanup.h"

namespace quorvex {
namespace {

constexpr std::array ending{SIGINT, SIGTERM, SIGHUP};

// A handler may touch neither strings nor locks.
std::string file_to_remove;
const char* volatile name_to_remove = nullptr;
std::array<struct sigaction, ending.size()> before;

extern "C" void Remove_And_End(int signal) {
  const char* const name = name_to_remove;
  if (name != nullptr) ::unlink(name);
  std::signal(signal, SIG_DFL);
  std::raise(signal);
}

}  // namespace

Signal_Cleanup::Signal_Cleanup(const std::filesystem::path& file) {
  file_to_remove = file.string();
  name_to_remove = file_to_remove.c_str();
  struct sigaction action {};
  action.sa_handler = &Remove_And_End;
  ::sigemptyset(&action.sa_mask);
  for (std::size_t at = 0; at < ending.size(); ++at) {
    ::sigaction(ending[at], nullptr, &before[at]);
    // What the caller has the process ignore goes on being ignored.
    if (before[at].sa_handler == SIG_DFL) ::sigaction(ending[at], &action, nullptr);
  }
}

Signal_Cleanup::~Signal_Cleanup() {
  for (std::size_t at = 0; at < ending.size(); ++at) ::sigaction(ending[at], &before[at], nullptr);
  name_to_remove = nullptr;
}

}  // namespace quorvex
