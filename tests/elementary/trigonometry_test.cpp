// Sine, cosine and tangent against an independent library, and how they fold angles.
#include "elementary/trigonometry.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <string>
#include <utility>

#include "elementary/series/series.h"
#include "elementary/steps/reduce_to_90.h"
#include "elementary/steps/text_steps.h"
#include "host/conversions.h"
#include "support/failures.h"
#include "support/random_numbers.h"
#include "support/real_number.h"
#include "support/surroundings.h"

namespace quorvex {
namespace {

// An angle and what is true of it.
struct Angle {
  Angle(std::string typed, double digits)
      : text(std::move(typed)),
        limit(digits),
        bits(Bits_For(limit + static_cast<double>(text.size()))),
        exact(text, bits) {
    Real_Number turns(bits);
    mpfr_const_pi(turns.value(), MPFR_RNDN);
    mpfr_div_ui(turns.value(), turns.value(), 2, MPFR_RNDN);
    mpfr_div(turns.value(), exact.value(), turns.value(), MPFR_RNDN);
    Real_Number whole(bits);
    mpfr_floor(whole.value(), turns.value());
    quarters = whole.number();
    mpfr_sub(turns.value(), turns.value(), whole.value(), MPFR_RNDN);
    into_quarter = turns.number();
    mpfr_set_ui(turns.value(), 4, MPFR_RNDN);
    mpfr_fmod(whole.value(), whole.value(), turns.value(), MPFR_RNDN);
    quarters_of_a_turn = whole.number();
  }

  // Half a unit of the last digit of pi for each quarter turn and for the complement, and what the
  // steps of the series round.
  double error() const { return 0.6 * (std::fabs(quarters) + 2); }

  bool is_near_an_axis() const {
    return std::min(into_quarter, 1 - into_quarter) <= error() * std::pow(10, 2 - limit);
  }

  // Where the forced minus of the folding gives the opposite of the folded angle.
  bool is_folded_to_its_opposite() const {
    return quarters < 0 && std::fmod(quarters_of_a_turn, 2) == 0;
  }

