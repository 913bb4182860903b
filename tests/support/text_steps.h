// Operations at a limit on texts, which chains of numbers are compared with.
#pragma once

#include <cstdint>
#include <string_view>

#include "arith/do_operation.h"
#include "arith/operation/four_operations.h"
#include "arith/operation/operation_codes.h"

namespace quorvex {

struct Text_Steps {
  double limit;

  NumberText sum(std::string_view a, std::string_view b) const {
    return Intermediate(operation::add, a, b, limit);
  }
  NumberText difference(std::string_view a, std::string_view b) const {
    return Intermediate(operation::subtract, a, b, limit);
  }
  NumberText product(std::string_view a, std::string_view b) const {
    return Intermediate(operation::multiply, a, b, limit);
  }
  NumberText quotient(std::string_view a, std::string_view b) const {
    return Intermediate(operation::divide, a, b, limit);
  }
  NumberText power(std::string_view a, std::string_view b) const {
    return of(operation::power, a, b);
  }
  NumberText root(std::string_view a, std::string_view b) const {
    return of(operation::root, a, b);
  }

  NumberText of(std::int16_t code, std::string_view a, std::string_view b) const {
    const HostValue digits = limit;
    return Do_Operation(code, a, b, {.maximum_significant_digits = digits}, {.intermediate = true});
  }
};

}  // namespace quorvex
