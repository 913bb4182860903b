// Series summed up on shortened terms against the same series by exact steps.
#include "elementary/series/shortened_series.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <iterator>
#include <optional>
#include <string>

#include "elementary/exponential.h"
#include "elementary/logarithm.h"
#include "elementary/series/arc_tangent_series.h"
#include "elementary/series/sine_series.h"
#include "host/conversions.h"
#include "support/failures.h"
#include "support/random_numbers.h"

namespace quorvex {
namespace {

// Errors that are taken for larger by so many units of the sum's last place.
class Doubt {
 public:
  explicit Doubt(double doubt) : before_(Shortened_Series::Add_Doubt(doubt)) {}
  ~Doubt() { Shortened_Series::Add_Doubt(before_); }
  Doubt(const Doubt&) = delete;
  Doubt& operator=(const Doubt&) = delete;

 private:
  double before_;
};

constexpr double always_in_doubt = 1;

struct Series {
  const char* name;
  NumberText (*sum)(const NumberText& x, double limit);
  const char* whole_parts;  // what arguments begin with, one of these characters
  bool has_negative_arguments;
};

NumberText Logarithm(const NumberText& x, double limit) {
  return Ln_Function(x, Missing, limit);
}

NumberText Exponential(const NumberText& x, double limit) {
  return Exp_Function(x, Missing, limit);
}

template <auto series>
NumberText Sum_Of(const NumberText& x, double limit) {
  return series(Step_Number(x), Steps(limit)).text();
}

constexpr Series all_series[] = {{"sine", Sum_Of<Sin_Series>, "0001", true},
                                 {"cosine", Sum_Of<Cos_Series>, "0001", true},
                                 {"tangent", Sum_Of<Tan_Series>, "0001", true},
                                 {"arc tangent", Sum_Of<ATan_Series>, "0", true},
                                 {"logarithm", Logarithm, "000123456789", false},
                                 {"exponential", Exponential, "000123456789", true}};

// Random digits behind a few random zeros, at times so many that the terms vanish at once.
std::string Random_Argument(Random_Numbers& random, const Series& series, std::size_t digits) {
  constexpr const char* round[] = {"0.1", "0.01", "0.05", "0.25", "0.3", "0.001"};
  if (random.one_in(12)) return round[random.below(std::size(round))];
  std::string text(1, random.one_of(series.whole_parts));
  text +=
      "." + std::string(random.one_in(4) ? random.below(random.one_in(4) ? digits : 5) : 0, '0');
  // Half a unit and more would be beyond the series of the arc tangent.
  text += random.one_of("1234");
  const std::size_t length = random.one_in(3) ? random.below(5) : random.below(digits + 5);
  for (std::size_t place = 0; place < length; ++place) text += random.one_of("0123456789");
  text += random.one_of("123456789");
  return (series.has_negative_arguments && random.one_in(3) ? "-" : "") + text;
}

TEST(Shortened_Series, Sums_Up_As_Exact_Steps_Do) {
  Random_Numbers random(4711);
  constexpr double doubts[] = {0, 0, 0, 0.003, 0.1};  // the greater ones break most runs off
  constexpr int cases = 3000;
  for (int i = 0; i < cases; ++i) {
    const Series& series = all_series[random.below(std::size(all_series))];
    const std::size_t most = random.one_in(300)  ? 2200
                             : random.one_in(10) ? 700
                             : random.one_in(2)  ? 150
                                                 : 60;
    const auto limit = static_cast<double>(1 + random.below(most));
    const NumberText x = Random_Argument(random, series, static_cast<std::size_t>(limit));
    NumberText exact;
    {
      const Doubt doubt(always_in_doubt);
      exact = series.sum(x, limit);
    }
    const Doubt doubt(doubts[random.below(std::size(doubts))]);
    EXPECT_EQ(series.sum(x, limit), exact) << series.name << " of " << x << " at " << limit;
  }
}

// The sum of the area tangent is a little above 2^128 units of its last place here, what comes
// before the tail below that.
TEST(Shortened_Series, Sums_May_Run_Over_A_Word) {
  for (const NumberText x : {"7.9", "7.89997945084954586077961178304"}) {
    const NumberText sum = Logarithm(x, 37);
    const Doubt doubt(always_in_doubt);
    EXPECT_EQ(sum, Logarithm(x, 37)) << x;
    EXPECT_EQ(sum.substr(0, 6), "2.0668") << x;
  }
}

// What differs is that some divisors are exact, and that powers are halved at least.
constexpr Series_Rule geometric{.stride = 1,
                                .power_divisor = nullptr,
                                .term_divisor = nullptr,
                                .ends_by_power = true,
                                .alternates = false};

// The same with divisors of what is added, which end the series.
constexpr Series_Rule divided{.stride = 2,
                              .power_divisor = nullptr,
                              .term_divisor = [](std::uint64_t k) { return k; },
                              .ends_by_power = false,
                              .alternates = false};

std::optional<Step_Number> Geometric_Sum(const std::string& power, const std::string& sum,
                                         const std::string& factor, double limit,
                                         const Series_Rule& rule = geometric) {
  const Step_Number ratio(factor);
  Shortened_Series series(rule, ratio, limit, -static_cast<std::int64_t>(limit) - 1);
  return series.sum_from({Step_Number(power), Step_Number(sum), 1});
}

TEST(Shortened_Series, Begins_Where_All_Digits_Can_Be_Told) {
  struct Case {
    const char* power;
    const char* sum;
    const char* factor;
    double limit;
    bool is_told;
  };
  constexpr Case cases[] = {
      {"0.000012", "2", "0.1", 30, true},
      {"0.0012", "2", "0.1", 30, true},
      {"0.012", "2", "0.1", 30, false},           // terms are too large still
      {"0.000012", "9.99999", "0.1", 30, false},  // the leading digit might move
      {"0.000012", "2", "0.6", 30, false},        // errors would add up
      {"0.000012", "2", "-0.1", 30, false},       // signs of another kind
      {"-0.000012", "2", "0.1", 30, false},       // terms that never end it
      {"0.000012", "2", "0.1", 14, false},        // few digits
      {"0.000012", "2", "0.1", 30.5, false},      // no count of digits
      {"0.000012", "2", "0.1", 2001, false},      // of many digits, more have to be behind
      {"0.0000012", "2", "0.1", 2001, true},
      {"0.0000012", "2", "0.1", 1000001, false},  // too many
      {"0.000001", "2", "0.1", 2001, false},      // next to the end
      {"0.000001", "20", "0.1", 2001, true},      // and too small to change the sum
      // The first term added ends in half a unit and a hundred thousandth, then in a tenth more.
      {"0.00001200000000000000000000000050001", "2", "0.1", 30, false},
      {"0.00001200000000000000000000000060001", "2", "0.1", 30, true},
      {"0.00001", "2", "0.1", 30, false},  // next to the end
      {"#NUM!", "2", "0.1", 30, false},
      {"0.000012", "#NUM!", "0.1", 30, false},
      {"0.000012", "2", "#NUM!", 30, false},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(Geometric_Sum(c.power, c.sum, c.factor, c.limit).has_value(), c.is_told)
        << c.power << " " << c.sum << " " << c.factor << " " << c.limit;
  }
  // The first term added ends in a half unit, then in a tenth more.
  const std::string zeros(53, '0');
  EXPECT_FALSE(Geometric_Sum("0.000012" + zeros + "15", "2", "0.1", 60, divided));
  EXPECT_TRUE(Geometric_Sum("0.000012" + zeros + "18", "2", "0.1", 60, divided));
  // A term next to the end, and then too small to change the sum what follows.
  EXPECT_FALSE(Geometric_Sum("0.0000267", "2", "0.1", 140, divided));
  EXPECT_TRUE(Geometric_Sum("0.0000267", "20", "0.1", 140, divided));
  EXPECT_EQ(Geometric_Sum("0.000012", "2", "0.1", 20)->text(), "2.000001333333333333333");
  EXPECT_EQ(Geometric_Sum("0.0000012", "2", "0.1", 2000)->text(),
            "2.0000001" + std::string(1994, '3'));
}

}  // namespace
}  // namespace quorvex
