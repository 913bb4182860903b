// What the functions are, for people to read in a terminal.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "frame/catalogue.h"
#include "frame/class/cls_Quorvex.h"

namespace quorvex {

/// The functions of the catalogue by category, in the order in which it first names them. What no
/// function dialog offers comes last.
std::vector<std::pair<std::string_view, std::vector<const Method*>>> Functions_By_Category();

/// How to call a function, optional arguments in brackets.
std::string Signature(const Method& method);

/// All functions by category, a line each.
std::string Function_List();

/// One function: how to call it, what it does, its arguments, its result, its tokens, and its
/// example calculated here and now. Nothing if there is no function of that name.
std::optional<std::string> Function_Help(cls_Quorvex& engine, std::string_view name);

/// What to tell somebody who asked for a function that is not there.
std::string No_Such_Function(std::string_view name);

}  // namespace quorvex
