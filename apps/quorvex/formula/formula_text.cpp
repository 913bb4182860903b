// Writing formulas.
#include <array>
#include <charconv>
#include <stdexcept>

#include "formula/formula.h"
#include "formula/lexer.h"
#include "formula/literals.h"
#include "host/platform.h"

namespace quorvex {

namespace {

// Formulas have "." in every locale.
std::string Number_Literal(double number) {
  std::array<char, 32> buffer{};
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                 std::chars_format::general, 15);
  return {buffer.data(), end.ptr};
}

std::string Array_Text(const Array& array) {
  std::string text = "{";
  for (std::size_t at = 0; at < array.values.size(); ++at) {
    if (at > 0) text += at % array.columns == 0 ? ';' : ',';
    text += Constant_Text(array.values[at]);
  }
  return text + "}";
}

std::string Sheet_Prefix(const std::string& sheet) {
  if (sheet.empty()) return {};
  const bool plain = Word_Length(sheet) == sheet.size() && !(sheet[0] >= '0' && sheet[0] <= '9') &&
                     sheet[0] != '.';
  return (plain ? sheet : Quoted(sheet, '\'')) + "!";
}

// Calls the overload for what stands at each node. A chain of a few hundred levels at most.
class Writer {
 public:
  explicit Writer(const Formula& formula) : formula_(formula) {}

  std::string write(const Expression& expression) {
    std::visit(*this, expression.node);
    return std::move(text_);
  }

  void operator()(const Omitted& /*argument*/) {}
  void operator()(const HostValue& constant) { text_ += Constant_Text(constant); }
  void operator()(const Reference_Index& reference) {
    const Reference& cells = formula_.references[reference.index];
    text_ += Sheet_Prefix(cells.sheet) + Area_Text(cells.area);
  }
  void operator()(const Name_Index& name) {
    const Name_Use& use = formula_.names[name.index];
    text_ += Sheet_Prefix(use.sheet) + use.name;
  }
  void operator()(const Negation& negation) {
    const auto& operand = negation.operand.front().node;
    const auto* constant = std::get_if<HostValue>(&operand);
    // Right behind it, a number would take the minus for its own.
    const bool apart = constant != nullptr && constant->kind() == HostValue::Kind::number &&
                       constant->number() >= 0;
    text_ += '-';
    write_part(negation.operand.front(), apart || std::holds_alternative<Percent>(operand));
  }
  void operator()(const Percent& percent) {
    write_part(percent.operand.front(), false);
    text_ += '%';
  }
  void operator()(const Chain& chain) {
    write_operand(chain, 0);
    for (std::size_t at = 0; at < chain.operators.size(); ++at) {
      text_ += Operator_Text(chain.operators[at]);
      write_operand(chain, at + 1);
    }
  }
  void operator()(const Call& call) { write_call(call.method->name, call.arguments); }
  void operator()(const Choice& choice) {
    for (const Choice_Function& function : Choice_Functions()) {
      if (function.kind == choice.kind) write_call(function.name, choice.arguments);
    }
  }

 private:
  void write_call(std::string_view name, const std::vector<Expression>& arguments) {
    text_.append(name) += '(';
    for (std::size_t at = 0; at < arguments.size(); ++at) {
      if (at > 0) text_ += separator_;
      std::visit(*this, arguments[at].node);
    }
    text_ += ')';
  }
  void write_part(const Expression& part, bool apart) {
    apart = apart || std::holds_alternative<Chain>(part.node);
    if (apart) text_ += '(';
    std::visit(*this, part.node);
    if (apart) text_ += ')';
  }
  // Only what binds more tightly needs no parentheses.
  void write_operand(const Chain& chain, std::size_t at) {
    const auto* inner = std::get_if<Chain>(&chain.operands[at].node);
    const bool is_tighter =
        inner != nullptr && Rank_Of(inner->operators.front()) > Rank_Of(chain.operators.front());
    if (is_tighter) {
      std::visit(*this, chain.operands[at].node);
    } else {
      write_part(chain.operands[at], false);
    }
  }

  const Formula& formula_;
  // A comma between digits might be read as a decimal one.
  const char separator_ = Current_Separators().decimal() == "," ? ';' : ',';
  std::string text_;
};

}  // namespace

std::string_view Operator_Text(Operator op) {
  constexpr std::array<std::string_view, 12> texts{
      "=", "<>", "<", "<=", ">", ">=", "&", "+", "-", "*", "/", "^"};
  return texts[static_cast<std::size_t>(op)];
}

std::string Formula_Text(const Formula& formula) {
  return Writer(formula).write(formula.root);
}

std::string Constant_Text(const HostValue& constant) {
  switch (constant.kind()) {
    case HostValue::Kind::number:
      return Number_Literal(constant.number());
    case HostValue::Kind::text:
      return Quoted(constant.text(), '"');
    case HostValue::Kind::boolean:
      return constant.boolean() ? "TRUE" : "FALSE";
    case HostValue::Kind::error:
      return std::string(Error_Text(constant.error()));
    case HostValue::Kind::array:
      return Array_Text(constant.array());
    default:
      return {};
  }
}

}  // namespace quorvex
