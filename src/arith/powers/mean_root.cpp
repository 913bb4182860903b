#include "arith/powers/mean_root.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "arith/operation/do_operation.h"
#include "host/conversions.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "text/compare_numbers.h"
#include "text/digit_runs.h"
#include "text/primitives.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

constexpr int stalls_before_end = 3;
constexpr int rounds_before_stalls = 3;

bool Is_At_Least(const NumberText& a, const NumberText& b) {
  const HostValue answer = Compare_Numbers(a, b, true, true);
  if (answer.is_text()) {
    throw Run_Time_Failure(Failure_Number::type_mismatch, "A root's value can't be compared.");
  }
  return answer.boolean();
}

bool Is_Digit(char character) {
  return character >= '0' && character <= '9';
}

// The power of ten of the leading digit, of a magnitude above 0.
double Leading_Power(std::string_view number) {
  const std::string& separator = Decimal_Separator();
  const std::size_t place = std::min(number.find(separator), number.size());
  if (!number.starts_with('0')) return static_cast<double>(place) - 1;
  number.remove_prefix(std::min(place + separator.size(), number.size()));
  return -static_cast<double>(Count_Leading_Zeros(number)) - 1;
}

// Whether the difference is less than one unit of the last of so many digits of the value.
bool Is_Below_Digits(const NumberText& difference, const NumberText& value, double count) {
  return difference == "0" || Leading_Power(difference) <= Leading_Power(value) - Nearest(count);
}

// The quotient and the mean, their separator as one byte, so that characters can be counted.
class Pair {
 public:
  Pair(NumberText& quotient, NumberText& mean) : quotient_(quotient), mean_(mean) {
    if (separator_.size() == 1) return;
    for (NumberText* text : {&quotient_, &mean_}) {
      const std::size_t place = text->find(separator_);
      if (place != NumberText::npos) text->replace(place, separator_.size(), 1, stand_in);
    }
  }
  Pair(const Pair&) = delete;
  Pair& operator=(const Pair&) = delete;
  ~Pair() {
    if (separator_.size() == 1) return;
    for (NumberText* text : {&quotient_, &mean_}) {
      const std::size_t place = text->find(stand_in);
      if (place != NumberText::npos) text->replace(place, 1, separator_);
    }
  }

  /// True if the two agree as far as a limit of `maxSD` asks; the quotient is cut there. How they
  /// end says something only where they differ behind all digits of the limit: others end alike by
  /// chance, as 1 and 1.00005 do on the way to a root of 1.0001.
  bool settle(double maxSD) {
    // Digits of different worth don't agree, whatever they are.
    if (integer_digits(quotient_) != integer_digits(mean_)) return false;
    const std::size_t longer = std::max(quotient_.size(), mean_.size());
    const std::size_t shorter = std::min(quotient_.size(), mean_.size());
    const bool has_end = static_cast<double>(mean_.size()) > maxSD || longer == shorter + 1;
    if (has_end && mean_.starts_with(quotient_)) {
      const std::size_t place = mean_.find_first_of("123456789", shorter);
      if (place == std::string::npos || is_behind(place, maxSD)) return true;
    }
    if (has_end && longer == shorter && agree_to(longer - 1) && is_behind(longer - 1, maxSD)) {
      cut(longer - 1);
      return true;
    }
    const std::size_t kept = kept_characters(maxSD);
    if (agree_to(kept)) {
      cut(kept);
      return true;
    }
    return longer == shorter + 1 && is_behind(shorter, maxSD) && round_longer();
  }

  /// True if one of them is the other one rounded to fewer characters; both then are the shorter.
  bool round_longer() {
    NumberText& longer = quotient_.size() > mean_.size() ? quotient_ : mean_;
    const NumberText& shorter = quotient_.size() > mean_.size() ? mean_ : quotient_;
    if (longer.size() == shorter.size() || shorter.empty()) return false;
    const std::size_t last = shorter.size() - 1;
    if (!agree_to(last) || !Is_Digit(longer[last]) || !Is_Digit(longer[last + 1])) return false;
    if (shorter[last] - longer[last] != (longer[last + 1] >= '5' ? 1 : 0)) return false;
    longer = shorter;
    return true;
  }

  /// Cuts the quotient to the digits that a limit of `maxSD` keeps.
  void cut_quotient(double maxSD) { cut(kept_characters(maxSD)); }

