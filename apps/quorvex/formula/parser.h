// Reading formulas, by recursive descent; its depth is bounded by `maximum_nesting`.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "formula/formula.h"
#include "formula/lexer.h"

namespace quorvex {

/// What is called: a method, or one of the functions that choose.
struct Callee {
  const Method* method = nullptr;
  const Choice_Function* choice = nullptr;

  std::size_t most_arguments() const;
  std::string signature() const;
};

class Parser {
 public:
  /// Reads from the place `start` on.
  Parser(std::string_view text, std::size_t start, Functions functions);

  /// Throws `Syntax_Error`.
  Formula parse();

 private:
  Expression expression(std::size_t depth);
  Expression operand(std::size_t depth);
  Expression with_sign(std::size_t depth);
  Expression negated(std::size_t depth);
  Expression value(std::size_t depth);
  Expression enclosed(std::size_t depth);
  Expression word(std::size_t depth);
  Expression call(const Token& name, std::size_t depth);
  std::vector<Expression> arguments(const Callee& callee, std::size_t depth);
  Expression on_sheet(std::string sheet, std::size_t position);
  Expression reference(std::string sheet, const Token& first, std::size_t position);
  Expression name_use(std::string sheet, const Token& name, std::size_t position);
  Expression array();
  HostValue array_element();

  [[noreturn]] void fail(const std::string& message) const {
    throw Syntax_Error(message, token_.position);
  }
  void check_depth(std::size_t depth) const {
    if (depth <= maximum_nesting) return;
    fail("the formula is nested deeper than " + std::to_string(maximum_nesting) + " levels");
  }
  Token take() { return std::exchange(token_, lexer_.next()); }
  bool take_if(Token_Kind kind) {
    if (token_.kind != kind) return false;
    token_ = lexer_.next();
    return true;
  }

  HostValue number(bool negative);
  Expression choice(const Choice_Function& function, std::size_t depth);
  bool take_separator();
  void check_commas() const;
  std::string advice_on_comma() const;
  std::string advice_on_decimal_comma() const;

  Functions functions_;
  bool has_semicolon_;              // between arguments
  std::string_view decimal_comma_;  // the last number that has one
  bool comma_separates_ = false;
  Lexer lexer_;
  Token token_;
  Formula formula_;
};

}  // namespace quorvex
