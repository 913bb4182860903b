// How a fuzzer ends a run that breaks its property.
#pragma once

#include <cstdlib>
#include <iostream>
#include <string_view>

namespace quorvex {

inline void Require(bool condition, const char* complaint, std::string_view about) {
  if (condition) return;
  std::cerr << complaint << ": " << about << '\n';
  std::abort();
}

}  // namespace quorvex
