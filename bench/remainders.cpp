// Whole calls of remainders from text to text, beside GMP.
#include <benchmark/benchmark.h>
#include <gmp.h>

#include <string>

#include "bench_digits.h"
#include "quorvex.h"

namespace {

using quorvex::cls_Quorvex;
using quorvex::HostValue;
using quorvex::Missing;

// A dividend of so many digits. The divisor has twenty, or half as many.
enum class Divisor { short_one, half };

constexpr std::size_t short_digits = 20;

struct Operands {
  Operands(const benchmark::State& state, Divisor kind)
      : dividend(bench::Digits(static_cast<std::size_t>(state.range(0)), 1)),
        divisor(bench::Digits(kind == Divisor::half ? dividend.size() / 2 : short_digits, 2)) {}

  std::string dividend;
  std::string divisor;
};

void Remainder(benchmark::State& state, Divisor kind) {
  const Operands operands(state, kind);
  const HostValue dividend(operands.dividend);
  const HostValue divisor(operands.divisor);
  const HostValue limit(operands.divisor.size());
  cls_Quorvex engine;
  for (auto step : state) {
    benchmark::DoNotOptimize(
        engine.qvxMOD(dividend, divisor, Missing, Missing, Missing, Missing, Missing, limit));
  }
}

// The three operations that a remainder is defined by.
void Remainder_By_Operations(benchmark::State& state, Divisor kind) {
  const Operands operands(state, kind);
  const HostValue dividend(operands.dividend);
  const HostValue divisor(operands.divisor);
  const HostValue limit(operands.dividend.size() + operands.divisor.size() + 5);
  cls_Quorvex engine;
  for (auto step : state) {
    const HostValue quotient =
        engine.qvxDIVIDE(dividend, divisor, Missing, Missing, Missing, Missing, limit);
    const HostValue product = engine.qvxMULTIPLY(engine.qvxINT(quotient), divisor, Missing, Missing,
                                                 Missing, Missing, limit);
    benchmark::DoNotOptimize(
        engine.qvxSUBTRACT(dividend, product, Missing, Missing, Missing, Missing, limit));
  }
}

void Gmp_Remainder(benchmark::State& state, Divisor kind) {
  const Operands operands(state, kind);
  mpz_t dividend;
  mpz_t divisor;
  mpz_inits(dividend, divisor, nullptr);
  std::string text(operands.divisor.size() + 2, '\0');
  for (auto step : state) {
    mpz_set_str(dividend, operands.dividend.c_str(), 10);
    mpz_set_str(divisor, operands.divisor.c_str(), 10);
    mpz_fdiv_r(dividend, dividend, divisor);
    benchmark::DoNotOptimize(mpz_get_str(text.data(), 10, dividend));
  }
  mpz_clears(dividend, divisor, nullptr);
}

void Lengths(benchmark::internal::Benchmark* benchmark) {
  benchmark->Arg(30)->Arg(100)->Arg(1000)->Arg(10'000)->Arg(100'000);
}

BENCHMARK_CAPTURE(Remainder, twenty, Divisor::short_one)->Name("Call/mod by 20")->Apply(Lengths);
BENCHMARK_CAPTURE(Remainder, half, Divisor::half)->Name("Call/mod by half")->Apply(Lengths);
BENCHMARK_CAPTURE(Remainder_By_Operations, twenty, Divisor::short_one)
    ->Name("Operations/mod by 20")
    ->Apply(Lengths);
BENCHMARK_CAPTURE(Remainder_By_Operations, half, Divisor::half)
    ->Name("Operations/mod by half")
    ->Apply(Lengths);
BENCHMARK_CAPTURE(Gmp_Remainder, twenty, Divisor::short_one)->Name("Gmp/mod by 20")->Apply(Lengths);
BENCHMARK_CAPTURE(Gmp_Remainder, half, Divisor::half)->Name("Gmp/mod by half")->Apply(Lengths);

}  // namespace
