#include "text/tokens.h"

namespace quorvex {

std::optional<std::string_view> Token_Of_Marked(std::string_view operand1,
                                                std::string_view operand2) {
  for (const std::string_view token : {value_token, num_token, div0_token}) {
    if (operand1 == token || operand2 == token) return token;
  }
  return std::nullopt;
}

}  // namespace quorvex
