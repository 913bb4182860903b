#include "io/descriptor.h"

#include <poll.h>
#include <unistd.h>

namespace quorvex {
namespace {

void Wait_For(int descriptor, short events) {
  pollfd waiting{descriptor, events, 0};
  ::poll(&waiting, 1, -1);
}

}  // namespace

ssize_t Read_Some(int descriptor, char* buffer, std::size_t size) {
  return ::read(descriptor, buffer, size);
}

ssize_t Write_Some(int descriptor, const char* data, std::size_t size) {
  return ::write(descriptor, data, size);
}

void Wait_To_Read(int descriptor) {
  Wait_For(descriptor, POLLIN);
}

void Wait_To_Write(int descriptor) {
  Wait_For(descriptor, POLLOUT);
}

}  // namespace quorvex
