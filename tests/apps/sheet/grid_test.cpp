// The printed grid.
#include "sheet/grid.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "sheet/csv.h"
#include "support/locales.h"

namespace quorvex {
namespace {

TEST(PrintGrid, AlignsColumnsByWhatStandsInThem) {
  const Locale_Guard locale(Point_Locale());
  struct {
    const char* csv;
    std::size_t limit;
    const char* grid;
  } const cases[] = {
      {"", 0, ""},
      {"item,price\nbread,2.5\n\"größe\",10\n", 0,
       "item   price\n"
       "bread    2.5\n"
       "größe     10\n"},
      // Number-like text of each kind goes right; a note doesn't widen the column under it.
      {"# A note that is longer than all of the columns\n"
       "\"1,234.5\",a\n$5,bb\n(7),c\n'-1.5E+3,d\n\"12345678901234567890\",e\ntext,f\n#N/A,g\n",
       0,
       "# A note that is longer than all of the columns\n"
       "             1,234.5  a\n"
       "                  $5  bb\n"
       "                 (7)  c\n"
       "             -1.5E+3  d\n"
       "12345678901234567890  e\n"
       "text                  f\n"
       "#N/A                  g\n"},
      {"a,,b\n,5\n\n,,c", 0,
       "a     b\n"
       "   5\n"
       "\n"
       "      c\n"},
      {"12345678901234567890,ääääääää\n", 6, "12345…  äääää…\n"},
      {"\"two\nlines\",\x1B[31mred", 0, "two␊lines  ␛[31mred\n"},
      {"\u202Ea,\u200Bb,\u0085", 0, "<U+202E>a  <U+200B>b  <U+0085>\n"},
  };
  for (const auto& [csv, limit, grid] : cases) {
    Worksheet sheet("Sheet1");
    Read_Csv(csv, "test.csv", sheet);
    std::ostringstream out;
    Print_Grid(out, sheet, {limit});
    EXPECT_EQ(out.str(), grid);
  }
}

TEST(PrintGrid, ShortensTheWidestColumnsToFit) {
  const Locale_Guard locale(Point_Locale());
  Worksheet sheet("Sheet1");
  Read_Csv("# a note that may be long\nab,123456789012,abcdefgh\n", "test.csv", sheet);
  struct {
    std::size_t width;
    const char* grid;
  } const cases[] = {
      {26, "# a note that may be long\nab  123456789012  abcdefgh\n"},
      {20, "# a note that may be long\nab  123456\u2026  abcdef\u2026\n"},
      {14, "# a note that may be long\nab  123\u2026  abc\u2026\n"},
      {1, "# a note that may be long\nab  123\u2026  abc\u2026\n"},
  };
  for (const auto& [width, grid] : cases) {
    std::ostringstream out;
    EXPECT_EQ(Print_Grid(out, sheet, {.total_width = width}), width >= 26);
    EXPECT_EQ(out.str(), grid);
  }
}

}  // namespace
}  // namespace quorvex
