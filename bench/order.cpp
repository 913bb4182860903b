// Sorting and counting fifty-digit numbers, and taking numbers out of long texts.
#include <benchmark/benchmark.h>
#include <gmp.h>

#include <algorithm>
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

HostValue Column(std::vector<HostValue> cells) {
  Array array;
  array.rows = cells.size();
  array.columns = 1;
  array.values = std::move(cells);
  return array;
}

// So many cells with so many different numbers, which begin alike.
HostValue Numbers(std::size_t count, std::size_t different) {
  std::vector<HostValue> cells;
  for (std::size_t i = 0; i < count; ++i) {
    cells.emplace_back(bench::Digits(digits_of_each, static_cast<unsigned>(i % different) + 2));
  }
  return Column(std::move(cells));
}

// The whole call: cells read, sorted, and copied into the result.
void Sort(benchmark::State& state) {
  const auto count = static_cast<std::size_t>(state.range(0));
  const HostValue column = Numbers(count, count);
  cls_Quorvex engine;
  for (auto step : state) benchmark::DoNotOptimize(engine.qvxSORT(column));
}

// Numbers are allocated once; their texts are copied in their order.
void Gmp_Sort(benchmark::State& state) {
  const auto count = static_cast<std::size_t>(state.range(0));
  std::vector<std::string> texts;
  for (unsigned i = 0; i < count; ++i) texts.push_back(bench::Digits(digits_of_each, i + 2));
  std::vector<mpz_t> numbers(count);
  for (auto& number : numbers) mpz_init(number);
  std::vector<std::size_t> order(count);
  for (auto step : state) {
    for (std::size_t i = 0; i < count; ++i) {
      mpz_set_str(numbers[i], texts[i].c_str(), 10);
      order[i] = i;
    }
    std::sort(order.begin(), order.end(),
              [&](std::size_t a, std::size_t b) { return mpz_cmp(numbers[a], numbers[b]) < 0; });
    std::vector<std::string> sorted;
    sorted.reserve(count);
    for (const std::size_t i : order) sorted.push_back(texts[i]);
    benchmark::DoNotOptimize(sorted.data());
  }
  for (auto& number : numbers) mpz_clear(number);
}

// Half as many different numbers as cells.
void Mode(benchmark::State& state, const char* options) {
  const auto count = static_cast<std::size_t>(state.range(0));
  const List list = {Numbers(count, count / 2), options};
  cls_Quorvex engine;
  for (auto step : state) benchmark::DoNotOptimize(engine.qvxMODE(list));
}

// Digits with a word between every ten of them.
std::string Text(std::size_t size) {
  std::string text;
  for (unsigned i = 2; text.size() < size; ++i) text += bench::Digits(10, i) + " item, ";
  text.resize(size);
  return text;
}

using Method = quorvex::NumberText (cls_Quorvex::*)(const List&);

void Extraction(benchmark::State& state, Method method, const List& entries) {
  List list = {Text(static_cast<std::size_t>(state.range(0)))};
  list.insert(list.end(), entries.begin(), entries.end());
  cls_Quorvex engine;
  for (auto step : state) benchmark::DoNotOptimize((engine.*method)(list));
}

constexpr int megabyte = 1'000'000;

BENCHMARK(Sort)->Name("Order/sort")->Arg(10'000)->Arg(100'000);
BENCHMARK(Gmp_Sort)->Name("Gmp list/sort")->Arg(10'000)->Arg(100'000);
BENCHMARK_CAPTURE(Mode, value, "format:")->Name("Order/mode")->Arg(5000)->Arg(10'000);
BENCHMARK_CAPTURE(Mode, table, "format:table")->Name("Order/mode table")->Arg(5000)->Arg(10'000);
BENCHMARK_CAPTURE(Extraction, exclude, &cls_Quorvex::qvxEXCLUDE, {" item, "})
    ->Name("Order/exclude")
    ->Arg(megabyte);
BENCHMARK_CAPTURE(Extraction, filter, &cls_Quorvex::qvxEXCLUDENOTNUM, {})
    ->Name("Order/excludenotnum")
    ->Arg(megabyte);
BENCHMARK_CAPTURE(Extraction, extract, &cls_Quorvex::qvxEXTRACT, {"1", "23", "item"})
    ->Name("Order/extract")
    ->Arg(megabyte);
BENCHMARK_CAPTURE(Extraction, both, &cls_Quorvex::qvxEXTRACTNUM, {"item"})
    ->Name("Order/extractnum")
    ->Arg(megabyte);

}  // namespace
