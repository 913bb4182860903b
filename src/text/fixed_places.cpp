#include "text/fixed_places.h"

#include <algorithm>
#include <string>

#include "host/conversions.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "text/primitives.h"

namespace quorvex {
namespace {

int Digit(char character) {
  if (character < '0' || character > '9') {
    throw Run_Time_Failure(Failure_Number::type_mismatch,
                           "Rounding to fixed places carries into a thousands separator.");
  }
  return character - '0';
}

// Adds one to the digits that end at `end`. True if the carry runs over at the left.
bool Carry_Up(std::string& text, std::size_t begin, std::size_t end) {
  for (std::size_t place = end; place > begin; --place) {
    char& character = text[place - 1];
    if (Digit(character) != 9) {
      ++character;
      return false;
    }
    character = '0';
  }
  return true;
}

void Fill(std::string& text, std::size_t count) {
  Require_Memory(texts_at_once * static_cast<double>(text.size() + count));
  text.append(count, '0');
}

void Round_Fraction(std::string& text, std::size_t separator, std::size_t fraction,
                    std::size_t places) {
  const bool up = Digit(text[fraction + places]) >= 5;
  text.resize(places == 0 ? separator : fraction + places);
  if (!up) return;
  const bool fraction_runs_over = places == 0 || Carry_Up(text, fraction, fraction + places);
  if (fraction_runs_over && Carry_Up(text, 0, separator)) text.insert(0, 1, '1');
}

}  // namespace

std::optional<std::int32_t> Fixed_Places(const HostValue& format_decimal_place) {
  const HostValue& value = format_decimal_place;
  if (value.is_missing()) return std::nullopt;
  if (Is_Single_Cell(value)) return Fixed_Places(Cell_Of(value));
  if (value.is_empty() || (value.is_text() && value.text().empty())) return std::nullopt;
  // Blanks or a currency symbol can stand before a minus, so the number is looked at as well.
  return Is_Positive(value) ? std::max(0, To_Int32(value)) : 0;
}

void Set_Fixed_Places(NumberText& text, std::int32_t places) {
  const auto wanted = static_cast<std::size_t>(places);
  const std::string& mark = Decimal_Separator();
  const std::size_t separator = text.find(mark);
  if (separator == std::string::npos) {
    if (wanted == 0) return;
    text += mark;
    Fill(text, wanted);
    return;
  }
  const std::size_t fraction = separator + mark.size();
  const std::size_t present = text.size() - fraction;
  if (present < wanted) Fill(text, wanted - present);
  if (present > wanted) Round_Fraction(text, separator, fraction, wanted);
}

}  // namespace quorvex
