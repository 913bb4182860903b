// Any two runs of bytes as factors: digits give the product that an independent library finds, by
// every kind of instructions; anything else leaves the buffer as it was.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>
#include <string_view>

#include "native/multiply.h"
#include "support/whole_number.h"

namespace {

using quorvex::native::Instructions;

void Require(bool condition, const char* complaint, Instructions kind) {
  if (condition) return;
  std::cerr << complaint << ", kind " << static_cast<int>(kind) << '\n';
  std::abort();
}

// The first byte tells how long a run each of the others stands for, so that short inputs reach the
// kernels for long operands too. Most bytes become digits.
std::string Factor(const std::uint8_t* data, std::size_t size, unsigned run) {
  std::string text;
  for (std::size_t i = 0; i < size; ++i) {
    const char character = data[i] < 250 ? static_cast<char>('0' + data[i] % 10)
                                         : static_cast<char>(data[i] - 250 + '.');
    text.append(1 + (data[i] / 10) % run, character);
  }
  return text;
}

bool Are_Digits(const std::string& text) {
  return !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
}

std::string Product(const std::string& a, const std::string& b) {
  if (!Are_Digits(a) || !Are_Digits(b)) return {};
  return quorvex::Product(a, b);
}

void Check(const std::string& a, const std::string& b, const std::string& expected) {
  for (const auto kind : {Instructions::portable, Instructions::avx2, Instructions::avx512}) {
    if (kind > quorvex::native::Best_Instructions()) break;
    // On the heap and of the exact size, for the sanitizer to see any byte beyond.
    const std::size_t room = 2 * std::max(a.size(), b.size());
    const auto buffer = std::make_unique<char[]>(room);
    std::fill_n(buffer.get(), room, ' ');
    const std::size_t count = quorvex::native::Multiply_Texts(a, b, buffer.get(), room, kind);
    const std::string_view out(buffer.get(), room);
    Require(count == expected.size(), "a wrong count of digits", kind);
    Require(out.starts_with(expected), "a wrong product", kind);
    Require(out.find_first_not_of(' ', count) == std::string_view::npos, "no spaces left", kind);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 2) return 0;
  const unsigned run = data[0] % 64 == 0 ? 25 : 1 + data[0] % 8;
  const std::size_t split = 2 + (size - 2) * data[1] / 255;
  const std::string a = Factor(data + 2, split - 2, run);
  const std::string b = data[1] == 255 ? a : Factor(data + split, size - split, run);
  Check(a, b, Product(a, b));
  return 0;
}
