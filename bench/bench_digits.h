// Operands that all benchmarks share.
#pragma once

#include <random>
#include <string>

namespace bench {

/// Random digits without a leading zero, the same at every run: seed 1 gives a number that begins
/// with 7, any other one that begins with 3.
inline std::string Digits(std::size_t count, unsigned seed) {
  std::mt19937 random(seed);
  std::uniform_int_distribution<int> digit('0', '9');
  std::string text(count, '0');
  for (char& character : text) character = static_cast<char>(digit(random));
  text.front() = seed == 1 ? '7' : '3';
  return text;
}

}  // namespace bench
