// Whole calls of products and quotients from text to text, beside GMP and MPFR.
#include <benchmark/benchmark.h>
#include <gmp.h>
#include <mpfr.h>

#include <string>

#include "bench_digits.h"
#include "quorvex.h"

namespace {

using quorvex::cls_Quorvex;
using quorvex::HostValue;
using quorvex::Missing;

using Arithmetic = quorvex::NumberText (cls_Quorvex::*)(const HostValue&, const HostValue&,
                                                        const HostValue&, const HostValue&,
                                                        const HostValue&, const HostValue&,
                                                        const HostValue&, const HostValue&,
                                                        const HostValue&);

std::size_t Size(const benchmark::State& state) {
  return static_cast<std::size_t>(state.range(0));
}

// Operands of so many digits; a quotient to as many.
void Call(benchmark::State& state, Arithmetic method, double digits_for_each) {
  const HostValue first(bench::Digits(Size(state), 1));
  const HostValue second(bench::Digits(Size(state), 2));
  const HostValue limit(digits_for_each * static_cast<double>(Size(state)));
  cls_Quorvex engine;
  for (auto step : state) {
    benchmark::DoNotOptimize((engine.*method)(first, second, Missing, Missing, Missing, Missing,
                                              limit, Missing, Missing));
  }
}

// Whole numbers: the dividend gets the zeros that bring the quotient to its digits.
void Gmp_Quotient(benchmark::State& state) {
  const std::string first = bench::Digits(Size(state), 1) + std::string(Size(state), '0');
  const std::string second = bench::Digits(Size(state), 2);
  mpz_t a;
  mpz_t b;
  mpz_inits(a, b, nullptr);
  std::string text(Size(state) + 4, '\0');
  for (auto step : state) {
    mpz_set_str(a, first.c_str(), 10);
    mpz_set_str(b, second.c_str(), 10);
    mpz_tdiv_q(a, a, b);
    benchmark::DoNotOptimize(mpz_get_str(text.data(), 10, a));
  }
  mpz_clears(a, b, nullptr);
}

void Mpfr_Quotient(benchmark::State& state) {
  const std::string first = bench::Digits(Size(state), 1);
  const std::string second = bench::Digits(Size(state), 2);
  constexpr double bits_a_digit = 3.3219280948873626;
  const auto bits = static_cast<mpfr_prec_t>(static_cast<double>(Size(state)) * bits_a_digit) + 8;
  mpfr_t a;
  mpfr_t b;
  mpfr_inits2(bits, a, b, nullptr);
  std::string text(Size(state) + 4, '\0');
  for (auto step : state) {
    mpfr_set_str(a, first.c_str(), 10, MPFR_RNDN);
    mpfr_set_str(b, second.c_str(), 10, MPFR_RNDN);
    mpfr_div(a, a, b, MPFR_RNDN);
    mpfr_exp_t exponent = 0;
    benchmark::DoNotOptimize(mpfr_get_str(text.data(), &exponent, 10, Size(state), a, MPFR_RNDN));
  }
  mpfr_clears(a, b, nullptr);
}

void Sizes(benchmark::internal::Benchmark* bench) {
  for (const int digits : {10, 30, 100, 300, 1000, 3000, 10'000, 32'767, 100'000, 1'000'000}) {
    bench->Arg(digits);
  }
}

BENCHMARK_CAPTURE(Call, divide, &cls_Quorvex::qvxDIVIDE, 1)->Apply(Sizes);
BENCHMARK(Gmp_Quotient)->Name("Gmp/divide")->Apply(Sizes);
BENCHMARK(Mpfr_Quotient)->Name("Mpfr/divide")->Apply(Sizes);
BENCHMARK_CAPTURE(Call, multiply, &cls_Quorvex::qvxMULTIPLY, 2)->Apply(Sizes);

}  // namespace
