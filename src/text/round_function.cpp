#include "text/round_function.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "host/conversions.h"
#include "text/clean_up_number.h"
#include "text/decimal.h"
#include "text/digit_runs.h"
#include "text/format_result.h"
#include "text/primitives.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

using Place = std::int64_t;

constexpr double lowest_count = -32767;
constexpr Place most_zeros = 32765;  // behind a one that rounding makes of no digit

// Digits without a separator, and how many of them are decimals.
struct Digits {
  NumberText text;
  Place decimals = 0;
};

Place Length(const Digits& number) {
  return static_cast<Place>(number.text.size());
}

char& At(Digits& number, Place place) {
  return number.text[static_cast<std::size_t>(place)];
}

// The count is made whole as text, with the 15 digits that a number has there.
Place Whole_Places(double num_digits) {
  constexpr double far = 1e15;  // beyond the length of any text
  const NumberText text = Clean_Up_Number(Number_To_Text(num_digits), true, true).NumClean;
  const double whole = Text_To_Number(Integer_Part_Text(text));
  // A negative count has a half added before its fraction is cut off, and so acts one place short.
  return static_cast<Place>(std::fmin(whole < 0 ? whole + 1 : whole, far));
}

void Set_Zero(Digits& number) {
  number = {"0", 0};
}

// A one in the last place that is kept.
void Set_Unit(Digits& number, Place places) {
  number.text.assign(static_cast<std::size_t>(std::abs(places)) + 1, '0');
  (places > 0 ? number.text.back() : number.text.front()) = '1';
  number.decimals = std::max<Place>(places, 0);
}

void Clear_From(Digits& number, Place place) {
  std::fill(number.text.begin() + place, number.text.end(), '0');
}

// Adds one to the kept digits, of which there is at least one.
void Count_Up(Digits& number, Place kept) {
  const std::size_t last = number.text.find_last_not_of('9', static_cast<std::size_t>(kept) - 1);
  if (last == NumberText::npos) {
    Clear_From(number, 0);
    number.text.insert(0, 1, '1');
    return;
  }
  ++number.text[last];
  Clear_From(number, static_cast<Place>(last) + 1);
}

bool Is_All_Zeros(std::string_view digits) {
  return Count_Leading_Zeros(digits) == digits.size();
}

bool Is_At_Most_A_Unit(const Digits& number, Place kept) {
  if (kept <= 0) return true;
  const std::string_view text = number.text;
  const auto last = static_cast<std::size_t>(kept) - 1;
  if (!Is_All_Zeros(text.substr(0, last))) return false;
  return text[last] == '0' || (text[last] == '1' && Is_All_Zeros(text.substr(last + 1)));
}

void Round_Up(Digits& number, Place kept, Place places) {
  if (Is_At_Most_A_Unit(number, kept)) {
    Set_Unit(number, places);
    return;
  }
  // A nine is counted up even where all that is dropped is zeros.
  const bool drops_zeros =
      Is_All_Zeros(std::string_view(number.text).substr(static_cast<std::size_t>(kept)));
  if (drops_zeros && At(number, kept - 1) != '9') return;
  Count_Up(number, kept);
}

void Round_Down(Digits& number, Place kept) {
  if (kept <= 0) {
    Set_Zero(number);
  } else {
    Clear_From(number, kept);
  }
}

// False where the result would be a one with too many zeros.
bool Round_To_Nearest(Digits& number, Place kept, Place places) {
  // Decimals count as digits here: a number that has as many as there are places to clear, by its
  // decimals, and yet lies more than a digit below the place that is kept, stays as it is.
  if (Length(number) < -places) {
    Set_Zero(number);
    return true;
  }
  if (kept < -1) return true;
  if (kept < 0 || At(number, kept) < '5') {
    Round_Down(number, kept);
    return true;
  }
  if (kept > 0) {
    Count_Up(number, kept);
    return true;
  }
  if (-places > most_zeros) return false;
  Set_Unit(number, places);
  return true;
}

bool Round(Digits& number, Place places, Rounding_Direction direction) {
  if (number.text == "0" || places >= number.decimals) return true;
  const Place kept = Length(number) - number.decimals + places;
  switch (direction) {
    case Rounding_Direction::up:
      Round_Up(number, kept, places);
      return true;
    case Rounding_Direction::down:
      Round_Down(number, kept);
      return true;
    default:
      return Round_To_Nearest(number, kept, places);
  }
}

}  // namespace

NumberText Round_Function(std::string_view num, double num_digits, Rounding_Direction direction,
                          const Format_Arguments& format) {
  if (num.empty() || num_digits < lowest_count) return NumberText(value_token);
  type_CleanUp clean = Clean_Up_Number(num, false, false);
  if (clean.IsError) return NumberText(value_token);
  Decimal read = Read_Decimal(std::move(clean));
  Digits number{std::move(read.digits), -read.power_of_ten};
  if (!Round(number, Whole_Places(num_digits), direction)) return NumberText(value_token);

  type_Restrictionator options =
      Restrictionator({format.format_negative, format.format_thousands, format.format_currency,
                       format.exponential_notation});
  options.maxSD = maximum_digits;
  return Format_Result({std::move(number.text), -number.decimals, read.negative}, options, false);
}

double Places_Of(const HostValue& num_digits) {
  if (Is_Single_Cell(num_digits)) return Places_Of(Cell_Of(num_digits));
  const bool is_absent = num_digits.is_missing() || num_digits.is_empty() ||
                         (num_digits.is_text() && num_digits.text().empty());
  return is_absent ? 0 : To_Number(num_digits);
}

}  // namespace quorvex
