// Sums, products and extremes of lists of fifty-digit numbers, beside GMP's integers.
#include <benchmark/benchmark.h>
#include <gmp.h>

#include <string>
#include <utility>
#include <vector>

#include "bench_digits.h"
#include "quorvex.h"

namespace {

using quorvex::Array;
using quorvex::cls_Quorvex;
using quorvex::HostValue;
using quorvex::List;

constexpr std::size_t digits_of_each = 50;

// One column of so many numbers; every other one negative, if they are to be mixed.
std::vector<std::string> Numbers(const benchmark::State& state, bool mixed = false) {
  std::vector<std::string> numbers;
  for (unsigned i = 0; i < static_cast<unsigned>(state.range(0)); ++i) {
    std::string number = bench::Digits(digits_of_each, i + 2);
    if (mixed && i % 2 == 1) number.insert(0, 1, '-');
    numbers.push_back(std::move(number));
  }
  return numbers;
}

List Column(const std::vector<std::string>& numbers) {
  Array array;
  array.rows = numbers.size();
  array.columns = 1;
  for (const std::string& number : numbers) array.values.emplace_back(number);
  return {std::move(array)};
}

using Method = quorvex::NumberText (cls_Quorvex::*)(const List&);

// The whole call: the list walked, its elements recognised, the result formatted.
void Lists(benchmark::State& state, Method method, bool mixed) {
  const List list = Column(Numbers(state, mixed));
  cls_Quorvex engine;
  for (auto step : state) benchmark::DoNotOptimize((engine.*method)(list));
}

void Gmp_Sum(benchmark::State& state, bool mixed) {
  const auto numbers = Numbers(state, mixed);
  mpz_t sum;
  mpz_t number;
  mpz_inits(sum, number, nullptr);
  std::string text(digits_of_each + 20, '\0');
  for (auto step : state) {
    mpz_set_ui(sum, 0);
    for (const std::string& each : numbers) {
      mpz_set_str(number, each.c_str(), 10);
      mpz_add(sum, sum, number);
    }
    benchmark::DoNotOptimize(mpz_get_str(text.data(), 10, sum));
  }
  mpz_clears(sum, number, nullptr);
}

// Multiplies by halves, so that long numbers meet long numbers.
void Gmp_Product(benchmark::State& state) {
  const auto numbers = Numbers(state);
  std::vector<mpz_t> factors(numbers.size());
  for (auto& factor : factors) mpz_init(factor);
  std::string text(digits_of_each * numbers.size() + 2, '\0');
  for (auto step : state) {
    for (std::size_t i = 0; i < numbers.size(); ++i)
      mpz_set_str(factors[i], numbers[i].c_str(), 10);
    for (std::size_t width = 1; width < numbers.size(); width *= 2) {
      for (std::size_t i = 0; i + width < numbers.size(); i += 2 * width)
        mpz_mul(factors[i], factors[i], factors[i + width]);
    }
    benchmark::DoNotOptimize(mpz_get_str(text.data(), 10, factors.front()));
  }
  for (auto& factor : factors) mpz_clear(factor);
}

void Gmp_Max(benchmark::State& state) {
  const auto numbers = Numbers(state);
  mpz_t best;
  mpz_t number;
  mpz_inits(best, number, nullptr);
  std::string text(digits_of_each + 2, '\0');
  for (auto step : state) {
    mpz_set_str(best, numbers.front().c_str(), 10);
    for (const std::string& each : numbers) {
      mpz_set_str(number, each.c_str(), 10);
      if (mpz_cmp(number, best) > 0) mpz_swap(best, number);
    }
    benchmark::DoNotOptimize(mpz_get_str(text.data(), 10, best));
  }
  mpz_clears(best, number, nullptr);
}

constexpr int many = 100'000;
constexpr int some = 1000;

BENCHMARK_CAPTURE(Lists, sum, &cls_Quorvex::qvxSUM2, false)->Name("List/sum")->Arg(many);
BENCHMARK_CAPTURE(Gmp_Sum, sum, false)->Name("Gmp list/sum")->Arg(many);
BENCHMARK_CAPTURE(Lists, mixed, &cls_Quorvex::qvxSUM2, true)->Name("List/mixed sum")->Arg(many);
BENCHMARK_CAPTURE(Gmp_Sum, mixed, true)->Name("Gmp list/mixed sum")->Arg(many);
BENCHMARK_CAPTURE(Lists, max, &cls_Quorvex::qvxMAX, false)->Name("List/max")->Arg(many);
BENCHMARK(Gmp_Max)->Name("Gmp list/max")->Arg(many);
BENCHMARK_CAPTURE(Lists, product, &cls_Quorvex::qvxPRODUCT, false)->Name("List/product")->Arg(some);
BENCHMARK(Gmp_Product)->Name("Gmp list/product")->Arg(some);

}  // namespace
