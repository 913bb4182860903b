// Rows of the sum, difference, product and quotient.
#include "frame/rows/result_texts.h"
#include "frame/rows/row.h"

namespace quorvex::catalogue {

std::vector<Method> Arithmetic_Rows() {
  return {
      Row<&cls_Quorvex::qvxADD>({
          .name = "qvxADD",
          .slot = 59,
          .family = "Arithmetic",
          .category = operators,
          .place = 1,
          .description = "Adds two numbers, with up to 32,767 significant digits of precision.",
          .example = "qvxADD(\"12345678901234567890.5\", 1.25)",
          .parameters = With_Places({Operand_Parameter("number1", first_number),
                                     Operand_Parameter("number2", second_number)}),
          .results = {"The sum, formatted.", {unread_is_value, token_passes}},
      }),
      Row<&cls_Quorvex::qvxSUBTRACT>({
          .name = "qvxSUBTRACT",
          .slot = 60,
          .family = "Arithmetic",
          .category = operators,
          .place = 2,
          .description = "Subtracts one number from another, with up to 32,767 significant digits "
                         "of precision. Number2 is subtracted from number1.",
          .example = "qvxSUBTRACT(1, \"0.00000000000000000001\")",
          .parameters = With_Places({Operand_Parameter("number1", "the number to subtract from"),
                                     Operand_Parameter("number2", "the number to subtract")}),
          .results = {"The difference, formatted.", {unread_is_value, token_passes}},
      }),
      Row<&cls_Quorvex::qvxMULTIPLY>({
          .name = "qvxMULTIPLY",
          .slot = 61,
          .family = "Arithmetic",
          .category = operators,
          .place = 3,
          .description =
              "Multiplies two numbers, with up to 32,767 significant digits of precision.",
          .example = "qvxMULTIPLY(\"12345678901234567890\", \"-0.5\")",
          .parameters = With_Places({Operand_Parameter("number1", first_number),
                                     Operand_Parameter("number2", second_number)}),
          .results = {"The product, formatted.",
                      {unread_is_value, token_passes,
                       "\"#VALUE!\" also where the library of products can't be found."}},
      }),
      Row<&cls_Quorvex::qvxDIVIDE>({
          .name = "qvxDIVIDE",
          .slot = 62,
          .family = "Arithmetic",
          .category = operators,
          .place = 4,
          .description = "Divides one number by another, with up to 32,767 significant digits of "
                         "precision. Number1 is divided by number2.",
          .example = "qvxDIVIDE(1, 7, , , , , 30)",
          .parameters = With_Places({Operand_Parameter("number1", "the number to divide"),
                                     Operand_Parameter("number2", "the number to divide by")}),
          .results = {"The quotient, formatted, at the limit and one digit more.",
                      {"\"#DIV/0!\" for a divisor of 0 or blank.", no_number_is_num_or_value,
                       token_passes, unread_option_is_value}},
      }),
  };
}

}  // namespace quorvex::catalogue
