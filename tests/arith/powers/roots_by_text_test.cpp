// Roots against the same iterations on texts, every step from text to text and every end told by
// characters.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string>
#include <string_view>

#include "arith/do_operation.h"
#include "arith/powers/mean_root.h"
#include "arith/powers/newton_root.h"
#include "arith/powers/power_function.h"
#include "arith/powers/root_estimate.h"
#include "host/run_time_failure.h"
#include "support/random_numbers.h"
#include "support/text_steps.h"
#include "text/compare_numbers.h"
#include "text/decimal.h"
#include "text/format_result.h"
#include "text/primitives.h"
#include "text/round_to_length.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

std::size_t Integer_Digits(const std::string& text) {
  return std::min(text.find('.'), text.size());
}

std::size_t Zeros_Behind_Separator(const std::string& text) {
  if (!text.starts_with("0.")) return 0;
  return std::min(text.find_first_not_of('0', 2), text.size()) - 2;
}

int Leading_Power(const std::string& text) {
  if (!text.starts_with('0')) return static_cast<int>(Integer_Digits(text)) - 1;
  return -static_cast<int>(Zeros_Behind_Separator(text)) - 1;
}

// The first `count` characters agree, zeros thought behind the shorter text.
bool Agree(std::string a, std::string b, std::size_t count) {
  std::string& shorter = a.size() < b.size() ? a : b;
  const std::string& longer = a.size() < b.size() ? b : a;
  if (longer.size() > shorter.size() && longer[shorter.size()] == '.') shorter += '.';
  shorter.resize(longer.size(), '0');
  return a.substr(0, count) == b.substr(0, count);
}

// The end of a square root, for a limit of `limit` digits and one more.
struct Ends {
  int limit;

  bool is_close(const std::string& difference, const std::string& value) const {
    return difference == "0" || Leading_Power(difference) <= Leading_Power(value) - limit;
  }

  // Which significant digit stands at a place.
  int digit_at(const std::string& quotient, std::size_t place) const {
    const std::size_t zeros = quotient.front() == '0' ? 1 + Zeros_Behind_Separator(quotient) : 0;
    return static_cast<int>(place + (place < Integer_Digits(quotient) ? 1 : 0)) -
           static_cast<int>(zeros);
  }

  void cut(std::string& quotient, std::size_t count) const {
    const std::size_t integer = Integer_Digits(quotient);
    if (count < quotient.size()) quotient.resize(count);
    if (count < integer) quotient.resize(integer, '0');
  }

  void cut_at_limit(std::string& quotient) const {
    cut(quotient, static_cast<std::size_t>(limit) + 1 + Zeros_Behind_Separator(quotient));
  }

  // Whether one is the other rounded; the quotient then is the shorter.
  bool round(std::string& quotient, const std::string& mean) const {
    const std::string longer = quotient.size() > mean.size() ? quotient : mean;
    const std::string shorter = quotient.size() > mean.size() ? mean : quotient;
    const std::size_t last = shorter.size() - 1;
    if (longer.size() == shorter.size() || !Agree(quotient, mean, last)) return false;
    if (longer[last] == '.' || longer[last + 1] == '.') return false;
    if (shorter[last] - longer[last] != (longer[last + 1] >= '5' ? 1 : 0)) return false;
    quotient = shorter;
    return true;
  }

  bool meet(std::string& quotient, const std::string& mean) const {
    if (Integer_Digits(quotient) != Integer_Digits(mean)) return false;
    const std::size_t longer = std::max(quotient.size(), mean.size());
    const std::size_t shorter = std::min(quotient.size(), mean.size());
    if (static_cast<int>(mean.size()) > limit + 1 || longer == shorter + 1) {
      const std::size_t place = mean.find_first_of("123456789", shorter);
      const bool is_told = place == std::string::npos || digit_at(quotient, place) > limit;
      if (mean.starts_with(quotient) && is_told) return true;
      if (longer == shorter && Agree(quotient, mean, longer - 1) &&
          digit_at(quotient, longer - 1) > limit) {
        cut(quotient, longer - 1);
        return true;
      }
    }
    const std::size_t kept = static_cast<std::size_t>(limit) + 1 + Zeros_Behind_Separator(quotient);
    if (Agree(quotient, mean, kept)) {
      cut(quotient, kept);
      return true;
    }
    return longer == shorter + 1 && digit_at(quotient, shorter) > limit && round(quotient, mean);
  }
};

