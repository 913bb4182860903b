#include "arith/multiply_digits.h"

#include <algorithm>

#include "host/platform.h"
#include "host/run_time_failure.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

using Multiply = int (*)(const char* op1, const char* op2, char* product, const char* access_code);

constexpr const char* library = "Quorvex.crx";
constexpr const char* routine = "Multiply";
constexpr const char* access_code = "7305918264";

Multiply Find_Multiply() {
  void* const symbol = Current_Platform().libraries->symbol(library, routine);
  if (symbol == nullptr) {
    throw Run_Time_Failure(Failure_Number::invalid_call, "Quorvex.crx can't be loaded.");
  }
  return reinterpret_cast<Multiply>(symbol);
}

NumberText Product(const NumberText& op1, const NumberText& op2) {
  const std::size_t longest = std::max(op1.size(), op2.size());
  Require_Memory(2.0 * static_cast<double>(longest));
  NumberText product(2 * longest, ' ');
  Find_Multiply()(op1.c_str(), op2.c_str(), product.data(), access_code);
  // Behind the digits stand spaces, or a zero byte and more of these.
  product.resize(std::min(product.find(' '), product.size()));
  product.resize(std::min(product.find('\0'), product.size()));
  if (product.empty()) {
    throw Run_Time_Failure(Failure_Number::type_mismatch, "A factor is no number.");
  }
  return product;
}

}  // namespace

NumberText Multiply_Digits(const NumberText& op1, const NumberText& op2) {
  if (op1.empty() || op2.empty() || op1 == "0" || op2 == "0") return "0";
  return With_Handler([&] { return Product(op1, op2); },
                      [](const Run_Time_Failure&) { return NumberText(value_token); });
}

}  // namespace quorvex
