#include "formula/operators.h"

#include <string>
#include <string_view>

#include "formula/elements.h"
#include "formula/literals.h"
#include "formula/render.h"
#include "host/conversions.h"
#include "host/run_time_failure.h"
#include "text/options.h"

namespace quorvex {

namespace {

// What is handed to the engine as it is: most values are.
bool Is_Plain(const HostValue& value) {
  return value.kind() == HostValue::Kind::number || value.is_text();
}

HostValue As_Operand(const HostValue& value) {
  if (value.is_empty()) return 0;
  if (value.kind() == HostValue::Kind::boolean) return value.boolean() ? 1 : 0;
  return value;
}

HostValue Arithmetic(cls_Quorvex& engine, Operator op, const HostValue& left,
                     const HostValue& right) {
  switch (op) {
    case Operator::add:
      return engine.qvxADD(left, right);
    case Operator::subtract:
      return engine.qvxSUBTRACT(left, right);
    case Operator::multiply:
      return engine.qvxMULTIPLY(left, right);
    case Operator::divide:
      return engine.qvxDIVIDE(left, right);
    default:
      return engine.qvxPOWER(left, right);
  }
}

// Numbers come before text, and text before truth values.
enum class Sort { number, text, boolean };

Sort Sort_Of(cls_Quorvex& engine, const HostValue& value) {
  if (value.kind() == HostValue::Kind::boolean) return Sort::boolean;
  if (value.kind() == HostValue::Kind::number || engine.qvxISNUMBER(value)) return Sort::number;
  return Sort::text;
}

HostValue Blank_Like(const HostValue& other) {
  if (other.kind() == HostValue::Kind::boolean) return false;
  if (other.is_text() && !other.text().empty()) return "";
  return 0;
}

template <typename Value>
int Order(const Value& left, const Value& right) {
  if (left == right) return 0;
  return left < right ? -1 : 1;
}

int Order_Of_Numbers(cls_Quorvex& engine, const HostValue& left, const HostValue& right) {
  const auto is_true = [](const HostValue& answer) {
    return answer.is_text() && answer.text() == "True";
  };
  if (is_true(engine.qvxISEQUAL(left, right))) return 0;
  return is_true(engine.qvxISLESS(left, right)) ? -1 : 1;
}

// Less than 0 if the left one comes first, 0 if they are equal. Neither is an error.
int Order_Of(cls_Quorvex& engine, const HostValue& left, const HostValue& right) {
  if (left.is_empty() && right.is_empty()) return 0;
  if (left.is_empty()) return Order_Of(engine, Blank_Like(right), right);
  if (right.is_empty()) return Order_Of(engine, left, Blank_Like(left));
  const Sort sort = Sort_Of(engine, left);
  const Sort other = Sort_Of(engine, right);
  if (sort != other) return Order(sort, other);
  switch (sort) {
    case Sort::number:
      return Order_Of_Numbers(engine, left, right);
    case Sort::text:
      return Order(To_Capitals(left.text()), To_Capitals(right.text()));
    default:
      return Order(left.boolean(), right.boolean());
  }
}

bool Holds(Operator op, int order) {
  switch (op) {
    case Operator::equal:
      return order == 0;
    case Operator::not_equal:
      return order != 0;
    case Operator::less:
      return order < 0;
    case Operator::less_or_equal:
      return order <= 0;
    case Operator::greater:
      return order > 0;
    default:
      return order >= 0;
  }
}

HostValue Apply_To_Two(cls_Quorvex& engine, Operator op, const HostValue& left,
                       const HostValue& right) {
  if (Is_Error(left)) return left;
  if (Is_Error(right)) return right;
  if (op == Operator::join) return Render(left) + Render(right);
  if (Rank_Of(op) == loosest_rank) return Holds(op, Order_Of(engine, left, right));
  if (Is_Plain(left) && Is_Plain(right)) return Arithmetic(engine, op, left, right);
  return Arithmetic(engine, op, As_Operand(left), As_Operand(right));
}

// The sign is put on or taken off as text, so that every digit stays as it is.
std::string With_Sign_Turned(const std::string& text) {
  if (text.starts_with('-')) return text.substr(1);
  if (text.starts_with('(') && text.ends_with(')')) return text.substr(1, text.size() - 2);
  return "-" + text;
}

HostValue Negated_Text(cls_Quorvex& engine, const HostValue& text) {
  if (!engine.qvxISNUMBER(text)) return Error_Code::value;
  HostValue turned = With_Sign_Turned(text.text());
  if (engine.qvxISNUMBER(turned)) return turned;
  // The sign stands within the text, behind a currency symbol or in quote marks.
  return engine.qvxSUBTRACT(0, text, Missing, Missing, Missing, Missing, maximum_digits);
}

HostValue Negated_One(cls_Quorvex& engine, const HostValue& value) {
  if (Is_Error(value)) return value;
  if (value.is_text()) return Negated_Text(engine, value);
  const double number = As_Operand(value).number();
  return number == 0 ? 0.0 : -number;
}

}  // namespace

HostValue Apply(cls_Quorvex& engine, Operator op, const HostValue& left, const HostValue& right) {
  if (Is_Plain(left) && Is_Plain(right)) return Apply_To_Two(engine, op, left, right);
  return Each_Pair(left, right, [&](const HostValue& one, const HostValue& other) {
    return Apply_To_Two(engine, op, one, other);
  });
}

HostValue Negated(cls_Quorvex& engine, const HostValue& value) {
  return Each(value, [&](const HostValue& one) { return Negated_One(engine, one); });
}

HostValue Hundredth(cls_Quorvex& engine, const HostValue& value) {
  return Apply(engine, Operator::multiply, value, 0.01);
}

}  // namespace quorvex
