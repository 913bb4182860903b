// Sums, differences and comparisons from text to text, beside GMP's integers.
#include <benchmark/benchmark.h>
#include <gmp.h>

#include <string>

#include "bench_digits.h"
#include "quorvex.h"

namespace {

using quorvex::cls_Quorvex;
using quorvex::HostValue;
using quorvex::Missing;

struct Operands {
  explicit Operands(const benchmark::State& state)
      : first(bench::Digits(static_cast<std::size_t>(state.range(0)), 1)),
        second(bench::Digits(static_cast<std::size_t>(state.range(0)), 2)) {}
  std::string first;
  std::string second;
};

using Arithmetic = quorvex::NumberText (cls_Quorvex::*)(const HostValue&, const HostValue&,
                                                        const HostValue&, const HostValue&,
                                                        const HostValue&, const HostValue&,
                                                        const HostValue&, const HostValue&,
                                                        const HostValue&);

// The whole call: options resolved, operands recognised, result formatted, nothing cut.
void Quorvex(benchmark::State& state, Arithmetic method) {
  const Operands operands(state);
  const HostValue first(operands.first);
  const HostValue second(operands.second);
  const HostValue limit(2147483648.0);
  cls_Quorvex engine;
  for (auto step : state) {
    benchmark::DoNotOptimize((engine.*method)(first, second, Missing, Missing, Missing, Missing,
                                              limit, Missing, Missing));
  }
}

using Gmp_Arithmetic = void (*)(mpz_ptr, mpz_srcptr, mpz_srcptr);

// The fastest way through GMP: numbers and the text of the result are allocated once.
void Gmp(benchmark::State& state, Gmp_Arithmetic method) {
  const Operands operands(state);
  mpz_t first;
  mpz_t second;
  mpz_t result;
  mpz_inits(first, second, result, nullptr);
  std::string text(operands.first.size() + 3, '\0');
  for (auto step : state) {
    mpz_set_str(first, operands.first.c_str(), 10);
    mpz_set_str(second, operands.second.c_str(), 10);
    method(result, first, second);
    benchmark::DoNotOptimize(mpz_get_str(text.data(), 10, result));
  }
  mpz_clears(first, second, result, nullptr);
}

void Quorvex_Greater(benchmark::State& state) {
  const Operands operands(state);
  HostValue first(operands.first);
  HostValue second(operands.second);
  cls_Quorvex engine;
  for (auto step : state) benchmark::DoNotOptimize(engine.qvxISGREATER(first, second));
}

void Gmp_Greater(benchmark::State& state) {
  const Operands operands(state);
  mpz_t first;
  mpz_t second;
  mpz_inits(first, second, nullptr);
  for (auto step : state) {
    mpz_set_str(first, operands.first.c_str(), 10);
    mpz_set_str(second, operands.second.c_str(), 10);
    benchmark::DoNotOptimize(mpz_cmp(first, second) > 0);
  }
  mpz_clears(first, second, nullptr);
}

void Sizes(benchmark::internal::Benchmark* bench) {
  for (const int digits : {10, 30, 100, 1000, 10'000, 100'000, 1'000'000}) bench->Arg(digits);
}

BENCHMARK_CAPTURE(Quorvex, add, &cls_Quorvex::qvxADD)->Apply(Sizes);
BENCHMARK_CAPTURE(Gmp, add, &mpz_add)->Apply(Sizes);
BENCHMARK_CAPTURE(Quorvex, subtract, &cls_Quorvex::qvxSUBTRACT)->Apply(Sizes);
BENCHMARK_CAPTURE(Gmp, subtract, &mpz_sub)->Apply(Sizes);
BENCHMARK(Quorvex_Greater)->Name("Quorvex/isgreater")->Apply(Sizes);
BENCHMARK(Gmp_Greater)->Name("Gmp/isgreater")->Apply(Sizes);

}  // namespace
