// Counting equal numbers, beside a search through all that came before.
#include "lists/mode_table.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "host/conversions.h"
#include "lists/mode_options.h"
#include "lists/random_lists.h"
#include "text/compare_numbers.h"
#include "text/recognition.h"

namespace quorvex {
namespace {

using Pairs = std::vector<std::pair<std::string, std::size_t>>;

Pairs Of(const std::vector<Mode_Table::Column>& columns) {
  Pairs pairs;
  for (const auto& column : columns) pairs.emplace_back(column.value, column.count);
  return pairs;
}

void Count(Pairs& pairs, const std::string& element) {
  if (!Is_Number_Text(element)) return;
  for (auto& [value, count] : pairs) {
    if (!Is_True(Compare_Numbers(value, element, true, false))) continue;
    ++count;
    return;
  }
  pairs.emplace_back(element, 1);
}

Pairs By_Exchanges(Pairs pairs) {
  for (std::size_t best = 0; best < pairs.size(); ++best) {
    for (std::size_t i = best; i < pairs.size(); ++i) {
      if (pairs[i].second > pairs[best].second) std::swap(pairs[i], pairs[best]);
    }
  }
  return pairs;
}

TEST(ModeTable, CountsAndSortsAsTheSearchAndTheExchanges) {
  In_Each_Locale([] {
    for (unsigned seed = 0; seed < 80; ++seed) {
      Random_Lists lists(seed);
      Random_Numbers& random = lists.random();
      std::vector<std::string> pool;
      for (std::size_t i = 0; i < 1 + seed % 40; ++i) {
        pool.push_back(random.one_in(2) ? Localized(std::to_string(random.below(40)) + ".0")
                                        : lists.element(20));
        if (random.one_in(9)) pool.push_back(Localized("1.2.3E+1"));
      }
      Mode_Table table;
      Pairs pairs;
      for (int i = 0; i < 120; ++i) {
        // Few of them often, so that counts differ.
        const std::string& element = pool[random.below(1 + random.below(pool.size()))];
        table.add(element);
        Count(pairs, element);
      }
      ASSERT_EQ(Of(table.columns()), pairs) << seed;
      ASSERT_EQ(Of(std::move(table).by_count()), By_Exchanges(pairs)) << seed;
    }
  });
}

TEST(ModeOptions, TakeTheFillerAsItWasWritten) {
  struct {
    std::vector<std::string> strings;
    bool table;
    std::optional<std::string> blank;
  } const cases[] = {
      {{"format:table"}, true, {}},
      {{"format:Blank=Leer&table"}, true, "Leer"},
      {{"format:blank=a table"}, true, "a table"},
      {{"format:blank="}, false, ""},
      {{"format:blank=a&", "format:blank=b,table"}, true, "a"},
      // The small dotless i is two bytes long, and its capital one.
      {{"format:\u0131\u0131 blank=\u00e9\u0131&"}, false, "\u00e9\u0131"},
      {{"format:negative,thousands,currency,exponent", "format:MSD=5,table", "format:blank=x"},
       true,
       {}},
      {{"format:negative,thousands,currency,exponent,MSD=5", "format:table,MSD=x"}, false, {}},
  };
  for (const auto& [strings, table, blank] : cases) {
    Mode_Options options;
    for (const std::string& each : strings) Read_Mode_Options(each, To_Capitals(each), options);
    EXPECT_EQ(options.table, table) << strings.front();
    EXPECT_EQ(options.blank, blank) << strings.front();
  }
}

}  // namespace
}  // namespace quorvex
