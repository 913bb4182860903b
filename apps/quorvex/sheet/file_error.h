// What is wrong with a file of a worksheet.
#pragma once

#include <stdexcept>

namespace quorvex {

/// A file that can't be read or written, in one line for the user.
class File_Error : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace quorvex
