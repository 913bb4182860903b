// Products from text to text by the library's one routine, beside GMP and FLINT.
#include <benchmark/benchmark.h>
#include <flint/fmpz.h>
#include <gmp.h>

#include <algorithm>
#include <string>

#include "bench_digits.h"
#include "native/multiply.h"

extern "C" int Multiply(const char* op1, const char* op2, char* product, const char* accessCode);

namespace {

enum class Shape { balanced, unbalanced, square };

// The first operand has as many digits as the benchmark names, an unbalanced second one a tenth.
struct Operands {
  Operands(const benchmark::State& state, Shape shape)
      : first(bench::Digits(static_cast<std::size_t>(state.range(0)), 1)),
        second(shape == Shape::square
                   ? first
                   : bench::Digits(first.size() / (shape == Shape::unbalanced ? 10 : 1), 2)),
        product(2 * first.size() + 3, ' ') {}
  std::string first;
  std::string second;
  std::string product;
};

void Ours(benchmark::State& state, Shape shape) {
  Operands operands(state, shape);
  for (auto step : state) {
    Multiply(operands.first.c_str(), operands.second.c_str(), operands.product.data(),
             "7305918264");
    benchmark::ClobberMemory();
  }
}

// The fastest way through the peers: numbers and the text of the product are allocated once, and a
// square is read once.
void Gmp(benchmark::State& state, Shape shape) {
  Operands operands(state, shape);
  mpz_t first;
  mpz_t second;
  mpz_t product;
  mpz_inits(first, second, product, nullptr);
  for (auto step : state) {
    mpz_set_str(first, operands.first.c_str(), 10);
    if (shape == Shape::square) {
      mpz_mul(product, first, first);
    } else {
      mpz_set_str(second, operands.second.c_str(), 10);
      mpz_mul(product, first, second);
    }
    benchmark::DoNotOptimize(mpz_get_str(operands.product.data(), 10, product));
  }
  mpz_clears(first, second, product, nullptr);
}

void Flint(benchmark::State& state, Shape shape) {
  Operands operands(state, shape);
  fmpz first[1] = {0};
  fmpz second[1] = {0};
  fmpz product[1] = {0};
  for (auto step : state) {
    fmpz_set_str(first, operands.first.c_str(), 10);
    if (shape == Shape::square) {
      fmpz_mul(product, first, first);
    } else {
      fmpz_set_str(second, operands.second.c_str(), 10);
      fmpz_mul(product, first, second);
    }
    benchmark::DoNotOptimize(fmpz_get_str(operands.product.data(), 10, product));
  }
  fmpz_clear(first);
  fmpz_clear(second);
  fmpz_clear(product);
}

// Any machine forms products with all kinds of instructions up to its best.
void By_Kind(benchmark::State& state, quorvex::native::Instructions kind) {
  if (kind > quorvex::native::Best_Instructions()) {
    state.SkipWithError("This machine has no such instructions.");
    return;
  }
  Operands operands(state, Shape::balanced);
  for (auto step : state) {
    quorvex::native::Multiply_Texts(operands.first, operands.second, operands.product.data(),
                                    operands.product.size(), kind);
    benchmark::ClobberMemory();
  }
}

void Sizes(benchmark::internal::Benchmark* bench) {
  for (const int digits : {10, 30, 100, 300, 1000, 3000, 10'000, 32'767, 100'000, 1'000'000})
    bench->Arg(digits);
}

BENCHMARK_CAPTURE(Ours, balanced, Shape::balanced)->Name("Multiply/product")->Apply(Sizes);
BENCHMARK_CAPTURE(Gmp, balanced, Shape::balanced)->Name("Gmp/product")->Apply(Sizes);
BENCHMARK_CAPTURE(Flint, balanced, Shape::balanced)->Name("Flint/product")->Apply(Sizes);
BENCHMARK_CAPTURE(Ours, unbalanced, Shape::unbalanced)->Name("Multiply/by a tenth")->Apply(Sizes);
BENCHMARK_CAPTURE(Gmp, unbalanced, Shape::unbalanced)->Name("Gmp/by a tenth")->Apply(Sizes);
BENCHMARK_CAPTURE(Flint, unbalanced, Shape::unbalanced)->Name("Flint/by a tenth")->Apply(Sizes);
BENCHMARK_CAPTURE(Ours, square, Shape::square)->Name("Multiply/square")->Apply(Sizes);
BENCHMARK_CAPTURE(Gmp, square, Shape::square)->Name("Gmp/square")->Apply(Sizes);
BENCHMARK_CAPTURE(Flint, square, Shape::square)->Name("Flint/square")->Apply(Sizes);

void Kind_Sizes(benchmark::internal::Benchmark* bench) {
  for (const int digits : {100, 300, 1000, 3000, 10'000, 100'000, 1'000'000}) bench->Arg(digits);
}

using quorvex::native::Instructions;
BENCHMARK_CAPTURE(By_Kind, portable, Instructions::portable)
    ->Name("Kind/portable")
    ->Apply(Kind_Sizes);
BENCHMARK_CAPTURE(By_Kind, avx2, Instructions::avx2)->Name("Kind/avx2")->Apply(Kind_Sizes);
BENCHMARK_CAPTURE(By_Kind, avx512, Instructions::avx512)->Name("Kind/avx512")->Apply(Kind_Sizes);

}  // namespace
