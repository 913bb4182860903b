// The functions of formulas that choose: IF and its kin. They belong to the tool, not to the
// engine, since they look at an argument only when it is needed.
#pragma once

#include <cstddef>
#include <limits>
#include <span>
#include <string_view>

namespace quorvex {

enum class Choice_Kind { if_else, if_error, all_of, any_of, negation, is_blank };

struct Choice_Function {
  static constexpr std::size_t any_number = std::numeric_limits<std::size_t>::max();

  Choice_Kind kind;
  std::string_view name;
  std::string_view signature;
  std::string_view description;
  std::string_view example;
  std::size_t least = 1;  // arguments
  std::size_t most = 1;
};

std::span<const Choice_Function> Choice_Functions();

/// In any case of letters; null if there is none of that name.
const Choice_Function* Find_Choice(std::string_view name);

}  // namespace quorvex
