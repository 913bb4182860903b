// How the host reads a 64-bit float from text.
//
//   text    = wrapped, with blanks around each of its pieces
//   wrapped = [symbol] (number | sign number | "(" number ")") [symbol]
//             where the symbol stands once at most, and inside the sign or outside it
//   number  = whole ["." digits] or "." digits, then perhaps E, a sign, and digits
//   whole   = digits, with thousands separators between them
#include <charconv>
#include <cmath>
#include <string>
#include <string_view>

#include "host/conversions.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "host/shown_text.h"

namespace quorvex {

namespace {

bool Is_Digit(char c) {
  return c >= '0' && c <= '9';
}

bool Take_Prefix(std::string_view& text, std::string_view prefix) {
  if (prefix.empty() || !text.starts_with(prefix)) return false;
  text.remove_prefix(prefix.size());
  return true;
}

bool Take_Suffix(std::string_view& text, std::string_view suffix) {
  if (suffix.empty() || !text.ends_with(suffix)) return false;
  text.remove_suffix(suffix.size());
  return true;
}

/// Blanks of every width: systems set narrow and unbreakable ones beside a currency symbol.
constexpr std::string_view blanks[] = {" ", "\t", "\n", "\r", "\u00A0", "\u202F"};

/// Printable ASCII, which begins and ends no blank.
bool Is_Solid(char c) {
  return c > ' ' && c <= '~';
}

void Trim(std::string_view& text) {
  for (bool found = true; found;) {
    if (text.empty() || (Is_Solid(text.front()) && Is_Solid(text.back()))) return;
    found = false;
    for (const std::string_view blank : blanks)
      found = Take_Prefix(text, blank) || Take_Suffix(text, blank) || found;
  }
}

/// Reads one text. Each step takes its piece off `rest_` and says whether the piece is well formed.
class Number_Reader {
 public:
  explicit Number_Reader(std::string_view text) : rest_(text) {}

  bool read() {
    Trim(rest_);
    take_symbol();
    if (!take_sign()) return false;
    take_symbol();
    return take_mantissa() && take_exponent() && rest_.empty();
  }

  /// After `read`. Infinite for what is too large.
  double value() const {
    double number = 0;
    const char* const end = plain_.data() + plain_.size();
    // Out of range tells nothing of the direction; the place of the first digit does.
    if (std::from_chars(plain_.data(), end, number).ec == std::errc::result_out_of_range)
      number = power_ > 0 ? HUGE_VAL : 0;
    return negative_ ? -number : number;
  }

 private:
  void take_symbol() {
    std::string_view symbol = Current_Currency().symbol();
    Trim(symbol);
    if (symbol_taken_) return;
    symbol_taken_ = Take_Prefix(rest_, symbol) || Take_Suffix(rest_, symbol);
    if (symbol_taken_) Trim(rest_);
  }

  bool take_sign() {
    if (Take_Prefix(rest_, "(")) {
      negative_ = true;
      if (!Take_Suffix(rest_, ")")) return false;
    } else {
      negative_ = Take_Prefix(rest_, "-");
      if (!negative_) Take_Prefix(rest_, "+");
    }
    Trim(rest_);
    return true;
  }

  std::size_t take_digits() {
    std::size_t count = 0;
    while (count < rest_.size() && Is_Digit(rest_[count])) ++count;
    plain_ += rest_.substr(0, count);
    rest_.remove_prefix(count);
    return count;
  }

  bool take_mantissa() {
    std::size_t digits = take_digits();
    while (digits > 0 && Take_Prefix(rest_, separators_.thousands()))
      if (take_digits() == 0) return false;
    const std::size_t whole = plain_.size();
    if (Take_Prefix(rest_, separators_.decimal())) {
      plain_ += '.';
      digits += take_digits();
    }
    const std::size_t first = plain_.find_first_not_of("0.");
    if (first != std::string::npos)
      power_ = static_cast<double>(whole) - static_cast<double>(first);
    return digits > 0;
  }

  bool take_exponent() {
    if (!Take_Prefix(rest_, "E") && !Take_Prefix(rest_, "e")) return true;
    const bool negative = Take_Prefix(rest_, "-");
    if (!negative) Take_Prefix(rest_, "+");
    plain_ += negative ? "E-" : "E+";
    const std::size_t at = plain_.size();
    if (take_digits() == 0) return false;
    double exponent = 0;
    for (const char digit : std::string_view(plain_).substr(at))
      exponent = exponent * 10 + (digit - '0');
    power_ += negative ? -exponent : exponent;
    return true;
  }

  Separators separators_ = Current_Separators();
  std::string_view rest_;
  std::string plain_;  // what from_chars understands: digits, a dot, an exponent
  double power_ = 0;   // about the power of ten of the number
  bool negative_ = false;
  bool symbol_taken_ = false;
};

}  // namespace

double Text_To_Number(std::string_view text) {
  Number_Reader reader(text);
  if (!reader.read())
    throw Run_Time_Failure(Failure_Number::type_mismatch, Shown_Text(text) + " is not a number.");
  const double number = reader.value();
  if (std::isinf(number)) {
    throw Run_Time_Failure(Failure_Number::overflow,
                           Shown_Text(text) + " is too large for a number of the host.");
  }
  return number;
}

}  // namespace quorvex
