// Rows of sorting and of what rests on it.
#include "frame/rows/result_texts.h"
#include "frame/rows/row.h"

namespace quorvex::catalogue {
namespace {

constexpr std::string_view block = "a range of several cells, or an array";

Parameters Sort_Parameters() {
  return {
      Operand_Parameter("numlist", block),
      Truth_Option("descending", "TRUE puts the largest number first"),
      Truth_Option("left_to_right", "TRUE sorts row by row, not column by column"),
      Truth_Option("fit_to_array",
                   "TRUE pours the cells into the rows and columns asked for, whatever the shape "
                   "of the range"),
      Optional("blank_text", "what fills the cells that are left; empty text if left out"),
      Optional("rows", "the rows of the result; left out, those of the range"),
      Optional("cols", "the columns of the result; left out, those of the range")};
}

Parameters Place_Parameters(std::string_view k) {
  return {Operand_Parameter("numlist", block), Operand_Parameter("k", k)};
}

Parameters Mode_Parameters() {
  Parameters parameters = Number_List();
  parameters[0].help =
      "numbers, ranges and arrays; and among them, as text, how the result is formatted: "
      "\"format:\" and any of the words negative, thousands, currency, exponent, MSD=n, table, and "
      "blank= with what fills cells without a number, up to &. A formula's arguments all belong to "
      "the list";
  parameters.push_back(Optional("rows", "the rows of the cells for a table with blank="));
  parameters.push_back(Optional("cols", "the columns of the cells for a table with blank="));
  return parameters;
}

}  // namespace

std::vector<Method> Order_Rows() {
  return {
      Row<&cls_Quorvex::qvxMEDIAN>({
          .name = "qvxMEDIAN",
          .slot = 31,
          .family = "Order",
          .category = statistical,
          .description = "Returns the median of the numeric arguments, with up to 32,767 "
                         "significant digits of precision. For an even count of numbers MSD=n must "
                         "be given.  \"format:negative,thousands,currency,exponent,MSD=n\"",
          .example = "qvxMEDIAN({7, \"1.00000000000000000001\"; 1, \"no number\"})",
          .parameters = Number_List(),
          .results = {"The number in the middle, formatted; of an even count half the sum of the "
                      "two there.",
                      {"\"#VALUE!\" for an even count without MSD=. The call fails where there is "
                       "no number.",
                       list_fails}},
      }),
      Row<&cls_Quorvex::qvxMODE>({
          .name = "qvxMODE",
          .slot = 32,
          .family = "Order",
          .category = statistical,
          .description =
              "Returns the most frequently occurring of the numeric arguments, with up to 32,767 "
              "significant digits of precision. Array-enter to return table. "
              "\"format:table,blank=<text>&,negative,thousands,currency,exponent,MSD=n\"",
          .example = "qvxMODE({2, 3; 2, 1}, \"3.0\", \"2E+0\", \"format:table\")",
          .parameters = Mode_Parameters(),
          .results = {"The number, formatted, or with TABLE an array with a row for each number: "
                      "its count and itself. Empty text where there is no number.",
                      {"The call fails for a table of no numbers and for a block of less than one "
                       "row or column.",
                       list_fails}},
      }),
      Row<&cls_Quorvex::qvxSORT>({
          .name = "qvxSORT",
          .slot = 33,
          .family = "Order",
          .category = miscellaneous,
          .description = "Sorts a range of numbers, with up to 32,767 significant digits of "
                         "precision. Must be array-entered.",
          .example = "qvxSORT({10, 9; \"-0.00000000000000000001\", 0}, TRUE, TRUE)",
          .parameters = Sort_Parameters(),
          .results = {"An array of rows by cols cells: numbers in order, then whatever is no "
                      "number, then blank_text.",
                      {block_fails, "It fails, too, for less than one row or column."}},
      }),
      Row<&cls_Quorvex::qvxLARGE>({
          .name = "qvxLARGE",
          .slot = 34,
          .family = "Order",
          .category = statistical,
          .description = "Returns the k-th largest number of a range, with up to 32,767 "
                         "significant digits of precision.",
          .example = "qvxLARGE({1, 3; \"12345678901234567890\", 2}, 2)",
          .parameters =
              Place_Parameters("the place, from the largest number on: 1 for the largest"),
          .results = {"The number as it is written, not formatted.",
                      {place_is_num, block_fails, place_fails}},
      }),
      Row<&cls_Quorvex::qvxSMALL>({
          .name = "qvxSMALL",
          .slot = 35,
          .family = "Order",
          .category = statistical,
          .description = "Returns the k-th smallest number of a range, with up to 32,767 "
                         "significant digits of precision.",
          .example = "qvxSMALL({1, 3; \"-0.00000000000000000001\", 2}, 1)",
          .parameters =
              Place_Parameters("the place, from the smallest number on: 1 for the smallest"),
          .results = {"The number as it is written, not formatted.",
                      {place_is_num, block_fails, place_fails}},
      }),
      Row<&cls_Quorvex::qvxRANK>({
          .name = "qvxRANK",
          .slot = 36,
          .family = "Order",
          .category = statistical,
          .place = 1,
          .description = "Returns the rank of a number among the numbers of a range, with up to "
                         "32,767 significant digits of precision. The largest number ranks first "
                         "unless ascending is TRUE.",
          .example = "qvxRANK(2, {3, 2; \"2.0\", 1}, FALSE, TRUE)",
          .parameters = {Operand_Parameter("num", first_number),
                         Operand_Parameter("numlist", block),
                         Truth_Option("ascending", "TRUE ranks the smallest number first"),
                         Truth_Option("tie_compensation",
                                      "TRUE gives equal numbers the mean of their ranks")},
          .results = {"The place, as text; for a number that is not among them the count of cells, "
                      "less a half with tie_compensation.",
                      {"\"NUM!\", without a #, for a num that is no number.", block_fails}},
      }),
  };
}

}  // namespace quorvex::catalogue
