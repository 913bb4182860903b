// The syntax tree of a formula.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "formula/choices.h"
#include "formula/reference.h"
#include "frame/catalogue.h"
#include "host/host_value.h"

namespace quorvex {

/// Cells that a formula refers to; on the formula's own worksheet if `sheet` is empty.
struct Reference {
  std::string sheet;
  Cell_Area area;
  std::size_t position = 0;  // of its first byte in the formula's text
};

/// A name that a formula uses; of the formula's own worksheet if `sheet` is empty.
struct Name_Use {
  std::string sheet;
  std::string name;
  std::size_t position = 0;
};

struct Expression;

/// An argument left out, as in f(1,,3).
struct Omitted {};

/// References and names stand in lists of the formula; the tree keeps their index.
struct Reference_Index {
  std::size_t index = 0;
};
struct Name_Index {
  std::size_t index = 0;
};

/// A minus before anything but a number.
struct Negation {
  std::vector<Expression> operand;  // exactly one
};

/// A percent sign behind a value.
struct Percent {
  std::vector<Expression> operand;  // exactly one
};

enum class Operator : unsigned char {
  equal,
  not_equal,
  less,
  less_or_equal,
  greater,
  greater_or_equal,
  join,
  add,
  subtract,
  multiply,
  divide,
  power,
};

/// As formulas spell it.
std::string_view Operator_Text(Operator op);

/// Operators that bind more tightly have a higher rank; those of one rank go from left to right.
inline constexpr int loosest_rank = 0;
constexpr int Rank_Of(Operator op) {
  switch (op) {
    case Operator::join:
      return 1;
    case Operator::add:
    case Operator::subtract:
      return 2;
    case Operator::multiply:
    case Operator::divide:
      return 3;
    case Operator::power:
      return 4;
    default:
      return loosest_rank;
  }
}

/// Operands with operators of one rank between them. A sum of a thousand terms is one chain, not a
/// tree a thousand levels deep.
struct Chain {
  std::vector<Expression> operands;
  std::vector<Operator> operators;  // one fewer
};

struct Call {
  const Method* method = nullptr;
  std::vector<Expression> arguments;
};

/// A call of IF or its kin.
struct Choice {
  Choice_Kind kind = Choice_Kind::if_else;
  std::vector<Expression> arguments;
};

struct Expression {
  std::variant<Omitted, HostValue, Reference_Index, Name_Index, Negation, Percent, Chain, Call,
               Choice>
      node;
};

}  // namespace quorvex
