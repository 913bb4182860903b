// File descriptors as the system has them.
#pragma once

#include <sys/types.h>

#include <cstddef>

namespace quorvex {

/// As `read` and `write`: below 0 with the reason in `errno`. A console gives and takes UTF-8.
ssize_t Read_Some(int descriptor, char* buffer, std::size_t size);
ssize_t Write_Some(int descriptor, const char* data, std::size_t size);

/// For descriptors that somebody else has set not to block.
void Wait_To_Read(int descriptor);
void Wait_To_Write(int descriptor);

}  // namespace quorvex
