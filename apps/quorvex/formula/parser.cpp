// Operators, calls and their arguments.
#include <algorithm>
#include <optional>
#include <string>
#include <utility>

#include "formula/parser.h"

#include "formula/literals.h"
#include "formula/utf8.h"
#include "host/platform.h"

namespace quorvex {

namespace {

// Empty if none is missing.
std::string Missing_Argument(const Call& call) {
  if (call.method->takes_all_as_list) return {};
  const auto& parameters = call.method->parameters;
  for (std::size_t at = 0; at < parameters.size(); ++at) {
    const bool given =
        at < call.arguments.size() && !std::holds_alternative<Omitted>(call.arguments[at].node);
    if (given || parameters[at].optional) continue;
    return std::string(parameters[at].name) + " is missing in " + Signature(*call.method);
  }
  return {};
}

std::optional<Operator> Operator_Of(Token_Kind kind) {
  switch (kind) {
    case Token_Kind::plus:
      return Operator::add;
    case Token_Kind::minus:
      return Operator::subtract;
    case Token_Kind::times:
      return Operator::multiply;
    case Token_Kind::slash:
      return Operator::divide;
    case Token_Kind::caret:
      return Operator::power;
    case Token_Kind::ampersand:
      return Operator::join;
    case Token_Kind::equals:
      return Operator::equal;
    case Token_Kind::not_equal:
      return Operator::not_equal;
    case Token_Kind::less:
      return Operator::less;
    case Token_Kind::less_or_equal:
      return Operator::less_or_equal;
    case Token_Kind::greater:
      return Operator::greater;
    case Token_Kind::greater_or_equal:
      return Operator::greater_or_equal;
    default:
      return std::nullopt;
  }
}

// The tree of the operands from `begin` to before `end`, whose operators have `rank` or a higher
// one. It is built from flat lists, so that each parenthesis costs the parser few calls within each
// other.
Expression Grouped(Chain& all, std::size_t begin, std::size_t end, int rank) {
  if (end - begin == 1) return std::move(all.operands[begin]);
  Chain chain;
  std::size_t start = begin;
  for (std::size_t at = begin; at + 1 < end; ++at) {
    if (Rank_Of(all.operators[at]) != rank) continue;
    chain.operands.push_back(Grouped(all, start, at + 1, rank + 1));
    chain.operators.push_back(all.operators[at]);
    start = at + 1;
  }
  if (chain.operators.empty()) return Grouped(all, begin, end, rank + 1);
  chain.operands.push_back(Grouped(all, start, end, rank + 1));
  return {std::move(chain)};
}

}  // namespace

std::size_t Callee::most_arguments() const {
  if (choice != nullptr) return choice->most;
  return method->takes_all_as_list ? Choice_Function::any_number : method->parameters.size();
}

std::string Callee::signature() const {
  return choice != nullptr ? std::string(choice->signature) : Signature(*method);
}

Parser::Parser(std::string_view text, std::size_t start, Functions functions)
    : functions_(functions),
      has_semicolon_(Has_Semicolon(text)),
      lexer_(text, start, has_semicolon_ || Current_Separators().decimal() == ","),
      token_(lexer_.next()) {}

Formula Parser::parse() {
  if (token_.kind == Token_Kind::end) fail("the formula is empty");
  formula_.root = expression(0);
  if (token_.kind != Token_Kind::end)
    fail("the formula was expected to end here" + advice_on_comma());
  return std::move(formula_);
}

Expression Parser::expression(std::size_t depth) {
  Expression first = operand(depth);
  auto op = Operator_Of(token_.kind);
  if (!op) return first;
  Chain all;
  all.operands.push_back(std::move(first));
  for (; op; op = Operator_Of(token_.kind)) {
    take();
    all.operators.push_back(*op);
    all.operands.push_back(operand(depth));
  }
  return Grouped(all, 0, all.operands.size(), loosest_rank);
}

Expression Parser::operand(std::size_t depth) {
  Expression operand = with_sign(depth);
  while (token_.kind == Token_Kind::percent) {
    check_depth(++depth);
    take();
    Percent percent;
    percent.operand.push_back(std::move(operand));
    operand = {std::move(percent)};
  }
  return operand;
}

// A sign binds more tightly than any operator.
Expression Parser::with_sign(std::size_t depth) {
  check_depth(depth);
  if (token_.kind == Token_Kind::minus) return negated(depth);
  if (!take_if(Token_Kind::plus)) return value(depth);
  return with_sign(depth + 1);
}

Expression Parser::negated(std::size_t depth) {
  take();
  if (token_.kind == Token_Kind::number) return {number(true)};
  Negation negation;
  negation.operand.push_back(with_sign(depth + 1));
  return {std::move(negation)};
}

HostValue Parser::number(bool negative) {
  const std::string_view spelling = token_.spelling;
  const bool has_comma = spelling.find(',') != std::string_view::npos;
  if (has_comma) decimal_comma_ = spelling;
  check_commas();
  take();
  return Number_Value(spelling, negative, has_comma ? "," : ".");
}

Expression Parser::call(const Token& name, std::size_t depth) {
  if (const Choice_Function* function = Find_Choice(name.spelling)) return choice(*function, depth);
  Call call;
  call.method = Find_Function(name.spelling, functions_);
  if (call.method == nullptr) {
    throw Syntax_Error("unknown function \"" + std::string(name.spelling) + "\"" +
                           Advice_On_Function(name.spelling, functions_),
                       name.position);
  }
  call.arguments = arguments({.method = call.method}, depth);
  const std::string missing = Missing_Argument(call);
  if (!missing.empty()) fail(missing + advice_on_decimal_comma());
  take();
  return {std::move(call)};
}

Expression Parser::choice(const Choice_Function& function, std::size_t depth) {
  Choice choice;
  choice.kind = function.kind;
  choice.arguments = arguments({.choice = &function}, depth);
  if (choice.arguments.size() < function.least) {
    fail("too few arguments for " + std::string(function.signature) + advice_on_decimal_comma());
  }
  take();
  return {std::move(choice)};
}

// From the opening parenthesis up to the closing one, which is left to be taken.
std::vector<Expression> Parser::arguments(const Callee& callee, std::size_t depth) {
  const Token open = take();
  std::vector<Expression> arguments;
  if (token_.kind == Token_Kind::close) return arguments;
  do {
    if (arguments.size() == callee.most_arguments())
      fail("too many arguments for " + callee.signature());
    const bool omitted = token_.kind == Token_Kind::comma || token_.kind == Token_Kind::semicolon ||
                         token_.kind == Token_Kind::close;
    arguments.push_back(omitted ? Expression{} : expression(depth + 1));
  } while (take_separator());
  if (token_.kind == Token_Kind::end) throw Syntax_Error("this \"(\" is not closed", open.position);
  if (token_.kind != Token_Kind::close) fail("\",\" or \";\" or \")\" was expected here");
  return arguments;
}

bool Parser::take_separator() {
  if (token_.kind == Token_Kind::comma) {
    comma_separates_ = true;
    check_commas();
  }
  return take_if(Token_Kind::comma) || take_if(Token_Kind::semicolon);
}

// A comma that may be either is not guessed at.
void Parser::check_commas() const {
  if (!comma_separates_) return;
  if (has_semicolon_) {
    fail(R"("," is the decimal separator of a formula whose arguments are separated by ";"; )"
         R"(write ";" between all of them)");
  }
  if (!decimal_comma_.empty()) {
    fail("\",\" is the decimal separator of your locale, as in " + std::string(decimal_comma_) +
         "; separate arguments by \";\"");
  }
}

std::string Parser::advice_on_comma() const {
  if (token_.kind != Token_Kind::comma) return {};
  if (Current_Separators().decimal() == ",") {
    return R"(; decimals are written as 1,5 here, thousands without a mark between them as in )"
           R"(1234,5, and arguments are separated by ";")";
  }
  return R"(; "," separates arguments, and decimals are written as 1.5, or as 1,5 in a formula )"
         R"(whose arguments are separated by ";")";
}

std::string Parser::advice_on_decimal_comma() const {
  if (decimal_comma_.empty()) return {};
  return "; " + std::string(decimal_comma_) + " is one number here, separate arguments by \";\"";
}

namespace {

// Operators of programming languages and pocket calculators, at the place where reading ended.
std::string_view Advice_On_Foreign_Operator(std::string_view text, std::size_t position) {
  const std::string_view before = text.substr(0, position);
  const std::string_view rest = text.substr(before.size());
  if (rest.starts_with("!=")) return "; unequal is written <>";
  if (rest.starts_with('!')) return "; a factorial is written qvxFACT(5)";
  if (rest.starts_with('*') && before.ends_with('*')) return "; a power is written 2^3";
  if (rest.starts_with('=') && before.ends_with('=')) return "; equality is written with one =";
  const auto last = before.find_last_not_of(' ');
  if (!rest.empty() && last != std::string_view::npos && before[last] == '%')
    return "; % gives the hundredth part, and qvxMOD(10, 3) the remainder";
  return {};
}

}  // namespace

Formula Parse_Formula(std::string_view text, Functions functions) {
  if (const auto bad = First_Bad_Byte(text)) {
    throw Syntax_Error("the formula is not valid UTF-8 here", *bad);
  }
  std::size_t start = std::min(text.find_first_not_of(" \t\r\n"), text.size());
  if (text.substr(start).starts_with('=')) ++start;
  try {
    return Parser(text, start, functions).parse();
  } catch (const Syntax_Error& syntax) {
    const std::string_view advice = Advice_On_Foreign_Operator(text, syntax.position());
    if (advice.empty()) throw;
    throw Syntax_Error(syntax.what() + std::string(advice), syntax.position());
  }
}

bool Is_Valid_Name(std::string_view text) {
  if (text.empty() || First_Bad_Byte(text) || Looks_Like_Cell(text)) return false;
  const char first = text.front();
  const bool begins_well = !(first >= '0' && first <= '9') && first != '.' && first != '?';
  return begins_well && text.find('$') == std::string_view::npos &&
         Word_Length(text) == text.size() && !Same_Word(text, "TRUE") &&
         !Same_Word(text, "FALSE") && Find_Choice(text) == nullptr &&
         Find_Function(text, Functions::of_worksheets) == nullptr;
}

}  // namespace quorvex
