// Whole calls of powers from text to text, beside MPFR, and the longest pi.
#include <benchmark/benchmark.h>
#include <mpfr.h>

#include <string>

#include "bench_digits.h"
#include "quorvex.h"

namespace {

using quorvex::cls_Quorvex;
using quorvex::HostValue;
using quorvex::Missing;

constexpr unsigned exponent = 1000;

// A little above 1, so that its power is not mostly zeros: 1.07...
std::string Base(const benchmark::State& state) {
  return "1.0" + bench::Digits(static_cast<std::size_t>(state.range(0)) - 2, 1);
}

void Power(benchmark::State& state) {
  const HostValue base(Base(state));
  const HostValue limit(state.range(0));
  cls_Quorvex engine;
  for (auto step : state) {
    benchmark::DoNotOptimize(
        engine.qvxPOWER(base, exponent, Missing, Missing, Missing, Missing, limit));
  }
}

void Mpfr_Power(benchmark::State& state) {
  const std::string base = Base(state);
  const auto digits = static_cast<std::size_t>(state.range(0));
  constexpr double bits_a_digit = 3.3219280948873626;
  const auto bits = static_cast<mpfr_prec_t>(static_cast<double>(digits) * bits_a_digit) + 8;
  mpfr_t power;
  mpfr_init2(power, bits);
  std::string text(digits + 4, '\0');
  for (auto step : state) {
    mpfr_set_str(power, base.c_str(), 10, MPFR_RNDN);
    mpfr_pow_ui(power, power, exponent, MPFR_RNDN);
    mpfr_exp_t scale = 0;
    benchmark::DoNotOptimize(mpfr_get_str(text.data(), &scale, 10, digits, power, MPFR_RNDN));
  }
  mpfr_clear(power);
}

void Pi(benchmark::State& state) {
  const HostValue digits(state.range(0));
  cls_Quorvex engine;
  for (auto step : state) benchmark::DoNotOptimize(engine.qvxPi(digits));
}

BENCHMARK(Power)->Name("Call/power")->Arg(30)->Arg(100)->Arg(300)->Arg(1000)->Arg(10'000);
BENCHMARK(Mpfr_Power)->Name("Mpfr/power")->Arg(30)->Arg(100)->Arg(300)->Arg(1000)->Arg(10'000);
BENCHMARK(Pi)->Name("Call/pi")->Arg(32'767);

}  // namespace
