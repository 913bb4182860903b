// Text extraction, beside plain loops.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "frame/class/cls_Quorvex.h"
#include "lists/delete_text.h"
#include "lists/number_filter.h"
#include "support/failures.h"
#include "support/localized.h"
#include "support/random_numbers.h"
#include "support/slow_extraction.h"
#include "support/surroundings.h"

namespace quorvex {
namespace {

std::string Random_Text(Random_Numbers& random, std::size_t most,
                        const std::vector<std::string>& pieces) {
  std::string text;
  for (std::size_t i = random.below(most + 1); i > 0; --i)
    text += pieces[random.below(pieces.size())];
  return Localized(text);
}

// Few letters, so that what is deleted brings more of it together.
const std::vector<std::string> letters = {"a", "b", "ab", "aab", "\u00e9", "\u20ac"};
const std::vector<std::string> marks = {"1", "2", "E", "E+", "E-", "-",      "+", "(",
                                        ")", ".", ",", "e",  " ",  "\u00e9", "0", "1.5E+3"};

TEST(DeleteEvery, DeletesWhatTheLoopDeletes) {
  for (unsigned seed = 0; seed < 20000; ++seed) {
    Random_Numbers random(seed);
    std::string text = Random_Text(random, 24, letters);
    const std::string entry = Random_Text(random, 4, letters);
    if (entry.empty()) continue;
    const std::string expected = slow::Without(text, entry);
    Delete_Every(text, entry);
    ASSERT_EQ(text, expected) << seed << ' ' << entry;
  }
}

TEST(DeleteEvery, IsLinearWhereEveryDeletionBringsAnother) {
  const std::size_t count = 400'000;
  std::string text = std::string(count, 'a') + "x" + std::string(count, 'b');
  text += std::string(count, 'a') + std::string(count, 'b');
  Delete_Every(text, "ab");
  EXPECT_EQ(text, std::string(count, 'a') + "x" + std::string(count, 'b'));
  text = std::string(count, 'a');
  Delete_Every(text, std::string(count / 2, 'a') + "b");
  EXPECT_EQ(text.size(), count);
}

TEST(DeleteEvery, AsksForItsMemory) {
  const Memory_Guard poor(0);
  std::string text(20'000'000, '1');
  EXPECT_EQ(Failure_Of([&] { Delete_Every(text, "12"); }), Failure_Number::out_of_memory);
}

TEST(Extraction, AgreesWithTheLoops) {
  const Locale_Guard locale(Point_Locale());
  cls_Quorvex engine;
  std::vector<std::string> pieces = marks;
  pieces.insert(pieces.end(), letters.begin(), letters.end());
  for (unsigned seed = 0; seed < 4000; ++seed) {
    Random_Numbers random(seed);
    const std::string source = Random_Text(random, 16, pieces);
    if (source.empty()) continue;
    List list = {source};
    std::vector<std::string> entries;
    std::string left = source;
    for (std::size_t i = random.below(4); i > 0; --i) {
      const std::string entry = Random_Text(random, 3, pieces);
      list.emplace_back(entry);
      if (entry.empty()) continue;
      entries.push_back(entry);
      left = slow::Without(left, entry);
    }
    // Formatted alike, what is kept must agree.
    const auto shown = [&](const std::string& kept) { return engine.qvxEXCLUDE({kept}); };
    ASSERT_EQ(engine.qvxEXCLUDE(list), shown(left)) << seed;
    ASSERT_EQ(engine.qvxEXCLUDENOTNUM(list), shown(Filtered_Number(left))) << seed;
    ASSERT_EQ(engine.qvxEXTRACT(list), shown(slow::Extracted(source, entries))) << seed;
  }
}

// Entries so long that they are no longer compared at each place, and that nearly stand at many.
TEST(Extraction, FindsLongEntries) {
  for (unsigned seed = 0; seed < 150; ++seed) {
    Random_Numbers random(seed);
    const auto nearly_alike = [&](std::size_t length) {
      std::string text(length, 'a');
      for (std::size_t i = 1 + random.below(3); i > 0; --i) {
        text.replace(random.below(length), 1, random.one_in(2) ? "b" : "\u00e9");
      }
      return text;
    };
    std::string source = nearly_alike(200 + random.below(200));
    std::vector<std::string> entries;
    for (int i = 0; i < 3; ++i) {
      const std::size_t length = 60 + random.below(100);
      std::string entry = random.one_in(2) ? nearly_alike(length) : std::string(length, 'a');
      if (random.one_in(2)) source += entry + entry.substr(random.below(length));
      entries.push_back(std::move(entry));
    }
    List list = {source};
    list.insert(list.end(), entries.begin(), entries.end());
    cls_Quorvex engine;
    ASSERT_EQ(engine.qvxEXTRACT(list), slow::Extracted(source, entries)) << seed;
  }
}

// Read through at each place, the entry would take hours.
TEST(Extraction, IsLinearWhereALongEntryNearlyStandsEverywhere) {
  const std::string entry = std::string(2'000'000, '1') + "2";
  List list = {std::string(8'000'000, '1'), entry};
  cls_Quorvex engine;
  EXPECT_EQ(engine.qvxEXTRACT(list), "");
  list.front() = std::string(8'000'000, '1') + "23";
  EXPECT_EQ(engine.qvxEXTRACT(list), entry);
}

TEST(Extraction, CanBeBrokenOff) {
  cls_Quorvex engine;
  const List list = {std::string(3 * digits_between_yields, 'x'), "xy"};
  const Interruption_Guard impatient;
  EXPECT_EQ(Failure_Of([&] { engine.qvxEXTRACT(list); }), Failure_Number::interrupted);
  EXPECT_EQ(Failure_Of([&] { engine.qvxEXCLUDE(list); }), Failure_Number::interrupted);
  EXPECT_EQ(Failure_Of([&] { engine.qvxEXCLUDENOTNUM(list); }), Failure_Number::interrupted);
}

TEST(Extraction, AsksForTheMemoryOfLongEntries) {
  cls_Quorvex engine;
  const List list = {std::string(20'000'001, '1'), std::string(20'000'000, '1') + "2"};
  const Memory_Guard poor(0);
  EXPECT_EQ(Failure_Of([&] { engine.qvxEXTRACT(list); }), Failure_Number::out_of_memory);
}

TEST(Extraction, AsksForTheMemoryThatOverlapsNeed) {
  cls_Quorvex engine;
  const List list = {std::string(200'000, 'a'), std::string(100'000, 'a')};
  const Memory_Guard memory(1 << 28);
  EXPECT_EQ(Failure_Of([&] { engine.qvxEXTRACT(list); }), Failure_Number::out_of_memory);
}

}  // namespace
}  // namespace quorvex
