// The texts that stand for errors and travel as ordinary results.
//
// What a token is depends on who asks:
//
// | who                                         | asks                | "#" | "1#" | "#VALUE!" |
// |---------------------------------------------|---------------------|-----|------|-----------|
// | an operation of its operands                | `Token_Of_Operands` | no  | no   | yes       |
// | a `Decimal` of what stands for its digits   | `is_token`          | yes | no   | yes       |
// | a result, a list of a sum, `qvxISERROR`     | `Has_Token_Mark`    | yes | yes  | yes       |
//
// An operand is one only if it is spelt as one: other text is no number, which gives a token
// anyhow. What stands for digits was put there by the engine, so its first character tells. And a
// result may hold what a user wrote, or a token with a sign or a symbol beside it.
#pragma once

#include <optional>
#include <string_view>

namespace quorvex {

inline constexpr std::string_view value_token = "#VALUE!";
inline constexpr std::string_view num_token = "#NUM!";
inline constexpr std::string_view div0_token = "#DIV/0!";

/// The character that marks a token: text holding it anywhere is an error on the result path.
inline constexpr char token_mark = '#';

/// The loosest of the three: for results, whose text nothing is done with any more.
inline bool Has_Token_Mark(std::string_view text) {
  return text.find(token_mark) != std::string_view::npos;
}

/// `Token_Of_Operands` where one of them begins with the mark, which is rare.
std::optional<std::string_view> Token_Of_Marked(std::string_view operand1,
                                                std::string_view operand2);

/// The strictest: the token that two operands give as their result, if one of them is a token:
/// "#VALUE!" before
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
