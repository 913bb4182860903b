#include "lists/shown_fraction.h"

#include <array>
#include <cstddef>
#include <utility>
#include <vector>

#include "text/tokens.h"

namespace quorvex {
namespace {

NumberText Fraction_Text(const type_Fraction& fraction, std::optional<std::string_view> separator) {
  if (Has_Token_Mark(fraction.divisor)) return fraction.divisor;
  const NumberText between(separator.value_or("").empty() ? "/" : *separator);
  return fraction.Numerator + between + fraction.divisor;
}

}  // namespace

HostValue Shown_Fraction(type_Fraction fraction, const Fraction_Parts& parts,
                         std::optional<std::string_view> separator) {
  if (parts.numerator) return std::move(fraction.Numerator);
  if (parts.divisor) return std::move(fraction.divisor);
  if (parts.reduced_by) return std::move(fraction.Reduced_By);
  const std::array<NumberText, 4> shown = {Fraction_Text(fraction, separator), fraction.Numerator,
                                           fraction.divisor, fraction.Reduced_By};
  Array array;
  array.rows = array.columns = shown.size();
  // An array of text: what is empty in it is so as text.
  array.values.assign(shown.size() * shown.size(), NumberText());
  for (std::size_t place = 0; place < shown.size(); ++place) {
    array.values[place] = shown[place];
    array.values[place * array.columns] = shown[place];
  }
  return array;
}

}  // namespace quorvex
