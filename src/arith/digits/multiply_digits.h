// Products of digits, which the separate library of products forms.
#pragma once

#include <string>
#include <string_view>

#include "host/host_value.h"

namespace quorvex {

/// The product of two digit strings: "0" if either is empty or exactly "0", otherwise digits with
/// no leading zero. "#VALUE!" where the library can't be found or an operand holds a character that
/// is no digit. Fails with out_of_memory.
NumberText Multiply_Digits(const NumberText& op1, const NumberText& op2);

/// The same for parts of texts.
NumberText Multiply_Digits(std::string_view op1, std::string_view op2);

/// The same for parts of texts that end in a zero byte: those that reach their text's end are not
/// copied for the library, which takes such texts alone.
NumberText Multiply_In_Texts(std::string_view op1, std::string_view op2);

/// Whether the library of products can be found. What needs no product of it goes without it too,
/// but must fail where products do.
bool Can_Multiply();

}  // namespace quorvex
