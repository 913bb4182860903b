// Questions to the oracle, a program of the machine that builds: there the independent libraries
// are. A request is a line: an operation, the numbers of its operands, and a text at the end. Only
// what is asked for is answered, a line as well.
#pragma once

#include <cstdio>
#include <string>
#include <type_traits>

namespace quorvex::oracle {

/// A number that the oracle holds for us.
struct Held {
  unsigned id;
};

/// Throws `std::runtime_error` where nobody answers.
void Send(const std::string& request);
std::string Answer_To(const std::string& request);

inline std::string Word(const Held* number) {
  return std::to_string(number->id);
}
inline std::string Word(const char* text) {
  return text;
}
template <typename Number>
requires std::is_arithmetic_v<Number> std::string Word(Number number) {
  if constexpr (std::is_integral_v<Number>) return std::to_string(number);
  char text[40];
  std::snprintf(text, sizeof text, "%.17g", static_cast<double>(number));
  return text;
}

template <typename... Operands>
std::string Request(const char* operation, Operands... operands) {
  return (std::string(operation) + ... + (' ' + Word(operands)));
}

template <typename... Operands>
void Tell(const char* operation, Operands... operands) {
  Send(Request(operation, operands...));
}
template <typename... Operands>
std::string Ask(const char* operation, Operands... operands) {
  return Answer_To(Request(operation, operands...));
}
template <typename... Operands>
int Ask_Number(const char* operation, Operands... operands) {
  return std::stoi(Ask(operation, operands...));
}

inline unsigned New_Id() {
  static unsigned last = 0;
  return ++last;
}

}  // namespace quorvex::oracle
