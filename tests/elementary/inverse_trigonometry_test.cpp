// The arcs of tangent, sine and cosine against an independent library.
#include "elementary/inverse_trigonometry.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "host/conversions.h"
#include "support/failures.h"
#include "support/random_numbers.h"
#include "support/real_number.h"
#include "support/surroundings.h"
#include "support/text_steps.h"

namespace quorvex {
namespace {

using Worker = HostValue(const HostValue&, const HostValue&);
using Oracle = int(mpfr_ptr, mpfr_srcptr, mpfr_rnd_t);

// In units of the last of `places` digits, of which the first stands before the separator.
double Distance(Worker* worker, Oracle* oracle, const std::string& text, double limit,
                double places) {
  const mpfr_prec_t bits = Bits_For(2 * limit + 2 * static_cast<double>(text.size()));
  const Real_Number argument(text, bits);
  Real_Number exact(bits);
  oracle(exact.value(), argument.value(), MPFR_RNDN);
  return exact.distance(To_Text(worker(text, limit)), 1 - places);
}

double Distance(Worker* worker, Oracle* oracle, const std::string& text, double limit) {
  return Distance(worker, oracle, text, limit, limit);
}

// Half a unit of the last digit of pi, and what the terms round: there are 1.4 for a digit, and
// each sum keeps two digits more than pi.
double Arc_Error(std::size_t limit) {
  return 0.6 + static_cast<double>(limit) / 100;
}

TEST(InverseTrigonometry, ArcTangentsAgreeWithAnIndependentLibrary) {
  Random_Numbers random(239);
  for (int i = 0; i < 500; ++i) {
    const std::size_t limit = random.limit(5, 500);
    std::string text = random.digits(random.below(random.one_in(4) ? limit : 3)) + ".";
    text += random.digits(1 + random.below(2 * limit)) + "1";
    if (random.one_in(2)) text.insert(0, 1, '-');
    EXPECT_LE(Distance(ATan_Function, mpfr_atan, text, static_cast<double>(limit)),
              Arc_Error(limit))
        << text << " at " << limit;
  }
}

// Near 1 in magnitude the root loses digits: as many as half of those that 1 less the square loses.
TEST(InverseTrigonometry, ArcSinesAndCosinesAgreeWithAnIndependentLibrary) {
  Random_Numbers random(113);
  for (int i = 0; i < 400; ++i) {
    const std::size_t limit = random.limit(5, 500);
    std::string text = "0." + random.digits(1 + random.below(2 * limit)) + "1";
    if (random.one_in(2)) text.insert(0, 1, '-');
    const double rest = 1 - std::fabs(Text_To_Number(text));
    if (rest < std::pow(10, -3)) continue;
    const double error = Arc_Error(limit) + 0.02 / std::sqrt(rest);
    const auto digits = static_cast<double>(limit);
    EXPECT_LE(Distance(ASin_Function, mpfr_asin, text, digits), error) << text << " at " << limit;
    EXPECT_LE(Distance(ACos_Function, mpfr_acos, text, digits), error + 1)
        << text << " at " << limit;
  }
}

// 1 less such a square has a root next to 1, whose text is as short as that of its first guess.
TEST(InverseTrigonometry, ArcSinesOfPowersOfTenAgreeWithAnIndependentLibrary) {
  for (std::size_t places = 1; places <= 60; ++places) {
    const std::string text = "0." + std::string(places - 1, '0') + "1";
    for (double limit = 10; limit <= 120; limit += 11) {
      // The limit counts from the first digit of the number.
      EXPECT_LE(
          Distance(ASin_Function, mpfr_asin, text, limit, limit + static_cast<double>(places)), 20)
          << text << " at " << limit;
    }
  }
}

TEST(InverseTrigonometry, NeedsNoPiForSmallNumbers) {
  const NumberText tiny = "0." + NumberText(20000, '0') + "1";
  EXPECT_EQ(To_Text(ATan_Function(tiny, 33000)), tiny);
  EXPECT_EQ(To_Text(ASin_Function(tiny, 33000)), tiny);
  EXPECT_EQ(To_Text(ATan_Function("2", 33000)), "#NUM!");
}

TEST(InverseTrigonometry, SeriesCanBeBrokenOff) {
  const Interruption_Guard guard;
  EXPECT_EQ(Failure_Of([] { ATan_Function("0.5", 30); }), Failure_Number::interrupted);
  EXPECT_EQ(Failure_Of([] { ASin_Function("0.5", 30); }), Failure_Number::interrupted);
  EXPECT_EQ(Failure_Of([] { ACos_Function("0.5", 30); }), Failure_Number::interrupted);
}

}  // namespace
}  // namespace quorvex
