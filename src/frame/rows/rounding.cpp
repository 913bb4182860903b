// Rows of rounding to a count of places.
#include "frame/rows/result_texts.h"
#include "frame/rows/row.h"

namespace quorvex::catalogue {
namespace {

Parameters Rounding_Parameters() {
  return With_Formats({Operand_Parameter("num", first_number),
                       Operand_Parameter("num_digits",
                                         "the decimal places to keep; a negative count acts one "
                                         "place short, so that -2 rounds to tens")});
}

}  // namespace

std::vector<Method> Rounding_Rows() {
  return {
      Row<&cls_Quorvex::qvxROUND>({
          .name = "qvxROUND",
          .slot = 71,
          .family = "Rounding",
          .category = math,
          .description = "Rounds a number to a count of decimal places, with up to 32,767 "
                         "significant digits of precision. Halves are rounded away from zero.",
          .example = "qvxROUND(\"12345678901234567890.125\", 2)",
          .parameters = Rounding_Parameters(),
          .results = {rounded_number, {rounding_of_no_number, option_fails}},
      }),
      Row<&cls_Quorvex::qvxROUNDUP>({
          .name = "qvxROUNDUP",
          .slot = 72,
          .family = "Rounding",
          .category = math,
          .description = "Rounds a number away from zero to a count of decimal places, with up to "
                         "32,767 significant digits of precision. The result is never below one "
                         "unit of the last place.",
          .example = "qvxROUNDUP(\"0.00000000000000000001\", 2)",
          .parameters = Rounding_Parameters(),
          .results = {rounded_number, {rounding_of_no_number, option_fails}},
      }),
      Row<&cls_Quorvex::qvxROUNDDOWN>({
          .name = "qvxROUNDDOWN",
          .slot = 73,
          .family = "Rounding",
          .category = math,
          .description = "Rounds a number towards zero to a count of decimal places, with up to "
                         "32,767 significant digits of precision.",
          .example = "qvxROUNDDOWN(\"-12345678901234567890.129\", 2)",
          .parameters = Rounding_Parameters(),
          .results = {rounded_number, {rounding_of_no_number, option_fails}},
      }),
  };
}

}  // namespace quorvex::catalogue
