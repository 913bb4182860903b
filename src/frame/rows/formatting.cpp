// Rows of the formatting options, and of what reads or formats a number as it is.
#include "frame/rows/result_texts.h"
#include "frame/rows/row.h"

namespace quorvex::catalogue {

std::vector<Method> Formatting_Rows() {
  return {
      Row<&cls_Quorvex::PublicRestrictionatorCaller>({
          .name = "PublicRestrictionatorCaller",
          .slot = 3,
          .family = "Call frame",
          .description = "Resolves the first five formatting options, as every function does.",
          .example = "PublicRestrictionatorCaller(2, TRUE)",
          .parameters = With_Digits({}),
          .results = {options_record, {unread_option_fails}},
      }),
      Row<&cls_Quorvex::Restrictionator>({
          .name = "Restrictionator",
          .slot = 4,
          .family = "Call frame",
          .description = "Resolves the formatting options, as every function does.",
          .example = "Restrictionator(2, TRUE, , , 50, 2)",
          .parameters = With_Places({}),
          .results = {options_record, {unread_option_fails}},
      }),
      Row<&cls_Quorvex::qvxISNUMBER>({
          .name = "qvxISNUMBER",
          .slot = 46,
          .family = "Recognition",
          .category = information,
          .description =
              "Determines whether a value or text string can be evaluated as a number by Quorvex "
              "functions, with up to 32,767 significant digits of precision. Returns TRUE if input "
              "can be evaluated as a number by Quorvex functions; returns FALSE if not.",
          .example = "qvxISNUMBER(\"-1,234.5\")",
          .parameters = {Operand_Parameter("num", "a value or text")},
          .results = {true_or_false, {"No token: text that is one is no number.", array_fails}},
      }),
      Row<&cls_Quorvex::qvxDEFAULTMAXSD>({
          .name = "qvxDEFAULTMAXSD",
          .slot = 83,
          .family = "Call frame",
          .description =
              "Returns the maximum significant digits that a function uses when none are given.",
          .example = "qvxDEFAULTMAXSD()",
          .results = {"A number.", {nothing_fails}},
      }),
      Row<&cls_Quorvex::qvxFORMAT>({
          .name = "qvxFORMAT",
          .slot = 97,
          .family = "Formatting",
          .category = miscellaneous,
          .place = 1,
          .description = "Applies formatting to a number entered as text.",
          .example = "qvxFORMAT(\"-1234567.891\", 2, TRUE, TRUE, , , 2)",
          .parameters = With_Places({Operand_Parameter("number", "a number as text")}),
          .results = {"The number, formatted, at the limit and one digit more.",
                      {no_number_is_num_or_value, token_passes, option_fails,
                       "It fails, too, where rounding to fixed places would carry into a thousands "
                       "separator."}},
      }),
  };
}

}  // namespace quorvex::catalogue