std::string Mean_Root_By_Text(const std::string& radicand, std::string mean, int limit) {
  const Text_Steps steps{static_cast<double>(limit + 2)};
  const Ends ends{limit};
  std::string quotient;
  std::string last;
  int stalls = 0;
  for (int round = 1;; ++round) {
    std::string difference;
    if (round > 1) difference = Strip_Sign(steps.difference(quotient, mean));
    if (round > 3 && Is_At_Least(difference, last) && ++stalls >= 3) {
      if (ends.is_close(difference, quotient)) {
        if (!ends.round(quotient, mean)) ends.cut_at_limit(quotient);
        return quotient;
      }
      if (stalls > 3) return "#NUM!";
    }
    last = difference;
    quotient = steps.quotient(radicand, mean);
    mean = steps.quotient(steps.sum(quotient, mean), "2");
    if (ends.meet(quotient, mean)) return quotient;
  }
}

// The value before the last, or a token; "too long" where values don't come to rest soon.
std::string Newton_Root_By_Text(const std::string& radicand, const std::string& degree,
                                std::string value, const Newton_Limits& limits) {
  const Text_Steps steps{limits.steps};
  const std::string less_one = steps.difference(degree, "1");
  std::array<std::string, 10> history;
  int repeats = 0;
  for (std::size_t round = 0; round < 400; ++round) {
    std::string before = value;
    const std::string quotient = steps.quotient(radicand, steps.power(value, less_one));
    value = steps.quotient(steps.sum(steps.product(less_one, value), quotient), degree);
    if (Has_Token_Mark(value)) return value;
    if (static_cast<double>(value.size()) > limits.maxSD && value.size() == before.size() + 1 &&
        value.starts_with(before)) {
      return before;
    }
    const std::string rounded = Round_To_Length(value, limits.maxSD - 1);
    repeats += static_cast<int>(std::count(history.begin(), history.end(), rounded));
    if (repeats >= 10) return "#NUM!";
    history[round % history.size()] = rounded;
    if (Is_Equal(rounded, Round_To_Length(before, limits.maxSD - 1))) return before;
  }
  return "too long";
}

// Next to a power of ten or of a short number, or any digits, at any scale.
std::string Radicand(Random_Numbers& random) {
  const std::size_t length = 1 + random.length(random.one_in(8) ? 300 : 40);
  Decimal number;
  switch (random.below(4)) {
    case 0:
      number.digits = std::string(length, '9') + random.one_of("9987");
      break;
    case 1:
      number.digits = random.one_of("1149") + std::string(length, '0') + random.one_of("0125");
      break;
    case 2: {
      const std::string root = std::to_string(1 + random.below(99999));
      number.digits = Text_Steps{100}.power(root, std::to_string(2 + random.below(3)));
      if (random.one_in(2)) number.digits = Text_Steps{100}.sum(number.digits, "1");
      break;
    }
    default:
      number.digits = random.digits(length) + random.one_of("123456789");
  }
  const auto scale = static_cast<std::int64_t>(number.digits.size());
  number.power_of_ten = static_cast<std::int64_t>(random.below(random.one_in(9) ? 700 : 60));
  if (random.one_in(2)) number.power_of_ten = -number.power_of_ten;
  if (random.one_in(2)) number.power_of_ten -= scale - scale % 2;
  Strip_Zeros(number);
  return Plain_Text(number);
}

// Limits around those where a limb more is needed, too.
int Limit(Random_Numbers& random) {
  if (random.one_in(3)) return 1 + static_cast<int>(random.below(24));
  if (random.one_in(3)) return static_cast<int>(18 * (1 + random.below(11)) + random.below(7)) - 3;
  return 1 + static_cast<int>(random.below(200));
}

