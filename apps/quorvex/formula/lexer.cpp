#include "formula/lexer.h"

#include <algorithm>
#include <array>

#include "formula/formula.h"
#include "formula/literals.h"

namespace quorvex {

namespace {

// Arrives with formulas copied from documents and web pages.
constexpr std::string_view no_break_space = "\xC2\xA0";

bool Is_Digit(char c) {
  return c >= '0' && c <= '9';
}

bool Is_Word_Character(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return byte >= 0x80 || Is_Digit(c) || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') ||
         c == '_' || c == '.' || c == '\\' || c == '?' || c == '$';
}

std::size_t Leading_Digits(std::string_view text) {
  return std::min(text.find_first_not_of("0123456789"), text.size());
}

bool Has_Comma_And_Digit(std::string_view text) {
  return text.size() > 1 && text[0] == ',' && Is_Digit(text[1]);
}

struct Mark {
  std::string_view spelling;
  Token_Kind kind;
};

// Longer ones stand before those that they begin with.
constexpr std::array marks{
    Mark{"<>", Token_Kind::not_equal},
    Mark{"<=", Token_Kind::less_or_equal},
    Mark{">=", Token_Kind::greater_or_equal},
    Mark{"(", Token_Kind::open},
    Mark{")", Token_Kind::close},
    Mark{"{", Token_Kind::open_array},
    Mark{"}", Token_Kind::close_array},
    Mark{",", Token_Kind::comma},
    Mark{";", Token_Kind::semicolon},
    Mark{":", Token_Kind::colon},
    Mark{"!", Token_Kind::exclamation},
    Mark{"-", Token_Kind::minus},
    Mark{"+", Token_Kind::plus},
    Mark{"*", Token_Kind::times},
    Mark{"/", Token_Kind::slash},
    Mark{"^", Token_Kind::caret},
    Mark{"%", Token_Kind::percent},
    Mark{"&", Token_Kind::ampersand},
    Mark{"=", Token_Kind::equals},
    Mark{"<", Token_Kind::less},
    Mark{">", Token_Kind::greater},
};

}  // namespace

std::size_t Word_Length(std::string_view text) {
  std::size_t at = 0;
  while (at < text.size() && Is_Word_Character(text[at]) &&
         !text.substr(at).starts_with(no_break_space)) {
    ++at;
  }
  return at;
}

Token Lexer::next() {
  skip_blanks();
  if (position_ == text_.size()) return {Token_Kind::end, position_, {}};
  const char c = text_[position_];
  if (c == '"') {
    return take_quoted(Token_Kind::text, c, "the text is not closed; a \" is missing at its end");
  }
  if (c == '\'') {
    return take_quoted(Token_Kind::quoted_sheet, c,
                       "the name of the worksheet is not closed; a ' is missing at its end");
  }
  if (c == '#') return take_error();
  if (Is_Digit(c) || c == '.') return take_number();
  const std::size_t word = Word_Length(text_.substr(position_));
  return word > 0 ? take(Token_Kind::word, word) : take_mark();
}

void Lexer::skip_blanks() {
  for (;;) {
    const std::string_view rest = text_.substr(position_);
    if (rest.starts_with(no_break_space)) {
      position_ += no_break_space.size();
    } else if (!rest.empty() &&
               std::string_view(" \t\r\n").find(rest[0]) != std::string_view::npos) {
      ++position_;
    } else {
      return;
    }
  }
}

Token Lexer::take(Token_Kind kind, std::size_t length) {
  const Token token{kind, position_, text_.substr(position_, length)};
  position_ += length;
  return token;
}

Token Lexer::take_quoted(Token_Kind kind, char quote, const char* complaint) {
  std::size_t at = position_ + 1;
  for (;;) {
    at = text_.find(quote, at);
    if (at == std::string_view::npos) throw Syntax_Error(complaint, position_);
    const bool doubled = at + 1 < text_.size() && text_[at + 1] == quote;
    if (!doubled) return take(kind, at + 1 - position_);
    at += 2;
  }
}

Token Lexer::take_number() {
  const std::string_view rest = text_.substr(position_);
  std::size_t length = Number_Length(rest, ".");
  if (has_decimal_comma_ && !in_array_ && Has_Comma_And_Digit(rest.substr(Leading_Digits(rest))))
    length = Number_Length(rest, ",");
  if (length == 0 || Word_Length(text_.substr(position_ + length)) > 0) {
    throw Syntax_Error(
        has_decimal_comma_
            ? "this is no number; digits with one \",\" or \".\" were expected, or 1.5E+3"
            : "this is no number; digits with one \".\" were expected, or 1.5E+3",
        position_);
  }
  return take(Token_Kind::number, length);
}

Token Lexer::take_error() {
  const auto error = Leading_Error(text_.substr(position_));
  if (!error) {
    throw Syntax_Error(
        "unknown error value; there are #NULL!, #DIV/0!, #VALUE!, #REF!, #NAME?, "
        "#NUM! and #N/A",
        position_);
  }
  return take(Token_Kind::error_literal, Error_Text(*error).size());
}

Token Lexer::take_mark() {
  const std::string_view rest = text_.substr(position_);
  for (const auto& [spelling, kind] : marks) {
    if (!rest.starts_with(spelling)) continue;
    if (kind == Token_Kind::open_array) in_array_ = true;
    if (kind == Token_Kind::close_array) in_array_ = false;
    return take(kind, spelling.size());
  }
  throw Syntax_Error("this character has no meaning here", position_);
}

bool Has_Semicolon(std::string_view formula) {
  bool in_array = false;
  for (std::size_t at = 0; at < formula.size(); ++at) {
    const char c = formula[at];
    if (c == '"' || c == '\'') {
      at = std::min(formula.find(c, at + 1), formula.size());
    } else if (c == '{' || c == '}') {
      in_array = c == '{';
    } else if (c == ';' && !in_array) {
      return true;
    }
  }
  return false;
}

std::string Unquoted(std::string_view spelling) {
  const char quote = spelling.front();
  std::string text;
  text.reserve(spelling.size() - 2);
  for (std::size_t at = 1; at + 1 < spelling.size(); ++at) {
    text += spelling[at];
    if (spelling[at] == quote) ++at;
  }
  return text;
}

std::string Quoted(std::string_view text, char quote) {
  std::string quoted(1, quote);
  quoted.reserve(text.size() + 2);
  for (const char c : text) quoted.append(c == quote ? 2 : 1, c);
  quoted += quote;
  return quoted;
}

}  // namespace quorvex
