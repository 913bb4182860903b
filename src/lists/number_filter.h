// Keeping one number of a text.
#pragma once

#include <string>
#include <string_view>

namespace quorvex {

/// Takes a text character by character and appends to a result what belongs to one number: its
/// digits, the first decimal separator, a minus ahead of them, and an exponent behind a mantissa
/// with one integer digit, "E" and its sign always together. Parentheses around make it negative.
///
/// Only separators among the characters before "0" are looked at: the decimal separators of some
/// locales stand behind the digits and are dropped as letters are.
class Number_Filter {
 public:
  /// The decimal separator is that of the locale at this moment.
  explicit Number_Filter(std::string& result);

  void take(std::string_view character);

  /// Drops a last "E", then the last two characters where the first of them is "E" (an exponent
  /// without digits), and puts a minus before a number in parentheses. It is the end of the whole
  /// result that is looked at, with whatever others have appended to it.
  void finish();

 private:
  void take_mark(std::string_view character);
  void take_separator();
  void take_minus();
  void take_digit();
  void take_other(std::string_view character);
  void write_exponent(std::string_view text);
  void keep(std::string_view character) { result_ += character; }

  std::string& result_;
  std::string decimal_separator_;
  bool number_started_ = false;    // a digit, a separator or a leading minus has been kept
  bool decimal_seen_ = false;      // a separator has been kept
  bool paren_open_ = false;        // "(" came before the number
  bool paren_closed_ = false;      // ")" came after it, and no digit or separator since
  bool exponent_open_ = true;      // an exponent can still begin
  bool first_digit_seen_ = false;  // the first digit of the number has been kept
  bool exponent_armed_ = false;    // a mantissa stands: "E" may begin an exponent
  bool exponent_pending_ = false;  // "E" has been seen and waits for its sign
  bool exponent_done_ = false;     // an exponent with its sign has been written
};

/// What the filter keeps of a text.
std::string Filtered_Number(std::string_view text);

}  // namespace quorvex
