#include "arith/digits/multiply_digits.h"

#include <algorithm>
#include <array>
#include <new>
#include <string_view>

#include "host/platform.h"
#include "host/run_time_failure.h"
#include "text/digit_runs.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

using Multiply = int (*)(const char* op1, const char* op2, char* product, const char* access_code);

constexpr const char* library = "Quorvex.crx";
constexpr const char* routine = "Multiply";
constexpr const char* access_code = "7305918264";

void* Find_Symbol() {
  return Current_Platform().libraries->symbol(library, routine);
}

Multiply Find_Multiply() {
  void* const symbol = Find_Symbol();
  if (symbol == nullptr) {
    throw Run_Time_Failure(Failure_Number::invalid_call, "Quorvex.crx can't be loaded.");
  }
  return reinterpret_cast<Multiply>(symbol);
}

// How many digits the library has written. Behind them stand spaces, or a zero byte and more of
// these.
std::size_t Digits_Of(const NumberText& product, std::size_t most) {
  const auto is_digit = [&](std::size_t place) { return product[place] > ' '; };
  if (is_digit(most - 1)) return most;
  if (most > 1 && is_digit(most - 2)) return most - 1;
  constexpr std::string_view ends("\0 ", 2);
  return std::min(product.find_first_of(ends), product.size());
}

// An operand that ends in a zero byte, with its length.
struct Factor {
  const char* digits;
  std::size_t length;
};

std::string_view Digits(Factor factor) {
  return {factor.digits, factor.length};
}

NumberText Product(Factor op1, Factor op2) {
  const std::size_t longest = std::max(op1.length, op2.length);
  Require_Memory(2.0 * static_cast<double>(longest));
  NumberText product(2 * longest, ' ');
  Find_Multiply()(op1.digits, op2.digits, product.data(), access_code);
  product.resize(Digits_Of(product, op1.length + op2.length));
  if (product.empty()) {
    // Digits that give nothing had no room.
    if (!Has_Non_Digit(Digits(op1)) && !Has_Non_Digit(Digits(op2))) throw std::bad_alloc();
    throw Run_Time_Failure(Failure_Number::type_mismatch, "A factor is no number.");
  }
  return product;
}

bool Reaches_End(std::string_view digits) {
  const char* const end = digits.data() + digits.size();
  return *end == '\0';
}

bool Is_Nothing(std::string_view op1, std::string_view op2) {
  return op1.empty() || op2.empty() || op1 == "0" || op2 == "0";
}

NumberText Failed_Product(const Run_Time_Failure&) {
  return NumberText(value_token);
}

}  // namespace

NumberText Multiply_Digits(const NumberText& op1, const NumberText& op2) {
  if (Is_Nothing(op1, op2)) return "0";
  return With_Handler(
      [&] {
        return Product({op1.c_str(), op1.size()}, {op2.c_str(), op2.size()});
      },
      Failed_Product);
}

NumberText Multiply_Digits(std::string_view op1, std::string_view op2) {
  if (Is_Nothing(op1, op2)) return "0";
  std::array<char, 512> few;
  const std::size_t room = op1.size() + op2.size() + 2;
  if (room > few.size()) {
    return With_Handler([&] { return Multiply_Digits(NumberText(op1), NumberText(op2)); },
                        Failed_Product);
  }
  const auto place = [](char* at, std::string_view digits) {
    *std::copy(digits.begin(), digits.end(), at) = '\0';
    return Factor{at, digits.size()};
  };
  return With_Handler(
      [&] { return Product(place(few.data(), op1), place(few.data() + op1.size() + 1, op2)); },
      Failed_Product);
}

NumberText Multiply_In_Texts(std::string_view op1, std::string_view op2) {
  if (Is_Nothing(op1, op2)) return "0";
  if (!Reaches_End(op1) || !Reaches_End(op2)) return Multiply_Digits(op1, op2);
  return With_Handler(
      [&] {
        return Product({op1.data(), op1.size()}, {op2.data(), op2.size()});
      },
      Failed_Product);
}

bool Can_Multiply() {
  return Find_Symbol() != nullptr;
}

}  // namespace quorvex
