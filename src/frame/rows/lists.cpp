// Rows of what folds a list of numbers into one.
#include "frame/rows/result_texts.h"
#include "frame/rows/row.h"

namespace quorvex::catalogue {

std::vector<Method> List_Rows() {
  return {
      Row<&cls_Quorvex::qvxSUM>({
          .name = "qvxSUM",
          .slot = 20,
          .family = "List",
          .category = math,
          .description = "Returns the sum of a range or array, with up to 32,767 significant "
                         "digits of precision. Every cell must be a number or blank.",
          .example = "qvxSUM({1, \"0.00000000000000000001\"; 2, 3}, , TRUE)",
          .parameters =
              With_Digits({Operand_Parameter("rngArray", "a range of several cells, or an array")}),
          .results = {"The sum, formatted.",
                      {"The token of a cell that is no number, or that it holds.",
                       unread_option_is_value, "The call fails for a single cell or value."}},
      }),
      Row<&cls_Quorvex::qvxAVERAGE>({
          .name = "qvxAVERAGE",
          .slot = 30,
          .family = "List",
          .category = statistical,
          .description = "Returns the average of the numeric arguments, with up to 32,767 "
                         "significant digits of precision. MSD=n must be given.  "
                         "\"format:negative,thousands,currency,exponent,MSD=n\"",
          .example = "qvxAVERAGE(1, 2, 4, \"format:MSD=30\")",
          .parameters = Number_List(),
          .results = {"The mean, formatted; 0 where there is no number.",
                      {"\"#VALUE!\" without MSD=, unless the sum is 0. The call fails for a sum "
                       "beyond 64-bit floats.",
                       list_fails}},
      }),
      Row<&cls_Quorvex::qvxPRODUCT>({
          .name = "qvxPRODUCT",
          .slot = 41,
          .family = "List",
          .category = math,
          .description =
              "Returns the product of the numeric arguments, with up to 32,767 significant digits "
              "of precision.  \"format:negative,thousands,currency,exponent,MSD=n\"",
          .example = "qvxPRODUCT(\"12345678901234567890\", -2, 0.5)",
          .parameters = Number_List(),
          .results = {"The product, formatted; 1 where there is no number.", {list_fails}},
      }),
      Row<&cls_Quorvex::qvxSUM2>({
          .name = "qvxSUM2",
          .slot = 42,
          .family = "List",
          .category = math,
          .description =
              "Returns the sum of the numeric arguments, with up to 32,767 significant digits of "
              "precision.  \"format:negative,thousands,currency,exponent,MSD=n\"",
          .example =
              "qvxSUM2({1, 2; 3, \"no number\"}, \"99999999999999999999\", \"format:thousands\")",
          .parameters = Number_List(),
          .results = {"The sum, formatted; 0 where there is no number.", {list_fails}},
      }),
      Row<&cls_Quorvex::qvxCOUNT>({
          .name = "qvxCOUNT",
          .slot = 43,
          .family = "List",
          .category = statistical,
          .description =
              "Returns how many of the arguments are numbers, with up to 32,767 significant digits "
              "of precision.  \"format:negative,thousands,currency,exponent,MSD=n\"",
          .example = "qvxCOUNT(1, \"2\", \"two\", TRUE, \"3.00000000000000000001\")",
          .parameters = Number_List(),
          .results = {"The count, formatted.", {list_fails}},
      }),
      Row<&cls_Quorvex::qvxMAX>({
          .name = "qvxMAX",
          .slot = 44,
          .family = "List",
          .category = statistical,
          .description = "Returns the largest of the numeric arguments, with up to 32,767 "
                         "significant digits of precision. The first argument must be a number.  "
                         "\"format:negative,thousands,currency,exponent,MSD=n\"",
          .example = "qvxMAX(\"0.1\", \"0.10000000000000000001\")",
          .parameters = Number_List(),
          .results = {extreme, {first_element_stays, list_fails}},
      }),
      Row<&cls_Quorvex::qvxMIN>({
          .name = "qvxMIN",
          .slot = 45,
          .family = "List",
          .category = statistical,
          .description = "Returns the smallest of the numeric arguments, with up to 32,767 "
                         "significant digits of precision. The first argument must be a number.  "
                         "\"format:negative,thousands,currency,exponent,MSD=n\"",
          .example = "qvxMIN(-1, \"-1.00000000000000000001\", \"format:negative\")",
          .parameters = Number_List(),
          .results = {extreme, {first_element_stays, list_fails}},
      }),
  };
}

}  // namespace quorvex::catalogue
