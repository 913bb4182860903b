// The oracle stands behind standard input and output.
#include "ask.h"

#include <fcntl.h>
#include <io.h>

#include <stdexcept>

namespace quorvex::oracle {
namespace {

/// What is printed goes to standard error from the start, so that only requests get to the oracle.
int Take_Output() {
  const int output = ::_dup(1);
  ::_dup2(2, 1);
  ::_setmode(output, _O_BINARY);
  ::_setmode(0, _O_BINARY);
  return output;
}

// Numbers of the tests may be made before anything of this file.
int Output() {
  static const int output = Take_Output();
  return output;
}

[[maybe_unused]] const int taken_at_start = Output();

class Line {
 public:
  void send(const std::string& request) {
    unsent_ += request;
    unsent_ += '\n';
    if (unsent_.size() > piece) flush();
  }

  std::string answer() {
    flush();
    for (;;) {
      const std::size_t end = received_.find('\n', scanned_);
      if (end != std::string::npos) {
        std::string line = received_.substr(0, end);
        received_.erase(0, end + 1);
        scanned_ = 0;
        return line;
      }
      scanned_ = received_.size();
      receive();
    }
  }

 private:
  static constexpr unsigned piece = 1U << 16U;

  void flush() {
    for (std::size_t sent = 0; sent < unsent_.size();) {
      const auto left = static_cast<unsigned>(unsent_.size() - sent);
      const int written = ::_write(Output(), unsent_.data() + sent, left < piece ? left : piece);
      if (written <= 0) throw std::runtime_error("The oracle takes no requests.");
      sent += static_cast<std::size_t>(written);
    }
    unsent_.clear();
  }

  void receive() {
    char buffer[piece];
    const int got = ::_read(0, buffer, piece);
    if (got <= 0) throw std::runtime_error("The oracle gives no answers.");
    received_.append(buffer, static_cast<std::size_t>(got));
  }

  std::string unsent_;
  std::string received_;
  std::size_t scanned_ = 0;
};

Line& The_Line() {
  static Line line;
  return line;
}

}  // namespace

void Send(const std::string& request) {
  The_Line().send(request);
}

std::string Answer_To(const std::string& request) {
  The_Line().send(request);
  return The_Line().answer();
}

}  // namespace quorvex::oracle
