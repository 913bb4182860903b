#include <io.h>

#include <algorithm>
#include <cerrno>
#include <string>

#include "host/platform/windows_api.h"
#include "host/platform/windows_text.h"
#include "io/attended.h"
#include "io/call_guard.h"
#include "io/descriptor.h"

namespace quorvex {
namespace {

HANDLE Handle_Of(int descriptor) {
  return reinterpret_cast<HANDLE>(::_get_osfhandle(descriptor));
}

/// Ctrl-C ends the reading before its handler, in a thread of its own, has noted it.
void Wait_For_Interruption() {
  for (int i = 0; i < 100 && !Call_Guard::is_interrupted(); ++i) ::Sleep(5);
}

// What a line typed at the console has left to be read. There is one console.
std::string typed;

/// False with the reason in `errno`. At the end nothing is typed: that is Ctrl-Z at the beginning
/// of a line, and Ctrl-D for those who are used to that.
bool Read_Console_Line(int descriptor) {
  wchar_t units[4096];
  DWORD count = 0;
  const bool is_read = ::ReadConsoleW(Handle_Of(descriptor), units, 4096, &count, nullptr) != 0;
  // Every line has an end, so without one it was Ctrl-C that ended the reading.
  if (count == 0) Wait_For_Interruption();
  if (Call_Guard::is_interrupted() || !is_read) {
    errno = is_read ? EINTR : EIO;
    return false;
  }
  constexpr wchar_t control_d = 0x04;
  constexpr wchar_t control_z = 0x1A;
  if (units[0] == control_d || units[0] == control_z) count = 0;
  typed = Narrow_Text({units, count});
  return true;
}

}  // namespace

ssize_t Read_Some(int descriptor, char* buffer, std::size_t size) {
  if (!Is_Terminal(descriptor))
    return ::_read(descriptor, buffer, static_cast<unsigned>(std::min<std::size_t>(size, 1 << 30)));
  if (typed.empty() && !Read_Console_Line(descriptor)) return -1;
  const std::size_t count = std::min(size, typed.size());
  std::copy_n(typed.begin(), count, buffer);
  typed.erase(0, count);
  return static_cast<ssize_t>(count);
}

// A reader that has gone is told of by several names.
ssize_t Write_Some(int descriptor, const char* data, std::size_t size) {
  // More at once than this, some consoles refuse.
  constexpr std::size_t most = std::size_t{1} << 15;
  const int written = ::_write(descriptor, data, static_cast<unsigned>(std::min(size, most)));
  if (written < 0 && errno == EINVAL) errno = EPIPE;
  return written;
}

// Nothing is set so here.
void Wait_To_Read(int /*descriptor*/) {}
void Wait_To_Write(int /*descriptor*/) {}

}  // namespace quorvex
