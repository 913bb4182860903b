// Rows of the functions that take a number out of a text.
#include "frame/catalogue_rows.h"
#include "frame/result_texts.h"

namespace quorvex::catalogue {
namespace {

Parameters Text_List() {
  return {Operand_Parameter("numlist",
                            "a text, and what is looked for in it, as texts, ranges and arrays; "
                            "and behind the text how the result is formatted: \"format:\" and any "
                            "of the words negative, thousands, currency, exponent, MSD=n")};
}

}  // namespace

std::vector<Method> Extraction_Rows() {
  return {
      Row<&cls_Quorvex::qvxEXCLUDE>(
          "qvxEXCLUDE", "Text extraction", text_functions,
          "Leaves the texts given out of a text, with up to 32,767 significant digits of "
          "precision. Capitals and small letters differ.  "
          "\"format:negative,thousands,currency,exponent,MSD=n\"",
          "qvxEXCLUDE(\"12 345 678 m\", \" \", \"m\", \"format:thousands\")", Text_List(),
          {text_left, {text_unchecked, list_fails}}),
      Row<&cls_Quorvex::qvxEXCLUDENOTNUM>(
          "qvxEXCLUDENOTNUM", "Text extraction", text_functions,
          "Leaves the texts given, and all that is no part of a number, out of a text, with up to "
          "32,767 significant digits of precision.  "
          "\"format:negative,thousands,currency,exponent,MSD=n\"",
          "qvxEXCLUDENOTNUM(\"Invoice 17: 1,234.50 USD\", \"Invoice 17\")", Text_List(),
          {text_left, {text_unchecked, list_fails}}),
      Row<&cls_Quorvex::qvxEXTRACT>(
          "qvxEXTRACT", "Text extraction", text_functions,
          "Keeps the texts given of a text, in the order in which they stand there, with up to "
          "32,767 significant digits of precision. Capitals and small letters differ.  "
          "\"format:negative,thousands,currency,exponent,MSD=n\"",
          "qvxEXTRACT(\"a1b2c3\", 1, 3)", Text_List(), {text_kept, {text_unchecked, list_fails}}),
      Row<&cls_Quorvex::qvxEXTRACTNUM>(
          "qvxEXTRACTNUM", "Text extraction", text_functions,
          "Keeps the number that a text holds, and the texts given, with up to 32,767 significant "
          "digits of precision.  \"format:negative,thousands,currency,exponent,MSD=n\"",
          "qvxEXTRACTNUM(\"a loss of $(1,234.56)\")", Text_List(),
          {text_kept, {text_unchecked, list_fails}}),
  };
}

}  // namespace quorvex::catalogue
