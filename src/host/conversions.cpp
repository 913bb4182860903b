// Conversions between the kinds of host values.
#include "host/conversions.h"

#include <cmath>
#include <limits>
#include <optional>

#include "host/platform.h"
#include "host/run_time_failure.h"
#include "host/shown_text.h"
#include "host/utf8.h"

namespace quorvex {

namespace {

using Kind = HostValue::Kind;

std::string Size_Of_Range(const Range& range) {
  return std::to_string(range.rows()) + " by " + std::to_string(range.columns()) + " cells";
}

/// What a value is, as the subject of a message.
std::string Shown(const HostValue& value) {
  switch (value.kind()) {
    case Kind::missing:
      return "A missing argument";
    case Kind::empty:
      return "A blank cell";
    case Kind::number:
      return Number_To_Text(value.number());
    case Kind::text:
      return Shown_Text(value.text());
    case Kind::boolean:
      return value.boolean() ? "True" : "False";
    case Kind::error:
      return "Error " + std::to_string(static_cast<int>(value.error()));
    case Kind::array:
      return "An array";
    case Kind::list:
      return "A list of arguments";
    case Kind::range:
      return "A range of " + Size_Of_Range(value.range());
  }
  return "A value";
}

[[noreturn]] void Fail_Mismatch(const HostValue& value, const std::string& what) {
  throw Run_Time_Failure(Failure_Number::type_mismatch, Shown(value) + " " + what);
}

/// The value of the one cell; a cell that refers to cells in turn has none.
HostValue Single_Cell(const HostValue& value, const std::string& what) {
  if (!Is_Single_Cell(value)) Fail_Mismatch(value, what);
  HostValue cell = value.range().cell(1, 1);
  if (cell.kind() == Kind::range) Fail_Mismatch(cell, what);
  return cell;
}

bool Equals_In_Capitals(std::string_view text, std::string_view capitals) {
  if (text.size() != capitals.size()) return false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if ((c >= 'a' && c <= 'z' ? c - 'a' + 'A' : c) != capitals[i]) return false;
  }
  return true;
}

std::optional<bool> Truth_Word(std::string_view text) {
  if (Equals_In_Capitals(text, "TRUE")) return true;
  if (Equals_In_Capitals(text, "FALSE")) return false;
  return std::nullopt;
}

/// A value as a truth value, its number judged by `is_true`.
template <typename Judge>
bool Truth_Of(const HostValue& value, Judge is_true) {
  const std::string what = "is neither true nor false.";
  switch (value.kind()) {
    case Kind::boolean:
      return value.boolean();
    case Kind::number:
      return is_true(value.number());
    case Kind::empty:
      return is_true(0.0);
    case Kind::text:
      break;
    case Kind::range:
      return Truth_Of(Single_Cell(value, what), is_true);
    default:
      Fail_Mismatch(value, what);
  }
  if (const auto word = Truth_Word(value.text())) return *word;
  return is_true(Text_To_Number(value.text()));
}

template <typename Integer>
Integer To_Integer(const HostValue& value) {
  const double number = Nearest(To_Number(value));
  constexpr Integer least = std::numeric_limits<Integer>::min();
  constexpr Integer most = std::numeric_limits<Integer>::max();
  if (number >= least && number <= most) return static_cast<Integer>(number);
  throw Run_Time_Failure(Failure_Number::overflow, Shown(value) + " is not between " +
                                                       std::to_string(least) + " and " +
                                                       std::to_string(most) + ".");
}

}  // namespace

HostValue Cell_Of(const HostValue& range) {
  return Single_Cell(range, "is no single value.");
}

double Nearest(double number) {
  constexpr double exact = 4503599627370496.0;  // numbers below 2^52 fit an integer
  if (number > -exact && number < exact &&
      static_cast<double>(static_cast<std::int64_t>(number)) == number) {
    return number;
  }
  const double below = std::floor(number);
  const double part = number - below;
  const bool up = part > 0.5 || (part == 0.5 && std::fmod(below, 2) != 0);
  return up ? below + 1 : below;
}

std::string To_Text(const HostValue& value) {
  switch (value.kind()) {
    case Kind::empty:
      return {};
    case Kind::number:
      return Number_To_Text(value.number());
    case Kind::text:
      return value.text();
    case Kind::boolean:
    case Kind::error:
      return Shown(value);
    case Kind::range:
      return To_Text(Single_Cell(value, "has no text."));
    default:
      Fail_Mismatch(value, "has no text.");
  }
}

double To_Number(const HostValue& value) {
  switch (value.kind()) {
    case Kind::empty:
      return 0;
    case Kind::number:
      return value.number();
    case Kind::text:
      return Text_To_Number(value.text());
    case Kind::boolean:
      return value.boolean() ? -1 : 0;
    case Kind::range:
      return To_Number(Single_Cell(value, "is not a number."));
    default:
      Fail_Mismatch(value, "is not a number.");
  }
}

std::int16_t To_Int16(const HostValue& value) {
  return To_Integer<std::int16_t>(value);
}

std::int32_t To_Int32(const HostValue& value) {
  return To_Integer<std::int32_t>(value);
}

bool To_Boolean(const HostValue& value) {
  return Truth_Of(value, [](double number) { return number != 0; });
}

bool Equals_True(const HostValue& value) {
  return Truth_Of(value, [](double number) { return number == -1; });
}

std::string To_Capitals(std::string_view text) {
  std::string capitals;
  capitals.reserve(text.size());
  while (!text.empty()) {
    const char c = text.front();
    const Character character = First_Character(text);
    if (character.bytes == 1) {
      capitals += c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    } else {
      Append_Character(capitals, Current_Platform().letters->capital(character.code));
    }
    text.remove_prefix(character.bytes);
  }
  return capitals;
}

}  // namespace quorvex
