#include "formula/choices.h"

#include <algorithm>
#include <array>

#include "formula/literals.h"

namespace quorvex {

namespace {

constexpr std::array<Choice_Function, 6> functions{{
    {Choice_Kind::if_else, "IF", "IF(condition, value_if_true, [value_if_false])",
     "Gives the second argument if the condition is true, and the third, or FALSE, if it is not; "
     "the other one is not calculated. The words True and False count as what they say.",
     "IF(12345678901234567891 > 12345678901234567890, \"larger\", \"not larger\")", 2, 3},
    {Choice_Kind::if_error, "IFERROR", "IFERROR(value, value_if_error)",
     "Gives the value, or, if it is an error or a token such as #VALUE!, the second argument.",
     "IFERROR(1/0, \"none\")", 2, 2},
    {Choice_Kind::all_of, "AND", "AND(condition1, [condition2], ...)",
     "Gives TRUE if all conditions are true; the first one that is false decides. Of ranges, "
     "blanks and text that is neither true nor false nor a number are passed over.",
     "AND(1 < 2, 2 < 3)", 1, Choice_Function::any_number},
    {Choice_Kind::any_of, "OR", "OR(condition1, [condition2], ...)",
     "Gives TRUE if any condition is true; the first one that is true decides. Of ranges, blanks "
     "and text that is neither true nor false nor a number are passed over.",
     "OR(1 > 2, 2 < 3)", 1, Choice_Function::any_number},
    {Choice_Kind::negation, "NOT", "NOT(condition)",
     "Gives TRUE if the condition is false, and FALSE if it is true.", "NOT(1 > 2)", 1, 1},
    {Choice_Kind::is_blank, "ISBLANK", "ISBLANK(cell)",
     "Gives TRUE if nothing stands in the cell; a text without characters is something.",
     "ISBLANK(\"\")", 1, 1},
}};

}  // namespace

std::span<const Choice_Function> Choice_Functions() {
  return functions;
}

const Choice_Function* Find_Choice(std::string_view name) {
  const auto found = std::find_if(functions.begin(), functions.end(), [&](const auto& function) {
    return Same_Word(function.name, name);
  });
  return found == functions.end() ? nullptr : &*found;
}

}  // namespace quorvex