  std::string text;
  double limit;
  mpfr_prec_t bits;
  Real_Number exact;
  double quarters = 0;
  double quarters_of_a_turn = 0;
  double into_quarter = 0;
};

// Angles of a few turns, of many, and of none; limits up to 500, most of them short.
std::unique_ptr<Angle> Random_Angle(Random_Numbers& random) {
  const std::size_t limit = 5 + random.below(random.one_in(8) ? 496 : 56);
  const std::size_t most = random.one_in(3) ? limit / 2 : 2;
  std::string text = random.digits(random.below(most + 1)) + ".";
  text += random.digits(1 + random.below(2 * limit));
  if (random.one_in(2)) text.insert(0, 1, '-');
  return std::make_unique<Angle>(text, static_cast<double>(limit));
}

TEST(Trigonometry, AgreesWithAnIndependentLibrary) {
  Random_Numbers random(1571);
  std::size_t compared = 0;
  for (int i = 0; i < 600; ++i) {
    const auto angle = Random_Angle(random);
    if (angle->is_near_an_axis()) continue;
    const std::string place = angle->text + " at " + std::to_string(angle->limit);
    Real_Number sine(angle->bits);
    Real_Number cosine(angle->bits);
    Real_Number tangent(angle->bits);
    mpfr_sin_cos(sine.value(), cosine.value(), angle->exact.value(), MPFR_RNDN);
    mpfr_div(tangent.value(), sine.value(), cosine.value(), MPFR_RNDN);
    if (angle->is_folded_to_its_opposite()) {
      mpfr_neg(tangent.value(), tangent.value(), MPFR_RNDN);
      if (angle->quarters_of_a_turn == 0) mpfr_neg(sine.value(), sine.value(), MPFR_RNDN);
    }
    EXPECT_LE(sine.distance(Sin_Function(angle->text, angle->limit), 1 - angle->limit),
              angle->error())
        << place;
    EXPECT_LE(cosine.distance(To_Text(Cos_Function(angle->text, angle->limit)), 1 - angle->limit),
              angle->error())
        << place;
    const double steepness = 1 + tangent.number() * tangent.number();
    EXPECT_LE(tangent.distance(To_Text(Tan_Function(angle->text, angle->limit)), 1 - angle->limit),
              1.2 * steepness * angle->error())
        << place;
    ++compared;
  }
  EXPECT_GT(compared, 500U);
}

// Worked out by hand with a pi of 3 and three digits of everything, but two of quotients.
TEST(ReduceTo90, FoldsBySteps) {
  const struct {
    const char* angle;
    const char* alpha;
    const char* quadrant;
  } cases[] = {
      {"1", "1", "1"},
      {"1.25", "1.25", "1"},
      {"2", "1", "2"},
      {"3", "0", "3"},
      {"4", "1", "3"},
      {"5.2", "0.8", "4"},
      {"6.4", "0.4", "1"},
      {"-1", "1", "4"},
      {"-2", "-1", "3"},
      {"-3", "0", "3"},
      {"-4", "1", "2"},
      {"-5.2", "-0.8", "1"},
      {"-6.4", "0.4", "4"},
      {"(1)", "1", "4"},
      {"0.0", "0.0", "1"},
      // 67000000 quarter turns, less 4 times 17000000, and 1 are -999999: no quadrant.
      {"100000000", "0", "-1000000"},
  };
  const Text_Steps steps{1};
  for (const auto& [angle, alpha, quadrant] : cases) {
    const type_Reduce90 folded = Reduce_To_90(angle, "1.5", steps);
    EXPECT_EQ(folded.Alpha, alpha) << angle;
    EXPECT_EQ(folded.Quadrant, quadrant) << angle;
  }
}

TEST(SeriesCounter, CountsAsOperationsDo) {
  for (const double limit : {-1.0, -0.5, 0.0, 0.5, 1.0, 2.0, 20.0}) {
    const Text_Steps steps{limit};
    Series_Counter counter(1, limit);
    NumberText k = "1";
    for (int step = 0; step < 700; ++step) {
      counter.step();
      k = Number_To_Text(Text_To_Number(steps.sum(k, "2")));
      ASSERT_EQ(counter.value().text(), k) << limit;
      ASSERT_EQ(counter.next().text(), steps.sum(k, "1")) << limit;
      ASSERT_EQ(counter.product_with_the_one_before().text(),
                steps.product(k, steps.difference(k, "1")))
          << limit << ' ' << k;
    }
  }
}

TEST(SeriesEnd, IsBelowThePlaceOfTheLimit) {
  const struct {
    double limit;
    const char* term;
    bool ends;
  } cases[] = {
      {2, "0.01", false},    {2, "-0.0099", true},
      {0, "1", false},       {0, "0.9", true},
      {-2, "0.01", false},   {-2, "0.009", true},
      {3.5, "0.001", false}, {3.5, "0.0001", true},
      {2, "123456", false},  {2.9999999999999996, "0.001", false},
  };
  for (const auto& [limit, term, ends] : cases) {
    EXPECT_EQ(Series_End(limit).is_reached(Step_Number(std::string_view(term))), ends)
        << limit << ' ' << term;
  }
  for (const char* term : {"0", "#NUM!", "#VALUE!"}) {
    EXPECT_EQ(Failure_Of([&] { Series_End(2).is_reached(Step_Number(std::string_view(term))); }),
              Failure_Number::too_complex);
  }
}

TEST(Trigonometry, SeriesCanBeBrokenOff) {
  const Interruption_Guard guard;
  EXPECT_EQ(Failure_Of([] { Sin_Function("1", 30); }), Failure_Number::interrupted);
  EXPECT_EQ(Failure_Of([] { Cos_Function("1", 30); }), Failure_Number::interrupted);
  EXPECT_EQ(Failure_Of([] { Tan_Function("1", 30); }), Failure_Number::interrupted);
}

TEST(Trigonometry, ASeriesThatEndsLateCanBeBrokenOff) {
  const Interruption_Guard guard(2000);
  EXPECT_EQ(Failure_Of([] { Sin_Function("31415926535", 5); }), Failure_Number::interrupted);
}

}  // namespace
}  // namespace quorvex
