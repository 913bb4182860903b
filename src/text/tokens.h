// The texts that stand for errors and travel as ordinary results.
#pragma once

#include <optional>
#include <string_view>

namespace quorvex {

inline constexpr std::string_view value_token = "#VALUE!";
inline constexpr std::string_view num_token = "#NUM!";
inline constexpr std::string_view div0_token = "#DIV/0!";

/// The character that marks a token: text holding it anywhere is an error on the result path.
inline constexpr char token_mark = '#';

inline bool Has_Token_Mark(std::string_view text) {
  return text.find(token_mark) != std::string_view::npos;
}

/// `Token_Of_Operands` where one of them begins with the mark, which is rare.
std::optional<std::string_view> Token_Of_Marked(std::string_view operand1,
                                                std::string_view operand2);

/// The token that two operands give as their result, if one of them is a token: "#VALUE!" before
/// "#NUM!" before "#DIV/0!". Other text that begins with the mark gives nothing.
inline std::optional<std::string_view> Token_Of_Operands(std::string_view operand1,
                                                         std::string_view operand2) {
  if (!operand1.starts_with(token_mark) && !operand2.starts_with(token_mark)) return std::nullopt;
  return Token_Of_Marked(operand1, operand2);
}

/// The token that a text is, exactly, if it is one.
inline std::optional<std::string_view> Token_Of(std::string_view text) {
  return Token_Of_Operands(text, {});
}

}  // namespace quorvex
