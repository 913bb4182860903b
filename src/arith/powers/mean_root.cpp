#include "arith/powers/mean_root.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <string>
#include <string_view>
#include <utility>

#include "arith/operation/four_operations.h"
#include "arith/operation/operation_codes.h"
#include "host/conversions.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "text/compare_numbers.h"
#include "text/digit_runs.h"
#include "text/primitives.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

constexpr int stalls_before_trimming = 3;
constexpr int rounds_before_stalls = 3;

bool Is_True_Answer(const HostValue& answer) {
  if (answer.is_text()) {
    throw Run_Time_Failure(Failure_Number::type_mismatch, "A root's value can't be compared.");
  }
  return answer.boolean();
}

bool Is_Equal(const NumberText& a, const NumberText& b) {
  return Is_True_Answer(Compare_Numbers(a, b, true, false));
}

int Digit_At(const std::string& text, std::size_t place) {
  const char character = text[place];
  if (character < '0' || character > '9') {
    throw Run_Time_Failure(Failure_Number::type_mismatch, "A digit was expected.");
  }
  return character - '0';
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

  /// True if the two agree as far as a limit of `maxSD` asks; the quotient is cut there. Where only
  /// their lengths differ, by one, the longer one is rounded to the other.
  bool settle(double maxSD) {
    const std::size_t longer = std::max(quotient_.size(), mean_.size());
    const std::size_t shorter = std::min(quotient_.size(), mean_.size());
    if (static_cast<double>(mean_.size()) <= maxSD && longer != shorter + 1) return false;
    // Digits of different worth don't agree, whatever they are.
    if (integer_digits(quotient_) != integer_digits(mean_)) return false;
    if (mean_.starts_with(quotient_)) return true;
    if (agree_to(quotient_.size() - 1) && quotient_.size() == mean_.size()) {
      cut(quotient_.size() - 1);
      return true;
    }
    const double count = Nearest(maxSD);
    if (count < 0) {
      throw Run_Time_Failure(Failure_Number::invalid_call, "There are no digits to keep.");
    }
    const std::size_t kept = static_cast<std::size_t>(count) + zeros_behind_separator();
    if (agree_to(kept)) {
      cut(kept);
      return true;
    }
    if (longer == shorter + 1 && agree_to(shorter - 1)) round_longer();
    return false;
  }

  /// Cuts the longer one to the length of the other, half up. A nine that is counted up becomes a
  /// ten.
  void trim() {
    const std::size_t length = std::min(quotient_.size(), mean_.size());
    NumberText& longer = quotient_.size() > mean_.size() ? quotient_ : mean_;
    if (longer.size() == length) return;
    const bool up = Digit_At(longer, length) >= 5;
    longer.resize(length);
    if (!up) return;
    const int last = Digit_At(longer, length - 1);
    longer.pop_back();
    longer += std::to_string(last + 1);
  }

 private:
  static constexpr char stand_in = '\x1f';

  char separator() const { return separator_.size() == 1 ? separator_.front() : stand_in; }

  std::size_t integer_digits(const NumberText& text) const {
    return std::min(text.find(separator()), text.size());
  }

  bool agree_to(std::size_t count) const {
    return std::string_view(quotient_).substr(0, count) == std::string_view(mean_).substr(0, count);
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

  void round_longer() {
    NumberText& longer = quotient_.size() > mean_.size() ? quotient_ : mean_;
    const NumberText& other = quotient_.size() > mean_.size() ? mean_ : quotient_;
    const std::size_t last = other.size() - 1;
    const int kept = Digit_At(longer, last);
    const bool up = Digit_At(longer, last + 1) >= 5;
    if (Digit_At(other, last) == kept + (up ? 1 : 0)) longer = other;
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
    const bool stalls = round_ > rounds_before_stalls &&
                        Is_True_Answer(Compare_Numbers(difference, last_, true, true));
    last_ = std::move(difference);
    return stalls ? ++count_ : 0;
  }

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
    if (count > stalls_before_trimming) return NumberText(num_token);
    if (count == stalls_before_trimming) {
      Pair(quotient, mean).trim();
      if (Is_Equal(mean, quotient)) return quotient;
    }
    quotient = Intermediate(operation::divide, radicand, mean, limit);
    if (Has_Token_Mark(quotient)) return quotient;
    NumberText sum = Intermediate(operation::add, quotient, mean, limit);
    if (Has_Token_Mark(sum)) return sum;
    mean = Intermediate(operation::divide, sum, "2", limit);
    if (Has_Token_Mark(mean)) return mean;
    if (Pair(quotient, mean).settle(maxSD)) return quotient;
    if (Is_Equal(mean, quotient)) return quotient;
  }
}

}  // namespace quorvex