int Rounds(int usual) {
  const char* const asked = std::getenv("QUORVEX_ROUNDS");
  return asked == nullptr ? usual : std::atoi(asked);
}

// As a result is written.
NumberText Written(Decimal root, int limit) {
  type_Restrictionator options;
  options.maxSD = limit + 1;
  return Format_Result(std::move(root), options, true);
}

// What the work gives, or how it fails: values of a sign alone can't be compared on either road.
template <typename Work>
NumberText Outcome_Of(const Work& work) {
  try {
    return work();
  } catch (const Run_Time_Failure& failure) {
    return failure.what();
  }
}

TEST(Roots, OfDegreeTwoAreThoseOfStepsOnText) {
  Random_Numbers random(1411);
  for (int round = Rounds(4000); round > 0; --round) {
    const std::string radicand = Radicand(random);
    if (radicand == "0" || radicand == "1") continue;
    const int limit = Limit(random);
    const std::string start =
        random.one_in(20) ? "1" : Root_Estimate(Step_Number(radicand), Step_Number(2)).text();
    ASSERT_EQ(Written(Mean_Root(Step_Number(radicand), Step_Number(start), limit + 1), limit),
              Written(Read_Decimal(Mean_Root_By_Text(radicand, start, limit)), limit))
        << radicand << " from " << start << " at " << limit;
  }
}

// The way from 1 to a root beyond floats is long, and most of it is halves.
TEST(Roots, FarFromTheirEstimateAreThoseOfStepsOnText) {
  Random_Numbers random(1413);
  for (int round = Rounds(60); round > 0; --round) {
    std::string radicand = random.one_of("123456789") + random.digits(random.below(30));
    const std::string zeros(310 + random.below(300), '0');
    radicand = random.one_in(2) ? radicand + zeros : "0." + zeros + radicand + "1";
    const int limit = 1 + static_cast<int>(random.below(random.one_in(2) ? 8 : 60));
    ASSERT_EQ(Written(Mean_Root(Step_Number(radicand), Step_Number(1), limit + 1), limit),
              Written(Read_Decimal(Mean_Root_By_Text(radicand, "1", limit)), limit))
        << radicand << " at " << limit;
  }
}

TEST(Roots, OfAnyDegreeAreThoseOfStepsOnText) {
  constexpr const char* degrees[] = {"3", "4", "5", "7", "10", "1.5", "2.5", "0.5", "0.75", "100"};
  Random_Numbers random(1412);
  int compared = 0;
  for (int round = Rounds(1500); round > 0; --round) {
    const std::string degree = degrees[random.below(std::size(degrees))];
    const bool is_negative = random.one_in(9) && (degree == "3" || degree == "5" || degree == "7");
    const std::string radicand = (is_negative ? "-" : "") + Radicand(random);
    const int limit = Limit(random) / (degree.size() > 2 ? 4 : 1) + 1;
    const std::string start = Root_Estimate(Step_Number(radicand), Step_Number(degree)).text();
    if (radicand == "0" || radicand == "1" || start == "1") continue;
    const Newton_Limits limits{limit + 1.0, limit + 1.0 + static_cast<double>(random.below(60))};
    bool is_too_long = false;
    const NumberText expected = Outcome_Of([&] {
      const NumberText root = Newton_Root_By_Text(radicand, degree, start, limits);
      is_too_long = root == "too long";
      return is_too_long ? root : Written(Read_Decimal(root), limit);
    });
    if (is_too_long) continue;
    const NumberText root = Outcome_Of([&] {
      const Step_Number number(radicand);
      return Written(Newton_Root(number, Step_Number(degree), Step_Number(start), limits, Power),
                     limit);
    });
    ASSERT_EQ(root, expected) << radicand << " degree " << degree << " at " << limit;
    ++compared;
  }
  EXPECT_GT(compared, 200);
}

}  // namespace
}  // namespace quorvex
