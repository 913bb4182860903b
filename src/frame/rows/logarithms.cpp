// Rows of logarithms, the exponential, and the forms of a number that go with them.
#include "frame/rows/result_texts.h"
#include "frame/rows/row.h"

namespace quorvex::catalogue {

std::vector<Method> Logarithm_Rows() {
  const Parameter number = Operand_Parameter("num", "a number as plain decimals, without a sign");
  return {
      Row<&cls_Quorvex::Get_Mantissa>({
          .name = "Get_Mantissa",
          .slot = 11,
          .family = "Mantissa and exponent",
          .description = "Returns the digits of a number as a mantissa below 1.",
          .example = "Get_Mantissa(\"123.45\")",
          .parameters = {number, Truth_Option("as_integer", "TRUE returns the digits alone")},
          .results = {"The mantissa as text, zeros at its end included: 0, the separator and the "
                      "digits, or the digits alone.",
                      {array_fails}},
      }),
      Row<&cls_Quorvex::Get_Exponent>({
          .name = "Get_Exponent",
          .slot = 12,
          .family = "Mantissa and exponent",
          .description = "Returns the power of ten that belongs to a mantissa below 1.",
          .example = "Get_Exponent(\"0.00123\")",
          .parameters = {number},
          .results =
              {"The exponent as text.",
               {"No token: no sign is treated, and what is no number is counted like digits.",
                array_fails}},
      }),
      Row<&cls_Quorvex::Combine_Mantissa_And_Exponent>({
          .name = "Combine_Mantissa_And_Exponent",
          .slot = 13,
          .family = "Mantissa and exponent",
          .description = "Returns a mantissa times a power of ten, with up to 15 digits.",
          .example = "Combine_Mantissa_And_Exponent(\"0.12345\", \"3\")",
          .parameters = {Operand_Parameter("mantissa", first_number),
                         Operand_Parameter("exponent", "a whole number")},
          .results = {"A number of at most 15 digits, as text.", {no_number_fails, beyond_floats}},
      }),
      Row<&cls_Quorvex::Test_Mantissa_And_Exponent>({
          .name = "Test_Mantissa_And_Exponent",
          .slot = 14,
          .family = "Mantissa and exponent",
          .description = "Returns a number taken apart and joined again, with up to 15 digits.",
          .example = "Test_Mantissa_And_Exponent(\"123.45\")",
          .parameters = {number},
          .results = {"The number with at most 15 digits, as text.",
                      {no_number_fails, beyond_floats}},
      }),
      Row<&cls_Quorvex::qvxLOG>({
          .name = "qvxLOG",
          .slot = 94,
          .family = "Logarithm",
          .category = math,
          .description = "Returns the logarithm of a number to a base, with up to 32,767 "
                         "significant digits of precision. If the base is left out, it is 10.",
          .example = "qvxLOG(1000, 2, , 50)",
          .parameters =
              With_Notation({Operand_Parameter("num", "a number above 0"),
                             Optional("num_base",
                                      "the base, a number above 0; the steps take as many digits "
                                      "more than the limit as it says. Left out, 10")}),
          .results = {logarithm,
                      {logarithm_of_negative,
                       "\"#NUM!\" also for a base that is not above 0, or \"#VALUE!\" where it "
                       "takes more than the digits of the limit away; \"#NUM!\" where limit and "
                       "base together exceed 40,051; \"#DIV/0!\" for base 1.",
                       logarithm_fails}},
      }),
      Row<&cls_Quorvex::qvxLN>({
          .name = "qvxLN",
          .slot = 95,
          .family = "Logarithm",
          .category = math,
          .description = "Returns the natural logarithm of a number, with up to 32,767 significant "
                         "digits of precision. The natural logarithm is the logarithm to the base "
                         "of the constant e (approximately 2.71828). qvxLN uses the constant e "
                         "with up to 32,767 significant digits.",
          .example = "qvxLN(10, , 50)",
          .parameters = With_Notation({Operand_Parameter("num", "a number above 0")}),
          .results = {logarithm,
                      {logarithm_of_negative, "\"#NUM!\" also beyond 40,051 digits.",
                       logarithm_fails}},
      }),
      Row<&cls_Quorvex::qvxEXP>({
          .name = "qvxEXP",
          .slot = 96,
          .family = "Logarithm",
          .category = math,
          .description = "Returns the constant e (approximately 2.71828) raised to the power of a "
                         "number, with up to 32,767 significant digits of precision. It is the "
                         "inverse of the natural logarithm.",
          .example = "qvxEXP(1, , 50)",
          .parameters = With_Notation({Operand_Parameter("num", "the power to raise e to")}),
          .results = {"The power, as text, in E notation if wanted; of 0 always 1.",
                      {"\"#VALUE!\" for any failure: what is no number, an error token included, a "
                       "power from about 1,488,522,236 on, more than 40,041 digits, an option that "
                       "can't be read."}},
      }),
  };
}

}  // namespace quorvex::catalogue