 private:
  static constexpr char stand_in = '\x1f';

  char separator() const { return separator_.size() == 1 ? separator_.front() : stand_in; }

  std::size_t integer_digits(const NumberText& text) const {
    return std::min(text.find(separator()), text.size());
  }

  // As if the shorter one had zeros behind it.
  bool agree_to(std::size_t count) const {
    const std::size_t shorter = std::min({quotient_.size(), mean_.size(), count});
    if (quotient_.compare(0, shorter, mean_, 0, shorter) != 0) return false;
    std::string_view rest = quotient_.size() > mean_.size() ? quotient_ : mean_;
    rest = rest.substr(0, count).substr(shorter);
    if (rest.starts_with(separator())) rest.remove_prefix(1);
    return Count_Leading_Zeros(rest) == rest.size();
  }

  std::size_t kept_characters(double maxSD) const {
    const double count = Nearest(maxSD);
    if (count < 0) {
      throw Run_Time_Failure(Failure_Number::invalid_call, "There are no digits to keep.");
    }
    return static_cast<std::size_t>(count) + zeros_behind_separator();
  }

  // Whether the digit at the place stands behind those of the caller's limit, which is one less.
  bool is_behind(std::size_t place, double maxSD) const {
    const std::size_t zeros = quotient_.starts_with('0') ? 1 + zeros_behind_separator() : 0;
    const std::size_t digits = place + (place < integer_digits(quotient_) ? 1 : 0) - zeros;
    return static_cast<double>(digits) > Nearest(maxSD - 1);
  }

  // They are no part of what a limit counts.
  std::size_t zeros_behind_separator() const {
    if (quotient_.size() < 2 || quotient_[0] != '0' || quotient_[1] != separator()) return 0;
    return Count_Leading_Zeros(std::string_view(quotient_).substr(2));
  }

  // Integer digits that are cut away come back as zeros.
  void cut(std::size_t count) {
    const std::size_t integer = integer_digits(quotient_);
    if (count < quotient_.size()) quotient_.resize(count);
    if (count < integer) quotient_.resize(integer, '0');
  }

  const std::string& separator_ = Decimal_Separator();
  NumberText& quotient_;
  NumberText& mean_;
};

// Counts how often the difference of the two has not become less.
class Stalls {
 public:
  /// The count, if the round stalls; otherwise 0.
  int see(NumberText difference) {
    ++round_;
    const bool stalls = round_ > rounds_before_stalls && Is_At_Least(difference, last_);
    last_ = std::move(difference);
    return stalls ? ++count_ : 0;
  }

  const NumberText& difference() const { return last_; }

 private:
  int round_ = 0;
  int count_ = 0;
  NumberText last_;
};

}  // namespace

NumberText Mean_Root(const NumberText& radicand, NumberText start, double maxSD) {
  const double limit = maxSD + 1;
  NumberText mean = std::move(start);
  NumberText quotient;
  Stalls stalls;
  for (;;) {
    Yield();
    NumberText difference;
    if (!quotient.empty()) {
      difference = Intermediate(operation::subtract, quotient, mean, limit);
      if (Has_Token_Mark(difference)) return difference;
      difference = NumberText(Strip_Sign(difference));
    }
    const int count = stalls.see(std::move(difference));
    if (count >= stalls_before_end) {
      // Neighbours that never meet have the root between them.
      if (Is_Below_Digits(stalls.difference(), quotient, maxSD - 1)) {
        Pair pair(quotient, mean);
        if (!pair.round_longer()) pair.cut_quotient(maxSD);
        break;
      }
      if (count > stalls_before_end) return NumberText(num_token);
    }
    quotient = Intermediate(operation::divide, radicand, mean, limit);
    if (Has_Token_Mark(quotient)) return quotient;
    NumberText sum = Intermediate(operation::add, quotient, mean, limit);
    if (Has_Token_Mark(sum)) return sum;
    mean = Intermediate(operation::divide, sum, "2", limit);
    if (Has_Token_Mark(mean)) return mean;
    if (Pair(quotient, mean).settle(maxSD)) break;
    // Limits below 0 and next to the ceiling can leave nothing.
    if (quotient.empty() || mean.empty()) {
      throw Run_Time_Failure(Failure_Number::type_mismatch, "A value of a root has no digits.");
    }
  }
  return quotient;
}

}  // namespace quorvex
