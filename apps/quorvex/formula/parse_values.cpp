// What stands between the operators of a formula.
#include <utility>

#include "formula/literals.h"
#include "formula/parser.h"

namespace quorvex {

namespace {

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

}  // namespace

Expression Parser::value(std::size_t depth) {
  switch (token_.kind) {
    case Token_Kind::open:
      return enclosed(depth);
    case Token_Kind::open_array:
      return array();
    case Token_Kind::number:
      return {number(false)};
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
  if (const Method* method = Find_Function(name.spelling, functions_)) {
    throw Syntax_Error("a function is called with parentheses: " + Signature(*method),
                       name.position);
  }
  if (const Choice_Function* function = Find_Choice(name.spelling)) {
    throw Syntax_Error("a function is called with parentheses: " + std::string(function->signature),
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
  if (token_.kind == Token_Kind::number) return number(negative);
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

}  // namespace quorvex
