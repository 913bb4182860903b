#include "lists/number_filter.h"

#include <cstddef>

#include "host/platform.h"
#include "host/utf8.h"
#include "text/primitives.h"

namespace quorvex {
namespace {

std::string_view Without_Last_Character(std::string_view text) {
  text.remove_suffix(Last_Character_Bytes(text));
  return text;
}

}  // namespace

Number_Filter::Number_Filter(std::string& result)
    : result_(result), decimal_separator_(Decimal_Separator()) {}

void Number_Filter::take(std::string_view character) {
  const auto first = static_cast<unsigned char>(character.front());
  if (first < '0') {
    take_mark(character);
  } else if (first <= '9') {
    take_digit();
    keep(character);
  } else {
    take_other(character);
  }
}

void Number_Filter::take_mark(std::string_view character) {
  if (character == decimal_separator_) {
    take_separator();
  } else if (character == "-") {
    take_minus();
  } else if (character == "(") {
    paren_open_ = paren_open_ || !number_started_;
  } else if (character == ")") {
    paren_closed_ = paren_closed_ || paren_open_;
  } else if (character == "+" && exponent_open_ && exponent_pending_) {
    write_exponent("E+");
  }
}

void Number_Filter::take_separator() {
  if (decimal_seen_) return;
  number_started_ = decimal_seen_ = true;
  paren_closed_ = false;
  if (exponent_open_) {
    exponent_armed_ = true;
    exponent_pending_ = false;
  }
  keep(decimal_separator_);
}

void Number_Filter::take_minus() {
  if (!number_started_) {
    paren_open_ = paren_closed_ = false;
    number_started_ = true;
    keep("-");
  } else if (exponent_pending_) {
    write_exponent("E-");
  }
}

void Number_Filter::take_digit() {
  exponent_pending_ = paren_closed_ = false;
  number_started_ = true;
  if (!exponent_open_) return;
  if (!first_digit_seen_) {
    first_digit_seen_ = exponent_armed_ = true;
  } else if (!decimal_seen_) {
    exponent_open_ = exponent_armed_ = false;  // two integer digits: no mantissa
  }
}

void Number_Filter::take_other(std::string_view character) {
  if (character == "E" && exponent_armed_ && !exponent_done_) exponent_pending_ = true;
}

void Number_Filter::write_exponent(std::string_view text) {
  keep(text);
  exponent_done_ = true;
  exponent_open_ = exponent_armed_ = first_digit_seen_ = exponent_pending_ = false;
}

void Number_Filter::finish() {
  if (result_.ends_with('E')) result_.pop_back();
  const std::string_view one_less = Without_Last_Character(result_);
  if (one_less.ends_with('E')) result_.resize(one_less.size() - 1);
  if (paren_closed_) result_.insert(0, 1, '-');
}

std::string Filtered_Number(std::string_view text) {
  std::string result;
  Number_Filter filter(result);
  std::size_t taken = 0;
  while (!text.empty()) {
    if (++taken % digits_between_yields == 0) Yield();
    const std::size_t bytes = First_Character_Bytes(text);
    filter.take(text.substr(0, bytes));
    text.remove_prefix(bytes);
  }
  filter.finish();
  return result;
}

}  // namespace quorvex
