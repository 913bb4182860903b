#include "text/round_to_length.h"

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

#include "host/conversions.h"
#include "host/run_time_failure.h"
#include "text/digit_runs.h"
#include "text/single_byte_separator.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

using Count = std::int64_t;

Count Length(const std::string& text) {
  return static_cast<Count>(text.size());
}

int Digit_At(const std::string& text, Count place) {
  const char character = text[static_cast<std::size_t>(place)];
  if (character < '0' || character > '9') {
    throw Run_Time_Failure(Failure_Number::type_mismatch, "A digit was expected.");
  }
  return character - '0';
}

// Adds one to the number that ends at `place`, stepping over separators. True if it runs off the
// left end.
bool Carry_Up(std::string& text, Count place, char separator) {
  for (; place >= 0; --place) {
    char& character = text[static_cast<std::size_t>(place)];
    if (character == separator) continue;
    if (Digit_At(text, place) != 9) {
      ++character;
      return false;
    }
    character = '0';
  }
  return true;
}

// How many characters of the text are kept. Throws the fraction away if the count ends before the
// separator.
Count Characters_To_Keep(std::string& num, Count n, char separator) {
  const std::size_t found = num.find(separator);
  if (found == std::string::npos) return n;
  const Count place = static_cast<Count>(found) + 1;
  if (place > n) {
    num.resize(found);
    return n;
  }
  if (place != 2 || num.front() != '0') return n + 1;
  const auto fraction = std::string_view(num).substr(found + 1);
  return n + 1 + static_cast<Count>(Count_Leading_Zeros(fraction));
}

// The work, for a separator of one byte. A second separator can stand where a digit is looked for;
// it is passed over, and lost.
std::string Round(std::string num, Count n, char separator) {
  const Count keep = Characters_To_Keep(num, n, separator);
  const Count length = Length(num);
  if (length <= keep) return num;
  if (keep < 1) {
    throw Run_Time_Failure(Failure_Number::invalid_call, "There are no digits to keep.");
  }
  const auto is_separator = [&](Count place) {
    return place < length && num[static_cast<std::size_t>(place)] == separator;
  };
  const Count last = is_separator(keep - 1) ? keep : keep - 1;
  const Count next = is_separator(last + 1) ? last + 2 : last + 1;
  if (next >= length) return num;
  const bool up = Digit_At(num, next) >= 5;
  if (last != keep - 1) num.erase(static_cast<std::size_t>(keep - 1), 1);
  num.resize(static_cast<std::size_t>(keep));
  const bool runs_over = up && Carry_Up(num, keep - 1, separator);
  num.resize(static_cast<std::size_t>(length), '0');
  if (runs_over) num.insert(0, 1, '1');
  return num;
}

Count Whole(double n) {
  // Beyond any length that a text can have, and safe to convert and to add to.
  constexpr double far = 1e15;
  if (std::isnan(n)) throw Run_Time_Failure(Failure_Number::overflow, "The count is no number.");
  return static_cast<Count>(Nearest(std::fmax(-far, std::fmin(far, n))));
}

}  // namespace

NumberText Round_To_Length(NumberText num, double n) {
  return With_Handler(
      [&] {
        return With_Single_Byte_Separator(std::move(num), [&](std::string text, char separator) {
          return Round(std::move(text), Whole(n), separator);
        });
      },
      [](const Run_Time_Failure&) { return NumberText(value_token); });
}

}  // namespace quorvex
