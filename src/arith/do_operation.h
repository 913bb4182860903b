// The one routine through which all arithmetic on two operands passes.
#pragma once

#include <cstdint>
#include <string_view>

#include "arith/operation/operation_codes.h"
#include "host/host_value.h"
#include "text/options.h"

namespace quorvex {

/// What workers ask of an operation beside its operands.
struct Operation_Flags {
  /// An intermediate value of a worker: no length checks, and no fixed places.
  bool intermediate = false;
  /// A step of a call and not the whole of it: lack of memory fails with out_of_memory instead of
  /// giving "#VALUE!", which the next step would take for something about the operands.
  bool is_step = false;
  /// For roots and powers: refuses operands that have too many digits together.
  bool restrict_input_lengths = false;
  /// For roots and powers: the guard digits of their steps. Missing, they choose them.
  const HostValue& working_digits = Missing;
};

/// Gives the result of an operation as formatted text with at most the limit plus two significant
/// digits. An operand that is an error token gives that token ("#VALUE!" before "#NUM!" before
/// "#DIV/0!"); every run-time failure ends in "#VALUE!". An unknown operation gives empty text.
NumberText Do_Operation(std::int16_t Operation, const HostValue& number1, const HostValue& number2,
                        const Format_Arguments& format, const Operation_Flags& flags = {});

/// The same with resolved options, where it is called from within: for values,
/// and as a step for texts.
NumberText Do_Operation_On_Values(std::int16_t Operation, const HostValue& number1,
                                  const HostValue& number2, const type_Restrictionator& options,
                                  const Operation_Flags& flags = {});
NumberText Do_Operation_On_Texts(std::int16_t Operation, std::string_view number1,
                                 std::string_view number2, const type_Restrictionator& options,
                                 const Operation_Flags& flags = {});

}  // namespace quorvex
