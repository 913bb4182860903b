// Rows of square roots and of fractions, their divisors and multiples.
#include "frame/catalogue_rows.h"
#include "frame/result_texts.h"

namespace quorvex::catalogue {
namespace {

Parameters Square_Root_Parameters() {
  return {Operand_Parameter("num", first_number),
          Optional("format_thousands", "TRUE groups the integer digits by thousands"),
          Optional("format_currency", "TRUE attaches the currency symbol"),
          Optional("exponential_notation", "TRUE writes E notation, without grouping"),
          Optional("maxSD", "the limit of significant digits; left out, the default limit")};
}

}  // namespace

std::vector<Method> Square_Root_Rows() {
  return {
      Row<&cls_Quorvex::qvxSQRT>(
          "qvxSQRT", "Root", math,
          "Returns the square root of a number, with up to 32,767 significant digits of precision.",
          "qvxSQRT(2, , , , 50)", Square_Root_Parameters(),
          {root, {signed_is_num, no_number_is_num_or_value, token_passes, root_fails}}),
      Row<&cls_Quorvex::qvxSQRTPI>(
          "qvxSQRTPI", "Root", math,
          "Returns the square root of (number * Pi), with up to 32,767 significant digits of "
          "precision.",
          "qvxSQRTPI(1, , , , 50)", Square_Root_Parameters(),
          {root, {signed_is_num, beyond_pi, unread_number_is_value, token_passes, root_fails}}),
  };
}

std::vector<Method> Reduction_Rows() {
  return {
      Row<&cls_Quorvex::qvxREDUCEFRACTION>(
          "qvxREDUCEFRACTION", "Fractions", math,
          "Reduces a fraction to its lowest terms, with up to 32,767 significant digits of "
          "precision. Returns the fraction, its numerator, its divisor and the number it was "
          "reduced by, across a row and down a column.",
          "qvxREDUCEFRACTION(\"1234567890123456789012\", \"9876543210987654321096\")",
          {Operand_Parameter("Numerator", first_number),
           Operand_Parameter("divisor", second_number),
           Optional("simplify_signs", "TRUE leaves a minus to the numerator at most"),
           Optional("always_simplify_fraction",
                    "TRUE reduces also where the numerator becomes larger"),
           Optional("return_numerator", "TRUE returns the numerator alone"),
           Optional("return_divisor", "TRUE returns the divisor alone"),
           Optional("return_reduced_by", "TRUE returns the number it was reduced by alone"),
           Optional("fraction_separator",
                    "what stands between numerator and divisor; a slash if left out")},
          {"An array of text of four rows and columns, whose first row and first column hold the "
           "fraction, its numerator, its divisor and the number it was reduced by; or one of these "
           "alone, as text. All with all their digits, whatever the default limit is.",
           {no_number_is_num_or_value, token_passes,
            "The call fails where both numbers have decimals and the numerator has more digits on "
            "either side of its separator."}}),
  };
}

std::vector<Method> Divisor_Rows() {
  return {
      Row<&cls_Quorvex::qvxGCD>(
          "qvxGCD", "Fractions", math,
          "Returns the greatest common divisor of the numeric arguments, cut to whole numbers, "
          "with up to 32,767 significant digits of precision.  "
          "\"format:negative,thousands,currency,exponent,MSD=n\"",
          "qvxGCD(\"123456789012345678901234567890\", \"987654321098765432109876543210\")",
          Number_List(), {divisor, {negative_is_num, list_fails}}),
      Row<&cls_Quorvex::qvxGCD2>(
          "qvxGCD2", "Fractions", math,
          "Returns the greatest common divisor of the numeric arguments, which are not cut to "
          "whole numbers, with up to 32,767 significant digits of precision.  "
          "\"format:negative,thousands,currency,exponent,MSD=n\"",
          "qvxGCD2(7.5, 4.5)", Number_List(),
          {divisor, {first_text_stays, scaling_fails, list_fails}}),
      Row<&cls_Quorvex::qvxLCM>(
          "qvxLCM", "Fractions", math,
          "Returns the least common multiple of the numeric arguments, cut to whole numbers, with "
          "up to 32,767 significant digits of precision.  "
          "\"format:negative,thousands,currency,exponent,MSD=n\"",
          "qvxLCM(4, 6, \"12345678901234567890\")", Number_List(),
          {multiple, {negative_is_num, list_fails}}),
      Row<&cls_Quorvex::qvxLCM2>(
          "qvxLCM2", "Fractions", math,
          "Returns the least common multiple of the numeric arguments, which are not cut to whole "
          "numbers, with up to 32,767 significant digits of precision.  "
          "\"format:negative,thousands,currency,exponent,MSD=n\"",
          "qvxLCM2(7.5, 4.5)", Number_List(),
          {multiple, {negative_is_num, first_text_stays, scaling_fails, list_fails}}),
  };
}

}  // namespace quorvex::catalogue
