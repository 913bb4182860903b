// The functions that formulas can call, and what to tell of those that they can't.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "frame/catalogue.h"

namespace quorvex {

/// Worksheets call the functions that begin with "qvx". The other methods are for programs; their
/// names are short, and might be taken for those of a spreadsheet's own functions.
enum class Functions { of_worksheets, all };

/// How to call a function, optional arguments in brackets.
std::string Signature(const Method& method);

bool Is_Worksheet_Function(const Method& method);

/// In any case of letters; null if there is none of that name.
const Method* Find_Function(std::string_view name, Functions functions);

/// The function whose name is nearest to what was typed; nothing if none is near.
std::optional<std::string_view> Nearest_Function(std::string_view typed,
                                                 Functions functions = Functions::of_worksheets);

/// What to use instead of a spreadsheet's own function, and where it differs, as the rest of a
/// sentence; empty for a name that is not known.
std::string_view Counterpart(std::string_view spreadsheet_function);

/// What follows a message about a function that isn't there: its counterpart, or a guess.
std::string Advice_On_Function(std::string_view typed, Functions functions);

}  // namespace quorvex
