// Texts that are read as a whole.
#include "io/whole_text.h"

#include <sys/types.h>

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <system_error>

#include "host/platform.h"
#include "host/run_time_failure.h"
#include "io/descriptor.h"

namespace quorvex {
namespace {

constexpr std::size_t piece_size = std::size_t{1} << 16;

// Streams swallow a lack of memory where they read a whole text themselves, and the rest is lost
// without a word; so the text grows here, piece by piece. `read` gives the size of a piece, 0 at
// the end, or less with the reason in `errno`.
template <typename Read>
std::string All_Of(const Read& read) {
  std::string text;
  for (;;) {
    Yield();
    const std::size_t held = text.size();
    if (text.capacity() < held + piece_size) {
      const std::size_t next = std::max(2 * text.capacity(), 2 * piece_size);
      Require_Memory(static_cast<double>(next));
      text.reserve(next);
    }
    text.resize(held + piece_size);
    const ssize_t got = read(text.data() + held, piece_size);
    const int error = errno;
    text.resize(held + static_cast<std::size_t>(std::max<ssize_t>(got, 0)));
    if (got < 0) throw std::system_error(error, std::generic_category());
    if (got == 0) return text;
  }
}

template <typename Read>
std::string All_Or_Failure(const Read& read) {
  try {
    return All_Of(read);
  } catch (const std::bad_alloc&) {
    throw Run_Time_Failure(Failure_Number::out_of_memory, "There is not enough memory.");
  }
}

}  // namespace

std::string Text_From(int descriptor) {
  return All_Or_Failure([&](char* to, std::size_t size) {
    for (;;) {
      const ssize_t got = Read_Some(descriptor, to, size);
      if (got >= 0 || (errno != EINTR && errno != EAGAIN)) return got;
      Yield();  // which ends it where the user has broken it off
      if (errno == EAGAIN) Wait_To_Read(descriptor);
    }
  });
}

std::string Text_Of_File(const std::filesystem::path& file) {
  errno = 0;
  std::ifstream in(file, std::ios::binary);
  if (!in) throw std::system_error(errno, std::generic_category());
  return All_Or_Failure([&](char* to, std::size_t size) {
    errno = 0;
    in.read(to, static_cast<std::streamsize>(size));
    return in.bad() ? ssize_t{-1} : static_cast<ssize_t>(in.gcount());
  });
}

}  // namespace quorvex
