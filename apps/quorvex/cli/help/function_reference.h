// What the functions are, for people to read in a terminal.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "formula/find_function.h"
#include "frame/catalogue.h"
#include "frame/class/cls_Quorvex.h"

namespace quorvex {

/// The functions of the catalogue by category, in the order in which it first names them. What no
/// function dialog offers comes last: methods for programs, or those of them alone that worksheets
/// can call.
std::vector<std::pair<std::string_view, std::vector<const Method*>>> Functions_By_Category(
    Functions functions = Functions::all);

/// The functions of worksheets by category, a line each, and those that choose.
std::string Function_List();

/// The methods for programs, a line each.
std::string Program_Method_List();

/// What somebody who asks for a function, or for words that tell of one, wants to read: the
/// function's page (its name may lack "qvx"), or a list of those that the words fit. Nothing if
/// there is none such.
std::optional<std::string> Function_Help(cls_Quorvex& engine, std::string_view words,
                                         Functions functions = Functions::of_worksheets);

/// What to tell somebody who asked for a function that is not there.
std::string No_Such_Function(std::string_view name);

}  // namespace quorvex
