// Formulas: reading them, writing them, and showing where one is wrong.
#pragma once

#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "formula/expression.h"
#include "formula/find_function.h"

namespace quorvex {

/// What is wrong with a formula, and at which byte of its text.
class Syntax_Error : public std::runtime_error {
 public:
  Syntax_Error(const std::string& message, std::size_t position)
      : std::runtime_error(message), position_(position) {}

  std::size_t position() const noexcept { return position_; }

 private:
  std::size_t position_;
};

/// Calls, signs and parentheses within each other.
inline constexpr std::size_t maximum_nesting = 256;

/// A formula that was read.
struct Formula {
  Expression root;
  std::vector<Reference> references;
  std::vector<Name_Use> names;
};

/// Reads a formula: =NAME(arg, arg), the "=" optional. Functions are looked up in the catalogue and
/// the count of their arguments is checked. Throws `Syntax_Error`.
///
/// Arguments are separated by "," or by ";". Where the locale has a decimal comma, and in a formula
/// with ";" between arguments wherever it is read, a comma between two digits is a decimal
/// separator, as "." is everywhere; "," then separates no arguments beside such a number.
///
/// A number that a 64-bit float gives back unchanged at 15 digits is a number, a longer one is
/// number text in the current locale, so that none of its digits is lost.
Formula Parse_Formula(std::string_view text, Functions functions = Functions::of_worksheets);

/// The formula as text, without "=". Reading it again under this locale gives the same formula.
std::string Formula_Text(const Formula& formula);

/// A constant as a formula writes it: 1.5, "text", TRUE, #N/A, {1,2;3,4}.
std::string Constant_Text(const HostValue& constant);

/// True for what can name cells or a formula on a worksheet: a word that is neither like a cell nor
/// a constant nor a function.
bool Is_Valid_Name(std::string_view text);

/// The formula and, on a second line, a caret under the place; a long formula is cut to what
/// stands around it.
std::string Mark_Place(std::string_view formula, std::size_t position);

}  // namespace quorvex
