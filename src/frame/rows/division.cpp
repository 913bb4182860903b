// Rows of the parts of a division, which macros reach.
#include "frame/rows/result_texts.h"
#include "frame/rows/row.h"

namespace quorvex::catalogue {

std::vector<Method> Division_Rows() {
  const Parameters two_numbers = {Operand_Parameter("num1", first_number),
                                  Operand_Parameter("num2", second_number)};
  return {
      Row<&cls_Quorvex::DivisionDecimalPosition>({
          .name = "DivisionDecimalPosition",
          .slot = 5,
          .family = "Division",
          .description = "Returns the place of a quotient's decimal separator by the lengths of "
                         "two digit strings.",
          .example = "DivisionDecimalPosition(\"1\", \"30\")",
          .parameters = {Operand_Parameter("divisor", "the digits of the number that is divided"),
                         Operand_Parameter("dividend", "the digits of the number divided by")},
          .results = {"A number: at which place behind the separator the quotient begins, 0 if "
                      "before it; 1 for equal operands.",
                      {array_fails}},
      }),
      Row<&cls_Quorvex::Recip_Divide>({
          .name = "Recip_Divide",
          .slot = 6,
          .family = "Division",
          .description = "Returns the quotient of two whole numbers as digits and a power of ten.",
          .example = "Recip_Divide(\"1\", \"3\", 8)",
          .parameters = {Operand_Parameter("iBig", "the number to divide"),
                         Operand_Parameter("kBig", "the number to divide by"),
                         By_Value("Precision", "the significant digits wanted")},
          .results =
              {"A record: digits, and powerOfTen, the power of ten that they are multiplied by.",
               {"In digits: \"#DIV/0!\" for a divisor of 0; the token of an operand that is no "
                "number, or that it is; \"#VALUE!\" where products can't be formed."}},
      }),
      Row<&cls_Quorvex::myInverse5>({
          .name = "myInverse5",
          .slot = 7,
          .family = "Division",
          .description =
              "Returns digits of the reciprocal of a whole number, approached from below.",
          .example = "myInverse5(\"7\", 20)",
          .parameters = {Operand_Parameter("kBig", "a whole number as digits"),
                         By_Value("p", "the digits wanted")},
          .results =
              {"A record: digits, as many as wanted, and powerOfTen, the power of ten that they "
               "are multiplied by.",
               {"In digits: \"#EXPR!\" where the digits of a precision of 1 or 2 never come to "
                "rest; empty text after any other failure, as for what is no whole number."}},
      }),
      Row<&cls_Quorvex::Min>({
          .name = "Min",
          .slot = 8,
          .family = "Division",
          .description = "Returns the lesser of two numbers.",
          .example = "Min(2, 10)",
          .parameters = two_numbers,
          .results = {lesser_or_greater, {no_number_fails}},
      }),
      Row<&cls_Quorvex::Max>({
          .name = "Max",
          .slot = 9,
          .family = "Division",
          .description = "Returns the greater of two numbers.",
          .example = "Max(2, 10)",
          .parameters = two_numbers,
          .results = {lesser_or_greater, {no_number_fails}},
      }),
      Row<&cls_Quorvex::GetHalfofLong>({
          .name = "GetHalfofLong",
          .slot = 10,
          .family = "Division",
          .description = "Returns the half of a 32-bit whole number, rounded down.",
          .example = "GetHalfofLong(7)",
          .parameters = {Operand_Parameter("num_as_long", "a whole number")},
          .results = {"A number.",
                      {"The call fails for what is no number of 32 bits. A fraction is rounded "
                       "before it is halved."}},
      }),
  };
}

}  // namespace quorvex::catalogue
