#include "text/round_to_sd.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>
#include <utility>

#include "host/conversions.h"
#include "host/run_time_failure.h"
#include "text/digit_runs.h"
#include "text/expand_exponent.h"
#include "text/primitives.h"
#include "text/single_byte_separator.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

// Places count from 1, as the limit does.
using Place = std::int64_t;

// The text while it is rounded, its separator (if any) as one byte.
class Rounding {
 public:
  Rounding(std::string text, char dot) : text_(std::move(text)), dot_(dot) {}

  std::string round(Place limit) {
    if (has_dot()) strip_trailing_zeros();
    strip_leading_zeros();
    if (text_.empty() || text_ == std::string(1, dot_)) return "0";
    dot_place_ = static_cast<Place>(text_.find(dot_) + 1);  // 0 if there is none
    limit += dot_place_ == 0 ? static_cast<Place>(Count_Trailing_Zeros(text_))
                             : Place{dot_place_ <= limit};
    if (length() < limit) {
      strip_trailing_dot();
      return text_;
    }
    cut_at(limit);
    clean();
    return text_;
  }

 private:
  Place length() const { return static_cast<Place>(text_.size()); }
  bool has_dot() const { return text_.find(dot_) != std::string::npos; }
  char& at(Place place) { return text_[static_cast<std::size_t>(place - 1)]; }

  int digit_at(Place place) {
    const char character = at(place);
    if (character < '0' || character > '9') {
      throw Run_Time_Failure(Failure_Number::type_mismatch, "A digit was expected.");
    }
    return character - '0';
  }

  void cut_at(Place limit) {
    if (digit_at(limit) < 5) {
      keep(limit - 1);
      return;
    }
    Place last = limit - 1;
    while (last >= 1 && (at(last) == '9' || at(last) == dot_)) --last;
    if (last < 1) {
      // Every digit kept was a nine. Dropped digits that are none stay as they are.
      std::replace(text_.begin(), text_.end(), '9', '0');
      text_.insert(0, 1, '1');
      return;
    }
    const int digit = digit_at(last);
    at(last) = static_cast<char>('1' + digit);
    keep(last);
  }

  // Puts zeros in the place of what stands behind the first characters. The separator stays.
  void keep(Place count) {
    std::fill(text_.begin() + count, text_.end(), '0');
    if (dot_place_ > count) at(dot_place_) = dot_;
  }

  void clean() {
    if (dot_place_ != 0) {
      strip_trailing_zeros();
      strip_trailing_dot();
    }
    strip_leading_zeros();
    strip_trailing_dot();
  }

  void strip_trailing_zeros() { text_.resize(text_.size() - Count_Trailing_Zeros(text_)); }

  void strip_trailing_dot() {
    if (text_.ends_with(dot_)) text_.pop_back();
  }

  // A zero directly before the separator stays.
  void strip_leading_zeros() {
    std::size_t zeros = Count_Leading_Zeros(text_);
    if (zeros > 0 && zeros < text_.size() && text_[zeros] == dot_) --zeros;
    text_.erase(0, zeros);
  }

  std::string text_;
  char dot_;
  Place dot_place_ = 0;
};

Place Whole_Limit(double digits) {
  constexpr double far = 1e15;  // beyond the length of any text
  return static_cast<Place>(Nearest(std::fmin(digits, far))) + 1;
}

std::string Normalise(std::string num) {
  Remove_Currency_Symbol(num);
  Remove_Thousands_Separators(num);
  return Expand_Exponent(num);
}

}  // namespace

HostValue Round_To_SD(NumberText num, const HostValue& maxSD) {
  const double digits = To_Number(maxSD);
  if (!(digits >= 1)) return 0;
  if (const auto token = Token_Of(num)) return *token;
  const Place limit = Whole_Limit(digits);
  if (Has_Non_Digit(num)) num = Normalise(std::move(num));
  return With_Single_Byte_Separator(std::move(num), [&](std::string text, char dot) {
    return Rounding(std::move(text), dot).round(limit);
  });
}

void Round_Digits(NumberText& digits, std::int32_t maxSD) {
  const std::size_t limit = static_cast<std::size_t>(maxSD) + 1 + Count_Trailing_Zeros(digits);
  if (digits.size() < limit) return;
  std::size_t kept = limit - 1;
  if (digits[kept] >= '5') {
    while (kept > 0 && digits[kept - 1] == '9') --kept;
    if (kept == 0) {
      std::replace(digits.begin(), digits.end(), '9', '0');
      digits.insert(0, 1, '1');
      return;
    }
    ++digits[kept - 1];
  }
  std::fill(digits.begin() + static_cast<std::ptrdiff_t>(kept), digits.end(), '0');
}

}  // namespace quorvex
