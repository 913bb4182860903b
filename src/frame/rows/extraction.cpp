// Rows of the functions that take a number out of a text.
#include "frame/rows/result_texts.h"
#include "frame/rows/row.h"

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
      Row<&cls_Quorvex::qvxEXCLUDE>({
          .name = "qvxEXCLUDE",
          .slot = 37,
          .family = "Text extraction",
          .category = text_functions,
          .description = "Leaves the texts given out of a text, with up to 32,767 significant "
                         "digits of precision. Capitals and small letters differ.  "
                         "\"format:negative,thousands,currency,exponent,MSD=n\"",
          .example = "qvxEXCLUDE(\"12 345 678 m\", \" \", \"m\", \"format:thousands\")",
          .parameters = Text_List(),
          .results = {text_left, {text_unchecked, list_fails}},
      }),
      Row<&cls_Quorvex::qvxEXCLUDENOTNUM>({
          .name = "qvxEXCLUDENOTNUM",
          .slot = 38,
          .family = "Text extraction",
          .category = text_functions,
          .description = "Leaves the texts given, and all that is no part of a number, out of a "
                         "text, with up to 32,767 significant digits of precision.  "
                         "\"format:negative,thousands,currency,exponent,MSD=n\"",
          .example = "qvxEXCLUDENOTNUM(\"Invoice 17: 1,234.50 USD\", \"Invoice 17\")",
          .parameters = Text_List(),
          .results = {text_left, {text_unchecked, list_fails}},
      }),
      Row<&cls_Quorvex::qvxEXTRACT>({
          .name = "qvxEXTRACT",
          .slot = 39,
          .family = "Text extraction",
          .category = text_functions,
          .description = "Keeps the texts given of a text, in the order in which they stand there, "
                         "with up to 32,767 significant digits of precision. Capitals and small "
                         "letters differ.  \"format:negative,thousands,currency,exponent,MSD=n\"",
          .example = "qvxEXTRACT(\"a1b2c3\", 1, 3)",
          .parameters = Text_List(),
          .results = {text_kept, {text_unchecked, list_fails}},
      }),
      Row<&cls_Quorvex::qvxEXTRACTNUM>({
          .name = "qvxEXTRACTNUM",
          .slot = 40,
          .family = "Text extraction",
          .category = text_functions,
          .description = "Keeps the number that a text holds, and the texts given, with up to "
                         "32,767 significant digits of precision.  "
                         "\"format:negative,thousands,currency,exponent,MSD=n\"",
          .example = "qvxEXTRACTNUM(\"a loss of $(1,234.56)\")",
          .parameters = Text_List(),
          .results = {text_kept, {text_unchecked, list_fails}},
      }),
  };
}

}  // namespace quorvex::catalogue
