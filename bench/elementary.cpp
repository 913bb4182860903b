// Whole calls of elementary functions from text to text, beside MPFR and GMP.
#include <benchmark/benchmark.h>
#include <gmp.h>
#include <mpfr.h>

#include <string>
#include <string_view>

#include "quorvex.h"

namespace {

using quorvex::cls_Quorvex;
using quorvex::HostValue;
using quorvex::Missing;

// 20 / 7 with as many digits as are asked for: one of few makes products short that are long
// for most numbers.
std::string Argument(std::size_t digits) {
  constexpr std::string_view period = "857142";
  std::string text = "2.";
  while (text.size() < digits + 1) text += period[(text.size() - 2) % period.size()];
  return text;
}

template <typename Function>
void Call(benchmark::State& state, const Function& function) {
  const HostValue number(Argument(static_cast<std::size_t>(state.range(0))));
  const HostValue limit(state.range(0));
  cls_Quorvex engine;
  for (auto step : state) benchmark::DoNotOptimize(function(engine, number, limit));
}

void Sine(benchmark::State& state) {
  Call(state, [](cls_Quorvex& engine, const HostValue& number, const HostValue& limit) {
    return engine.qvxSIN(number, limit);
  });
}

void Tangent(benchmark::State& state) {
  Call(state, [](cls_Quorvex& engine, const HostValue& number, const HostValue& limit) {
    return engine.qvxTAN(number, limit);
  });
}

void Arc_Tangent(benchmark::State& state) {
  Call(state, [](cls_Quorvex& engine, const HostValue& number, const HostValue& limit) {
    return engine.qvxATAN(number, limit);
  });
}

void Logarithm(benchmark::State& state) {
  Call(state, [](cls_Quorvex& engine, const HostValue& number, const HostValue& limit) {
    return engine.qvxLN(number, Missing, limit);
  });
}

void Exponential(benchmark::State& state) {
  Call(state, [](cls_Quorvex& engine, const HostValue& number, const HostValue& limit) {
    return engine.qvxEXP(number, Missing, limit);
  });
}

using Mpfr_Function = int (*)(mpfr_ptr, mpfr_srcptr, mpfr_rnd_t);

void Mpfr(benchmark::State& state, Mpfr_Function function) {
  const auto digits = static_cast<std::size_t>(state.range(0));
  constexpr double bits_a_digit = 3.3219280948873626;
  const auto bits = static_cast<mpfr_prec_t>(static_cast<double>(digits) * bits_a_digit) + 8;
  const std::string argument = Argument(digits);
  mpfr_t number;
  mpfr_init2(number, bits);
  std::string text(digits + 4, '\0');
  for (auto step : state) {
    mpfr_set_str(number, argument.c_str(), 10, MPFR_RNDN);
    function(number, number, MPFR_RNDN);
    mpfr_exp_t scale = 0;
    benchmark::DoNotOptimize(mpfr_get_str(text.data(), &scale, 10, digits, number, MPFR_RNDN));
  }
  mpfr_clear(number);
  mpfr_free_cache();
}

// With room for all digits.
void Factorial(benchmark::State& state) {
  constexpr double all_digits = 32'767;
  const HostValue number(state.range(0));
  const HostValue limit(all_digits);
  cls_Quorvex engine;
  for (auto step : state) {
    benchmark::DoNotOptimize(engine.qvxFACT(number, Missing, Missing, Missing, Missing, limit));
  }
}

void Gmp_Factorial(benchmark::State& state) {
  mpz_t factorial;
  mpz_init(factorial);
  std::string text;
  for (auto step : state) {
    mpz_fac_ui(factorial, static_cast<unsigned long>(state.range(0)));
    text.resize(mpz_sizeinbase(factorial, 10) + 2);
    benchmark::DoNotOptimize(mpz_get_str(text.data(), 10, factorial));
  }
  mpz_clear(factorial);
}

void Poisson_Sum(benchmark::State& state) {
  const HostValue target(state.range(0));
  cls_Quorvex engine;
  for (auto step : state) benchmark::DoNotOptimize(engine.qvxPOISSON(target, 100, true));
}

void Sizes(benchmark::internal::Benchmark* bench) {
  for (const int digits : {30, 100, 300, 1000, 3000, 10'000}) bench->Arg(digits);
}

BENCHMARK(Sine)->Name("Elementary/sin")->Apply(Sizes);
BENCHMARK(Tangent)->Name("Elementary/tan")->Apply(Sizes);
BENCHMARK(Arc_Tangent)->Name("Elementary/atan")->Apply(Sizes);
BENCHMARK(Logarithm)->Name("Elementary/ln")->Apply(Sizes);
BENCHMARK(Exponential)->Name("Elementary/exp")->Apply(Sizes);
BENCHMARK_CAPTURE(Mpfr, sin, mpfr_sin)->Name("Mpfr/sin")->Apply(Sizes);
BENCHMARK_CAPTURE(Mpfr, tan, mpfr_tan)->Name("Mpfr/tan")->Apply(Sizes);
BENCHMARK_CAPTURE(Mpfr, atan, mpfr_atan)->Name("Mpfr/atan")->Apply(Sizes);
BENCHMARK_CAPTURE(Mpfr, ln, mpfr_log)->Name("Mpfr/ln")->Apply(Sizes);
BENCHMARK_CAPTURE(Mpfr, exp, mpfr_exp)->Name("Mpfr/exp")->Apply(Sizes);
BENCHMARK(Factorial)->Name("Elementary/fact")->Arg(1000)->Arg(9273);
BENCHMARK(Gmp_Factorial)->Name("Gmp/fact")->Arg(1000)->Arg(9273);
BENCHMARK(Poisson_Sum)->Name("Elementary/poisson")->Arg(200);

}  // namespace
