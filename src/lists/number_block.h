// The two-dimensional array that some functions take for their list.
#pragma once

#include "host/host_value.h"

namespace quorvex {

/// The cells of an array, or of a range of several, as an array; a list of one such block is that
/// block. Cells of an array are not copied: the value must outlive the block. Fails with
/// type_mismatch for anything else, such as a single cell.
class Number_Block {
 public:
  explicit Number_Block(const HostValue& numlist);
  Number_Block(const Number_Block&) = delete;
  Number_Block& operator=(const Number_Block&) = delete;

  const Array& array() const { return *array_; }

 private:
  Array cells_;  // of a range
  const Array* array_;
};

}  // namespace quorvex
