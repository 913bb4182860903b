// Rows of what compares numbers and tells their sign.
#include "frame/rows/result_texts.h"
#include "frame/rows/row.h"

namespace quorvex::catalogue {
namespace {

Parameters Compared_By_Value() {
  return {By_Value("number1", first_number), By_Value("number2", second_number)};
}

}  // namespace

std::vector<Method> Comparison_Rows() {
  return {
      Row<&cls_Quorvex::qvxSIGN>({
          .name = "qvxSIGN",
          .slot = 56,
          .family = "Comparison",
          .category = math,
          .description =
              "Determines the sign of a number, with up to 32,767 significant digits of precision. "
              "Returns 1 for a positive number, 0 for zero and -1 for a negative number.",
          .example = "qvxSIGN(-273.15)",
          .parameters = {Operand_Parameter("num", first_number)},
          .results = {"The number 1, 0 or -1; the text 0 for a blank cell.",
                      {no_number_is_value, array_fails}},
      }),
      Row<&cls_Quorvex::qvxISEQUAL>({
          .name = "qvxISEQUAL",
          .slot = 65,
          .family = "Comparison",
          .category = operators,
          .place = 7,
          .description =
              "Determines whether two numbers are equal, with up to 32,767 significant digits of "
              "precision. Returns TRUE if they are equal; returns FALSE if not.",
          .example = "qvxISEQUAL(\"1.50\", 1.5)",
          .parameters = Compared_By_Value(),
          .results = {true_or_false_text, {no_number_is_num, token_passes, array_fails}},
      }),
      Row<&cls_Quorvex::qvxISNOTEQUAL>({
          .name = "qvxISNOTEQUAL",
          .slot = 66,
          .family = "Comparison",
          .category = operators,
          .place = 8,
          .description =
              "Determines whether two numbers differ, with up to 32,767 significant digits of "
              "precision. Returns TRUE if they differ; returns FALSE if they are equal.",
          .example = "qvxISNOTEQUAL(\"1.50\", 1.5)",
          .parameters = Compared_By_Value(),
          .results = {true_or_false_text,
                      {no_number_is_num, "But \"#VALUE!\" and \"#DIV/0!\" differ from everything.",
                       array_fails}},
      }),
      Row<&cls_Quorvex::qvxISGREATER>({
          .name = "qvxISGREATER",
          .slot = 67,
          .family = "Comparison",
          .category = operators,
          .place = 9,
          .description = "Determines whether one number is larger than another, with up to 32,767 "
                         "significant digits of precision. Returns TRUE if the first number is "
                         "larger than the second; returns FALSE if the first number is smaller "
                         "than the second number, or if they are equal.",
          .example = "qvxISGREATER(\"0.1\", \"0.09\")",
          .parameters = {Operand_Parameter("number1", first_number),
                         Operand_Parameter("number2", second_number)},
          .results = {true_or_false_text, {no_number_is_num, token_passes, array_fails}},
      }),
      Row<&cls_Quorvex::qvxISGREATEROREQUAL>({
          .name = "qvxISGREATEROREQUAL",
          .slot = 68,
          .family = "Comparison",
          .category = operators,
          .place = 10,
          .description =
              "Determines whether one number is larger than another or equal to it, with up to "
              "32,767 significant digits of precision. Returns TRUE if the first number is larger "
              "than the second or equal to it; returns FALSE if it is smaller.",
          .example = "qvxISGREATEROREQUAL(2, 10)",
          .parameters = Compared_By_Value(),
          .results = {true_or_false_text, {no_number_is_num, token_passes, array_fails}},
      }),
      Row<&cls_Quorvex::qvxISLESS>({
          .name = "qvxISLESS",
          .slot = 69,
          .family = "Comparison",
          .category = operators,
          .place = 11,
          .description =
              "Determines whether one number is smaller than another, with up to 32,767 "
              "significant digits of precision. Returns TRUE if the first number is smaller than "
              "the second; returns FALSE if it is larger, or if they are equal.",
          .example = "qvxISLESS(-2, -1)",
          .parameters = Compared_By_Value(),
          .results = {true_or_false_text, {no_number_is_num, token_passes, array_fails}},
      }),
      Row<&cls_Quorvex::qvxISLESSOREQUAL>({
          .name = "qvxISLESSOREQUAL",
          .slot = 70,
          .family = "Comparison",
          .category = operators,
          .place = 12,
          .description =
              "Determines whether one number is smaller than another or equal to it, with up to "
              "32,767 significant digits of precision. Returns TRUE if the first number is smaller "
              "than the second or equal to it; returns FALSE if it is larger.",
          .example = "qvxISLESSOREQUAL(2, 2)",
          .parameters = Compared_By_Value(),
          .results = {true_or_false_text, {no_number_is_num, token_passes, array_fails}},
      }),
  };
}

}  // namespace quorvex::catalogue
