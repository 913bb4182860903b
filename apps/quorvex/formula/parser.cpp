// Reading formulas, by recursive descent; its depth is bounded by `maximum_nesting`.
#include <algorithm>
#include <optional>
#include <string>
#include <utility>

#include "formula/formula.h"
#include "formula/lexer.h"
#include "formula/literals.h"
#include "formula/utf8.h"

namespace quorvex {

namespace {

std::string Signature(const Method& method) {
  std::string text(method.name);
  const char* separator = "(";
  for (const Parameter& parameter : method.parameters) {
    text.append(separator);
    if (parameter.optional) text += '[';
    text.append(parameter.name);
    if (parameter.optional) text += ']';
    separator = ", ";
  }
  return text + (method.parameters.empty() ? "()" : ")");
}

class Parser {
 public:
  Parser(std::string_view text, std::size_t start) : lexer_(text, start), token_(lexer_.next()) {}

  Formula parse() {
    if (token_.kind == Token_Kind::end) fail("the formula is empty");
    formula_.root = expression(0);
    if (token_.kind != Token_Kind::end) fail("the formula was expected to end here");
    return std::move(formula_);
  }

 private:
  Expression expression(std::size_t depth);
  Expression operand(std::size_t depth);
  Expression with_sign(std::size_t depth);
  Expression negated(std::size_t depth);
  Expression value(std::size_t depth);
  Expression enclosed(std::size_t depth);
  Expression word(std::size_t depth);
  Expression call(const Token& name, std::size_t depth);
  std::vector<Expression> arguments(const Method& method, std::size_t depth);
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

