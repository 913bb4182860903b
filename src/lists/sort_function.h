// The sorted block of qvxSORT.
#pragma once

#include <optional>

#include "host/host_value.h"

namespace quorvex {

/// How a sort is asked for. Missing counts are those of the sorted block.
struct Sort_Options {
  bool descending = false;
  bool left_to_right = false;
  bool fit_to_array = false;
  NumberText blank_text = {};
  std::optional<double> rows = {};
  std::optional<double> columns = {};
};

/// The worker of `qvxSORT`: the cells of a block in order, in a block of the caller's size. Fails
/// as `Number_Block`, `Sort_Numbers` and `Size_Of_Block` do.
Array Sort_Function(const HostValue& numlist, const Sort_Options& options);

}  // namespace quorvex
