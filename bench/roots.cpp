// Whole calls of roots and of common divisors from text to text, beside MPFR and GMP.
#include <benchmark/benchmark.h>
#include <gmp.h>
#include <mpfr.h>

#include <string>

#include "bench_digits.h"
#include "quorvex.h"

namespace {

using quorvex::cls_Quorvex;
using quorvex::HostValue;
using quorvex::List;
using quorvex::Missing;

constexpr unsigned degree = 7;

void Square_Root(benchmark::State& state) {
  const HostValue limit(state.range(0));
  cls_Quorvex engine;
  for (auto step : state) {
    benchmark::DoNotOptimize(engine.qvxSQRT(2, Missing, Missing, Missing, limit));
  }
}

std::string Operand(const benchmark::State& state) {
  const auto digits = static_cast<std::size_t>(state.range(0));
  return "7." + bench::Digits(digits - 1, 1);
}

void Long_Square_Root(benchmark::State& state) {
  const HostValue number(Operand(state));
  const HostValue limit(state.range(0));
  cls_Quorvex engine;
  for (auto step : state) {
    benchmark::DoNotOptimize(engine.qvxSQRT(number, Missing, Missing, Missing, limit));
  }
}

void Root(benchmark::State& state) {
  const HostValue limit(state.range(0));
  cls_Quorvex engine;
  for (auto step : state) {
    benchmark::DoNotOptimize(engine.qvxROOT(2, degree, Missing, Missing, Missing, Missing, limit));
  }
}

template <typename Take_Root>
void Mpfr(benchmark::State& state, const std::string& radicand, const Take_Root& take_root) {
  const auto digits = static_cast<std::size_t>(state.range(0));
  constexpr double bits_a_digit = 3.3219280948873626;
  const auto bits = static_cast<mpfr_prec_t>(static_cast<double>(digits) * bits_a_digit) + 8;
  mpfr_t root;
  mpfr_init2(root, bits);
  std::string text(digits + 4, '\0');
  for (auto step : state) {
    mpfr_set_str(root, radicand.c_str(), 10, MPFR_RNDN);
    take_root(root);
    mpfr_exp_t scale = 0;
    benchmark::DoNotOptimize(mpfr_get_str(text.data(), &scale, 10, digits, root, MPFR_RNDN));
  }
  mpfr_clear(root);
}

void Mpfr_Square_Root(benchmark::State& state) {
  Mpfr(state, "2", [](mpfr_ptr root) { mpfr_sqrt(root, root, MPFR_RNDN); });
}

void Mpfr_Long_Square_Root(benchmark::State& state) {
  Mpfr(state, Operand(state), [](mpfr_ptr root) { mpfr_sqrt(root, root, MPFR_RNDN); });
}

void Mpfr_Root(benchmark::State& state) {
  Mpfr(state, "2", [](mpfr_ptr root) { mpfr_rootn_ui(root, root, degree, MPFR_RNDN); });
}

void Common_Divisor(benchmark::State& state) {
  const auto digits = static_cast<std::size_t>(state.range(0));
  const List list = {bench::Digits(digits, 1), bench::Digits(digits, 2)};
  cls_Quorvex engine;
  for (auto step : state) benchmark::DoNotOptimize(engine.qvxGCD(list));
}

void Gmp_Common_Divisor(benchmark::State& state) {
  const auto digits = static_cast<std::size_t>(state.range(0));
  const std::string first = bench::Digits(digits, 1);
  const std::string second = bench::Digits(digits, 2);
  mpz_t a;
  mpz_t b;
  mpz_inits(a, b, nullptr);
  std::string text(digits + 2, '\0');
  for (auto step : state) {
    mpz_set_str(a, first.c_str(), 10);
    mpz_set_str(b, second.c_str(), 10);
    mpz_gcd(a, a, b);
    benchmark::DoNotOptimize(mpz_get_str(text.data(), 10, a));
  }
  mpz_clears(a, b, nullptr);
}

BENCHMARK(Square_Root)->Name("Call/sqrt")->Arg(30)->Arg(100)->Arg(1000)->Arg(10'000);
BENCHMARK(Mpfr_Square_Root)->Name("Mpfr/sqrt")->Arg(30)->Arg(100)->Arg(1000)->Arg(10'000);
BENCHMARK(Long_Square_Root)->Name("Call/sqrtn")->Arg(30)->Arg(100)->Arg(1000)->Arg(10'000);
BENCHMARK(Mpfr_Long_Square_Root)->Name("Mpfr/sqrtn")->Arg(30)->Arg(100)->Arg(1000)->Arg(10'000);
BENCHMARK(Root)->Name("Call/root")->Arg(30)->Arg(100)->Arg(1000)->Arg(10'000);
BENCHMARK(Mpfr_Root)->Name("Mpfr/root")->Arg(30)->Arg(100)->Arg(1000)->Arg(10'000);
BENCHMARK(Common_Divisor)->Name("Call/gcd")->Arg(100)->Arg(1000);
BENCHMARK(Gmp_Common_Divisor)->Name("Gmp/gcd")->Arg(100)->Arg(1000);

}  // namespace