  Lexer lexer_;
  Token token_;
  Formula formula_;
};

void Check_Arguments(const Call& call, std::size_t position) {
  if (call.method->takes_all_as_list) return;
  const auto& parameters = call.method->parameters;
  for (std::size_t at = 0; at < parameters.size(); ++at) {
    const bool given =
        at < call.arguments.size() && !std::holds_alternative<Omitted>(call.arguments[at].node);
    if (given || parameters[at].optional) continue;
    throw Syntax_Error(
        std::string(parameters[at].name) + " is missing in " + Signature(*call.method), position);
  }
}

Cell_Address Cell_Of(const Token& token) {
  if (token.kind != Token_Kind::word || !Looks_Like_Cell(token.spelling)) {
    throw Syntax_Error("a cell was expected here", token.position);
  }
  const auto address = Read_Address(token.spelling);
  if (!address) {
    throw Syntax_Error("no such cell; a worksheet has the cells A1 to " +
                           Address_Text({maximum_rows, maximum_columns}),
                       token.position);
  }
  return *address;
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

Expression Parser::value(std::size_t depth) {
  switch (token_.kind) {
    case Token_Kind::open:
      return enclosed(depth);
    case Token_Kind::open_array:
      return array();
    case Token_Kind::number:
      return {Number_Value(take().spelling, false, ".")};
    case Token_Kind::text:
      return {HostValue(Unquoted(take().spelling))};
    case Token_Kind::error_literal:
      return {HostValue(*Leading_Error(take().spelling))};
    case Token_Kind::word:
      return word(depth);
    case Token_Kind::quoted_sheet: {
      const Token sheet = take();
      if (token_.kind != Token_Kind::exclamation) {
        throw Syntax_Error(
            "text stands in double quotes, \"...\"; between apostrophes stands a "
            "worksheet, as in 'My sheet'!A1",
            sheet.position);
      }
      return on_sheet(Unquoted(sheet.spelling), sheet.position);
    }
    case Token_Kind::end:
      fail("the formula ends too early; a value was expected");
    default:
      fail("a value was expected here");
  }
}

Expression Parser::negated(std::size_t depth) {
  take();
  if (token_.kind == Token_Kind::number) return {Number_Value(take().spelling, true, ".")};
  Negation negation;
  negation.operand.push_back(with_sign(depth + 1));
  return {std::move(negation)};
}

Expression Parser::enclosed(std::size_t depth) {
  const Token open = take();
  Expression inner = expression(depth + 1);
  if (token_.kind == Token_Kind::end) throw Syntax_Error("this \"(\" is not closed", open.position);
  if (!take_if(Token_Kind::close)) fail("\")\" was expected here");
  return inner;
}

Expression Parser::word(std::size_t depth) {
  const Token word = take();
  if (token_.kind == Token_Kind::open) return call(word, depth);
  if (token_.kind == Token_Kind::exclamation) {
    return on_sheet(std::string(word.spelling), word.position);
  }
  if (Looks_Like_Cell(word.spelling)) return reference({}, word, word.position);
  if (Same_Word(word.spelling, "TRUE")) return {HostValue(true)};
  if (Same_Word(word.spelling, "FALSE")) return {HostValue(false)};
  return name_use({}, word, word.position);
}

Expression Parser::call(const Token& name, std::size_t depth) {
  Call call;
  call.method = Find_Method(name.spelling);
  if (call.method == nullptr) {
    std::string message = "unknown function \"" + std::string(name.spelling) + "\"";
    if (const auto near = Nearest_Function(name.spelling)) {
      message += "; did you mean " + std::string(*near) + "?";
    }
    throw Syntax_Error(message, name.position);
  }
  const Token open = take();
  call.arguments = arguments(*call.method, depth);
  if (token_.kind == Token_Kind::end) throw Syntax_Error("this \"(\" is not closed", open.position);
  if (token_.kind != Token_Kind::close) fail("\",\" or \")\" was expected here");
  Check_Arguments(call, token_.position);
  take();
  return {std::move(call)};
}

std::vector<Expression> Parser::arguments(const Method& method, std::size_t depth) {
  std::vector<Expression> arguments;
  if (token_.kind == Token_Kind::close) return arguments;
  do {
    if (arguments.size() == method.parameters.size() && !method.takes_all_as_list) {
      fail("too many arguments for " + Signature(method));
    }
    const bool omitted = token_.kind == Token_Kind::comma || token_.kind == Token_Kind::close;
    arguments.push_back(omitted ? Expression{} : expression(depth + 1));
  } while (take_if(Token_Kind::comma));
  return arguments;
}

Expression Parser::on_sheet(std::string sheet, std::size_t position) {
  take();
  if (sheet.empty()) throw Syntax_Error("the name of the worksheet is empty", position);
  if (token_.kind != Token_Kind::word) fail("a cell or a name was expected after \"!\"");
  const Token word = take();
  if (Looks_Like_Cell(word.spelling)) return reference(std::move(sheet), word, position);
  return name_use(std::move(sheet), word, position);
}

Expression Parser::reference(std::string sheet, const Token& first, std::size_t position) {
  const Cell_Address corner = Cell_Of(first);
  const Cell_Address other = take_if(Token_Kind::colon) ? Cell_Of(take()) : corner;
  formula_.references.push_back({std::move(sheet), Area_Between(corner, other), position});
  return {Reference_Index{formula_.references.size() - 1}};
}

Expression Parser::name_use(std::string sheet, const Token& name, std::size_t position) {
  if (Find_Method(name.spelling) != nullptr) {
    throw Syntax_Error(
        "a function is called with parentheses: " + Signature(*Find_Method(name.spelling)),
        name.position);
  }
  if (!Is_Valid_Name(name.spelling)) {
    throw Syntax_Error("this is neither a cell nor a name", name.position);
  }
  formula_.names.push_back({std::move(sheet), std::string(name.spelling), position});
  return {Name_Index{formula_.names.size() - 1}};
}

Expression Parser::array() {
  const Token open = take();
  Array array;
  std::size_t in_row = 0;
  for (;;) {
    array.values.push_back(array_element());
    ++in_row;
    if (take_if(Token_Kind::comma)) continue;
    if (array.rows > 0 && in_row != array.columns) fail("the rows of the array differ in length");
    array.columns = std::exchange(in_row, 0);
    ++array.rows;
    if (take_if(Token_Kind::semicolon)) continue;
    if (take_if(Token_Kind::close_array)) return {HostValue(std::move(array))};
    if (token_.kind == Token_Kind::end) {
      throw Syntax_Error("this \"{\" is not closed", open.position);
    }
    fail(R"("," or ";" or "}" was expected here)");
  }
}

HostValue Parser::array_element() {
  const bool negative = take_if(Token_Kind::minus);
  if (token_.kind == Token_Kind::number) return Number_Value(take().spelling, negative, ".");
  if (!negative && token_.kind == Token_Kind::text) return Unquoted(take().spelling);
  if (!negative && token_.kind == Token_Kind::error_literal) {
    return *Leading_Error(take().spelling);
  }
  if (!negative && token_.kind == Token_Kind::word) {
    const bool is_true = Same_Word(token_.spelling, "TRUE");
    if (is_true || Same_Word(token_.spelling, "FALSE")) {
      take();
      return is_true;
    }
  }
  fail("an array holds constants only: numbers, text, TRUE, FALSE, error values");
}

}  // namespace

Formula Parse_Formula(std::string_view text) {
  if (const auto bad = First_Bad_Byte(text)) {
    throw Syntax_Error("the formula is not valid UTF-8 here", *bad);
  }
  std::size_t start = std::min(text.find_first_not_of(" \t\r\n"), text.size());
  if (text.substr(start).starts_with('=')) ++start;
  return Parser(text, start).parse();
}

bool Is_Valid_Name(std::string_view text) {
  if (text.empty() || First_Bad_Byte(text) || Looks_Like_Cell(text)) return false;
  const char first = text.front();
  const bool begins_well = !(first >= '0' && first <= '9') && first != '.' && first != '?';
  return begins_well && text.find('$') == std::string_view::npos &&
         Word_Length(text) == text.size() && !Same_Word(text, "TRUE") &&
         !Same_Word(text, "FALSE") && Find_Method(text) == nullptr;
}

}  // namespace quorvex
