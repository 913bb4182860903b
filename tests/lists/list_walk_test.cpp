// What a walk over a list gives, in which order, and how it ends.
#include "lists/list_walk.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/cells.h"
#include "support/failures.h"
#include "support/surroundings.h"

namespace quorvex {
namespace {

std::vector<std::string> Texts(const List& list, std::size_t most = 100) {
  std::vector<std::string> texts;
  For_Each_Text(list, [&](std::string_view text) {
    texts.emplace_back(text);
    return texts.size() < most ? Walk::on : Walk::end;
  });
  return texts;
}

const HostValue blank = HostValue::Empty();
const HostValue not_available = Error_Code::not_available;

TEST(ListWalk, GivesTextsInOrderAsTheyWereWritten) {
  const List list = {1.5,
                     Array_Of(3, {"a", blank, true, not_available, "", "Format:x"}),
                     Missing,
                     blank,
                     not_available,
                     Range_Of_Cells(1, {"b", 2, blank}),
                     "c"};
  const std::vector<std::string> all = {"1.5",     "a", "True", "Error 2042", "Format:x",
                                        "#VALUE!", "b", "2",    "c"};
  EXPECT_EQ(Texts(list), all);
  std::vector<std::string> some;
  for (const std::string& each : all) {
    some.push_back(each);
    EXPECT_EQ(Texts(list, some.size()), some);
  }
}

TEST(ListWalk, ReadsARangeOfOneCellAsThatCell) {
  EXPECT_EQ(Texts({Range_Of_Cells(1, {not_available}), Range_Of_Cells(1, {"x"}),
                   Range_Of_Cells(1, {blank}), Range_Of_Cells(2, {not_available, 7})}),
            (std::vector<std::string>{"#VALUE!", "x", "Error 2042", "7"}));
}

TEST(ListWalk, RefusesShapesThatHoldNoCells) {
  const HostValue array = Array_Of(1, {1});
  for (const HostValue& bad :
       {HostValue(List{1, 2}), HostValue(Array_Of(2, {1, array})),
        HostValue(Array_Of(1, {HostValue(List{1})})), HostValue(Array_Of(1, {Missing})),
        Range_Of_Cells(1, {Range_Of_Cells(1, {1})})}) {
    EXPECT_EQ(Failure_Of([&] { Texts({1, bad}); }), Failure_Number::type_mismatch);
    EXPECT_EQ(Failure_Of([&] { Texts({1, bad}, 1); }), std::nullopt);
  }
}

TEST(ListWalk, FoldsToCapitalsAndTakesOptionStringsOut) {
  List_Options options;
  std::string seen;
  const List list = {"abc",
                     "1.5e+3",
                     "Äöß",
                     Array_Of(1, {"format:msd=7,negative", "x"}),
                     " format:thousands",
                     "fOrMaT:Currency"};
  Walk_List(list, options, [&](const List_Element& element) {
    seen += std::string(element.text) + (options.has_msd ? "|" : "/");
    return Walk::on;
  });
  EXPECT_EQ(seen, "ABC/1.5E+3/ÄÖß/X| FORMAT:THOUSANDS|");
  EXPECT_EQ(options.msd, 7);
  EXPECT_TRUE(options.negative && options.currency);
  EXPECT_FALSE(options.thousands || options.exponent);
}

TEST(ListWalk, FoldsTextOfAnyLength) {
  std::string scratch;
  for (std::size_t length = 0; length < 40; ++length) {
    const std::string plain(length, 'Z');
    EXPECT_EQ(Capitals_Of(plain, scratch).data(), plain.data());
    for (std::size_t place = 0; place < length; ++place) {
      std::string text = plain;
      text[place] = place % 2 == 0 ? 'a' : 'z';
      std::string folded = plain;
      folded[place] = place % 2 == 0 ? 'A' : 'Z';
      EXPECT_EQ(Capitals_Of(text, scratch), folded);
    }
  }
}

TEST(ListWalk, CanBeBrokenOff) {
  const std::vector<HostValue> many(1000, HostValue(1));
  const Interruption_Guard impatient;
  for (const List& list : {List(many), List{Array_Of(1, many)}, List{Range_Of_Cells(10, many)}}) {
    EXPECT_EQ(Failure_Of([&] { Texts(list, 2000); }), Failure_Number::interrupted);
  }
}

}  // namespace
}  // namespace quorvex
