// Rows of fractions, their divisors and multiples.
#include "frame/rows/result_texts.h"
#include "frame/rows/row.h"

namespace quorvex::catalogue {

std::vector<Method> Fraction_Rows() {
  return {
      Row<&cls_Quorvex::qvxREDUCEFRACTION>({
          .name = "qvxREDUCEFRACTION",
          .slot = 74,
          .family = "Fractions",
          .category = math,
          .description = "Reduces a fraction to its lowest terms, with up to 32,767 significant "
                         "digits of precision. Returns the fraction, its numerator, its divisor "
                         "and the number it was reduced by, across a row and down a column.",
          .example = "qvxREDUCEFRACTION(\"1234567890123456789012\", \"9876543210987654321096\")",
          .parameters =
              {Operand_Parameter("Numerator", first_number),
               Operand_Parameter("divisor", second_number),
               Truth_Option("simplify_signs", "TRUE leaves a minus to the numerator at most"),
               Truth_Option("always_simplify_fraction",
                            "TRUE reduces also where the numerator becomes larger"),
               Truth_Option("return_numerator", "TRUE returns the numerator alone"),
               Truth_Option("return_divisor", "TRUE returns the divisor alone"),
               Truth_Option("return_reduced_by", "TRUE returns the number it was reduced by alone"),
               Optional("fraction_separator",
                        "what stands between numerator and divisor; a slash if left out")},
          .results =
              {"An array of text of four rows and columns, whose first row and first column hold "
               "the fraction, its numerator, its divisor and the number it was reduced by; or one "
               "of these alone, as text. All with all their digits, whatever the default limit is.",
               {no_number_is_num_or_value, token_passes,
                "The call fails where both numbers have decimals and the numerator has more digits "
                "on either side of its separator."}},
      }),
      Row<&cls_Quorvex::qvxGCD>({
          .name = "qvxGCD",
          .slot = 75,
          .family = "Fractions",
          .category = math,
          .description = "Returns the greatest common divisor of the numeric arguments, cut to "
                         "whole numbers, with up to 32,767 significant digits of precision.  "
                         "\"format:negative,thousands,currency,exponent,MSD=n\"",
          .example =
              "qvxGCD(\"123456789012345678901234567890\", \"987654321098765432109876543210\")",
          .parameters = Number_List(),
          .results = {divisor, {negative_is_num, list_fails}},
      }),
      Row<&cls_Quorvex::qvxGCD2>({
          .name = "qvxGCD2",
          .slot = 76,
          .family = "Fractions",
          .category = math,
          .description = "Returns the greatest common divisor of the numeric arguments, which are "
                         "not cut to whole numbers, with up to 32,767 significant digits of "
                         "precision.  \"format:negative,thousands,currency,exponent,MSD=n\"",
          .example = "qvxGCD2(7.5, 4.5)",
          .parameters = Number_List(),
          .results = {divisor, {first_text_stays, scaling_fails, list_fails}},
      }),
      Row<&cls_Quorvex::qvxLCM>({
          .name = "qvxLCM",
          .slot = 77,
          .family = "Fractions",
          .category = math,
          .description = "Returns the least common multiple of the numeric arguments, cut to whole "
                         "numbers, with up to 32,767 significant digits of precision.  "
                         "\"format:negative,thousands,currency,exponent,MSD=n\"",
          .example = "qvxLCM(4, 6, \"12345678901234567890\")",
          .parameters = Number_List(),
          .results = {multiple, {negative_is_num, list_fails}},
      }),
      Row<&cls_Quorvex::qvxLCM2>({
          .name = "qvxLCM2",
          .slot = 78,
          .family = "Fractions",
          .category = math,
          .description = "Returns the least common multiple of the numeric arguments, which are "
                         "not cut to whole numbers, with up to 32,767 significant digits of "
                         "precision.  \"format:negative,thousands,currency,exponent,MSD=n\"",
          .example = "qvxLCM2(7.5, 4.5)",
          .parameters = Number_List(),
          .results = {multiple, {negative_is_num, first_text_stays, scaling_fails, list_fails}},
      }),
  };
}

}  // namespace quorvex::catalogue
