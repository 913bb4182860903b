#include "arith/limbs/limb_number.h"

#include "expects.h"
#include "text/digit_runs.h"
#include "text/operand.h"
#include "text/primitives.h"

namespace quorvex::limbs {
namespace {

constexpr std::size_t longest_text = 1'000'000;

bool Is_Canonical(const Decimal_Parts& parts, std::size_t length) {
  if (parts.integer.empty() || length > longest_text) return false;
  if (parts.integer.front() == '0' && parts.integer.size() > 1) return false;
  if (parts.fraction.empty()) return length == parts.integer.size();
  return parts.fraction.back() != '0';
}

// Adds `unit`, which is below the base, to a limb, and what runs over to those above it.
void Raise(Raw_Number& raw, std::size_t place, Limb unit) {
  raw.limbs[place] += unit;
  if (raw.limbs[place] < base) [[likely]]
    return;
  raw.limbs[raw.count] = 0;
  for (; raw.limbs[place] >= base; ++raw.limbs[place]) raw.limbs[place++] -= base;
  raw.count += static_cast<std::size_t>(raw.limbs[raw.count] != 0);
}

// Rounds to the digits above the lowest `dropped` ones, and zeros only those of their limb: gives
// the place of the limb from which on the number stands.
std::size_t Cut(Raw_Number& raw, std::size_t dropped) {
  const std::size_t first = dropped / digits;
  const Limb unit = Ten_To(dropped % digits);
  const Limb rest = raw.limbs[first] % unit;
  const bool up = unit == 1 ? raw.limbs[first - 1] >= base / 2 : rest >= unit / 2;
  raw.limbs[first] -= rest;
  Raise(raw, first, up ? unit : 0);
  return first;
}

Limb Limb_At(const Number& number, std::int64_t place) {
  return place < number.low || place >= number.top() ? 0 : number.data()[place - number.low];
}

void Append(NumberText& text, Limb limb) {
  text.append(digits, '0');
  Write(text.data() + text.size() - digits, limb);
}

}  // namespace

std::optional<Number> Read_Canonical(std::string_view text) {
  Decimal_Parts parts;
  const bool negative = text.starts_with('-');
  if (negative) text.remove_prefix(1);
  if (!Split_Decimal(text, parts) || !Is_Canonical(parts, text.size())) return std::nullopt;
  if (parts.fraction.empty() && parts.integer == "0") {
    return negative ? std::nullopt : std::optional<Number>(std::in_place);
  }
  const std::size_t behind = Count_For(parts.fraction.size());
  const std::size_t before = Count_For(parts.integer.size());
  Scratch scratch(before + behind);
  Read_Fraction(parts.fraction, behind, scratch.data());
  Read_Number(parts.integer, scratch.data() + behind);
  std::optional<Number> number(std::in_place);
  Trim({scratch.data(), before + behind, -static_cast<std::int64_t>(behind), negative}, *number);
  return number;
}

NumberText Text_Of(const Number& number) {
  if (number.is_zero()) return "0";
  const std::int64_t top = number.top();
  const std::int64_t end = std::min<std::int64_t>(number.low, 0);
  const std::string& separator = Decimal_Separator();
  NumberText text;
  const std::size_t room = static_cast<std::size_t>(std::max<std::int64_t>(top, 0) - end) * digits +
                           2 + separator.size();
  if (room > longest_text) Require_Memory(texts_at_once * static_cast<double>(room));
  text.reserve(room);
  if (number.negative) text += '-';
  if (top <= 0) {
    text.append("0").append(separator).append(static_cast<std::size_t>(-top) * digits, '0');
  }
  for (std::int64_t place = top; place-- > end;) {
    if (place == -1 && top > 0) text += separator;
    Append(text, Limb_At(number, place));
    if (place == top - 1 && top > 0) {
      text.erase(text.size() - digits, digits - Count_Digits(number.data()[number.count() - 1]));
    }
  }
  if (end < 0) text.resize(text.size() - Count_Trailing_Zeros(text));
  return text;
}

Number Number_Of(const Decimal& decimal) {
  constexpr auto limb_digits = static_cast<std::int64_t>(digits);
  // Towards the next lower whole limb.
  const std::int64_t below = decimal.power_of_ten < 0 ? limb_digits - 1 : 0;
  const std::int64_t low = (decimal.power_of_ten - below) / limb_digits;
  const auto zeros = static_cast<std::size_t>(decimal.power_of_ten - low * limb_digits);
  const std::string_view text = decimal.digits;
  // The lowest limb is filled up with zeros; those above it are whole.
  const std::size_t lowest = std::min(text.size(), digits - zeros);
  const std::size_t count = 1 + Count_For(text.size() - lowest);
  Scratch scratch(count);
  *scratch.data() = Read(text.substr(text.size() - lowest)) * Ten_To(zeros);
  Read_Number(text.substr(0, text.size() - lowest), scratch.data() + 1);
  Number number;
  Trim({scratch.data(), count, low, decimal.negative}, number);
  return number;
}

Decimal Decimal_Of(const Number& number) {
  if (number.is_zero()) return {"0"};
  Decimal decimal{Digits_Of(number), number.low * static_cast<std::int64_t>(digits),
                  number.negative};
  Strip_Zeros(decimal);
  return decimal;
}

NumberText Digits_Of(const Number& number) {
  Expects(!number.is_zero());
  NumberText text(number.count() * digits, '0');
  for (std::size_t place = 0; place < number.count(); ++place) {
    Write(text.data() + text.size() - (place + 1) * digits, number.data()[place]);
  }
  return text.erase(0, digits - Count_Digits(number.data()[number.count() - 1]));
}

std::int64_t Leading_Power(const Number& number) {
  Expects(!number.is_zero());
  const std::int64_t below = (number.top() - 1) * static_cast<std::int64_t>(digits);
  return below + static_cast<std::int64_t>(Count_Digits(number.data()[number.count() - 1])) - 1;
}

std::int64_t Plain_Length(const Number& number) {
  if (number.is_zero()) return 1;
  const std::int64_t leading = Leading_Power(number);
  std::int64_t last = number.low * static_cast<std::int64_t>(digits);
  for (Limb limb = *number.data(); limb % 10 == 0; limb /= 10) ++last;
  // At least one digit stands before the separator.
  const std::int64_t before = std::max<std::int64_t>(leading + 1, 1);
  return (number.negative ? 1 : 0) + before + std::max<std::int64_t>(-last, 0);
}

Number Floor(const Number& number) {
  if (number.low >= 0 || number.is_zero()) return number;
  // Something stands behind the point.
  const std::size_t whole = number.top() > 0 ? static_cast<std::size_t>(number.top()) : 0;
  Scratch scratch(whole + 2);
  Copy(number.data() + number.count() - whole, whole, scratch.data());
  scratch.data()[whole] = 0;
  Raw_Number raw{scratch.data(), whole + 1, 0, number.negative};
  if (number.negative) Raise(raw, 0, 1);
  Number result;
  Trim(raw, result);
  return result;
}

std::strong_ordering Compare_Magnitudes(const Number& a, const Number& b) {
  if (a.is_zero() || b.is_zero()) return a.count() <=> b.count();
  if (a.top() != b.top()) return a.top() <=> b.top();
  const Limb* above_a = a.data() + a.count();
  const Limb* above_b = b.data() + b.count();
  for (std::size_t left = std::min(a.count(), b.count()); left > 0; --left) {
    if (*--above_a != *--above_b) return *above_a <=> *above_b;
  }
  return a.count() <=> b.count();
}

// The first limb in which they differ tells, unless it does by one: limbs below it may make up for
// that.
bool Differ_Within(const Number& a, const Number& b, double digit_count) {
  Expects(!a.is_zero() && !b.is_zero());
  const std::int64_t leading = std::max(Leading_Power(a), Leading_Power(b));
  const double last = static_cast<double>(leading) - digit_count + 1;
  std::int64_t place = std::max(a.top(), b.top()) - 1;
  for (; static_cast<double>(place * static_cast<std::int64_t>(digits)) >= last; --place) {
    if (place < a.low && place < b.low) return false;
    const Limb x = Limb_At(a, place);
    const Limb y = Limb_At(b, place);
    if (x != y) return std::max(x, y) - std::min(x, y) > 1;
  }
  return false;
}

void Trim(const Raw_Number& raw, Number& result) {
  std::size_t end = raw.count;
  std::size_t first = 0;
  while (end > 0 && raw.limbs[end - 1] == 0) --end;
  while (first < end && raw.limbs[first] == 0) ++first;
  result.store.fill(raw.limbs + first, end - first);
  result.low = raw.low + static_cast<std::int64_t>(first);
  result.negative = raw.negative && first < end;
}

void Round(Raw_Number& raw, std::size_t digits_kept, Number& result) {
  Expects(digits_kept > 0);
  while (raw.count > 0 && raw.limbs[raw.count - 1] == 0) --raw.count;
  if (raw.count > 0) {
    const std::size_t length = (raw.count - 1) * digits + Count_Digits(raw.limbs[raw.count - 1]);
    if (length > digits_kept) {
      const std::size_t first = Cut(raw, length - digits_kept);
      raw.limbs += first;
      raw.count -= first;
      raw.low += static_cast<std::int64_t>(first);
    }
  }
  Trim(raw, result);
}

}  // namespace quorvex::limbs
