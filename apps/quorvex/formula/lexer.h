// The words and marks of a formula.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quorvex {

enum class Token_Kind {
  word,  // a function, a name, a cell, TRUE, an unquoted worksheet
  number,
  text,          // in double quotes
  quoted_sheet,  // in apostrophes
  error_literal,
  open,
  close,
  open_array,
  close_array,
  comma,
  semicolon,
  colon,
  exclamation,
  minus,
  plus,
  times,
  slash,
  caret,
  percent,
  ampersand,
  equals,
  not_equal,
  less,
  less_or_equal,
  greater,
  greater_or_equal,
  end,
};

struct Token {
  Token_Kind kind = Token_Kind::end;
  std::size_t position = 0;
  std::string_view spelling;  // as it stands in the formula, quotes included
};

/// Splits a formula into tokens, one at a time. Throws `Syntax_Error` for what is none.
class Lexer {
 public:
  /// `text` is valid UTF-8 and outlives the lexer. Numbers may have a decimal comma, if told so,
  /// but for those of array constants, whose values it separates.
  Lexer(std::string_view text, std::size_t position, bool has_decimal_comma)
      : text_(text), position_(position), has_decimal_comma_(has_decimal_comma) {}

  Token next();

 private:
  void skip_blanks();
  Token take(Token_Kind kind, std::size_t length);
  Token take_quoted(Token_Kind kind, char quote, const char* complaint);
  Token take_number();
  Token take_error();
  Token take_mark();

  std::string_view text_;
  std::size_t position_;
  bool has_decimal_comma_;
  bool in_array_ = false;
};

/// Whether a ";" separates arguments in a formula.
bool Has_Semicolon(std::string_view formula);

/// Bytes of the word that a text begins with: letters of any script, digits, and _ . \ ? $.
std::size_t Word_Length(std::string_view text);

/// What stands between the quotes, each doubled quote made one.
std::string Unquoted(std::string_view spelling);
/// `text` between `quote`s, those in it doubled.
std::string Quoted(std::string_view text, char quote);

}  // namespace quorvex
