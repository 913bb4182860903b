// Rows of logarithms, the exponential, factorials and the Poisson distribution.
#include "frame/catalogue_rows.h"
#include "frame/result_texts.h"

namespace quorvex::catalogue {
namespace {

Parameters With_Notation(Parameters parameters) {
  parameters.push_back(Optional("exponential_notation", "TRUE writes E notation"));
  parameters.push_back(Optional("maximum_significant_digits",
                                "the limit of significant digits; left out, the default limit"));
  return parameters;
}

}  // namespace

std::vector<Method> Mantissa_Rows() {
  const Parameter number = Operand_Parameter("num", "a number as plain decimals, without a sign");
  return {
      Row<&cls_Quorvex::Get_Mantissa>(
          "Get_Mantissa", "Mantissa and exponent", not_offered,
          "Returns the digits of a number as a mantissa below 1.", "Get_Mantissa(\"123.45\")",
          {number, Optional("as_integer", "TRUE returns the digits alone")},
          {"The mantissa as text, zeros at its end included: 0, the separator and the digits, or "
           "the digits alone.",
           {array_fails}}),
      Row<&cls_Quorvex::Get_Exponent>(
          "Get_Exponent", "Mantissa and exponent", not_offered,
          "Returns the power of ten that belongs to a mantissa below 1.",
          "Get_Exponent(\"0.00123\")", {number},
          {"The exponent as text.",
           {"No token: no sign is treated, and what is no number is counted like digits.",
            array_fails}}),
      Row<&cls_Quorvex::Combine_Mantissa_And_Exponent>(
          "Combine_Mantissa_And_Exponent", "Mantissa and exponent", not_offered,
          "Returns a mantissa times a power of ten, with up to 15 digits.",
          "Combine_Mantissa_And_Exponent(\"0.12345\", \"3\")",
          {Operand_Parameter("mantissa", first_number),
           Operand_Parameter("exponent", "a whole number")},
          {"A number of at most 15 digits, as text.", {no_number_fails, beyond_floats}}),
      Row<&cls_Quorvex::Test_Mantissa_And_Exponent>(
          "Test_Mantissa_And_Exponent", "Mantissa and exponent", not_offered,
          "Returns a number taken apart and joined again, with up to 15 digits.",
          "Test_Mantissa_And_Exponent(\"123.45\")", {number},
          {"The number with at most 15 digits, as text.", {no_number_fails, beyond_floats}}),
  };
}

std::vector<Method> Factorial_Rows() {
  return {
      Row<&cls_Quorvex::qvxFACT>(
          "qvxFACT", "Probability", math,
          "Returns the factorial of a number, with up to 32,767 significant digits of precision. "
          "The factorial of a number is the product of the whole numbers from 1 to the number, "
          "which is cut to a whole number and can be 9,273 at most.",
          "qvxFACT(50)", With_Digits({Operand_Parameter("num", "a number from 0 to 9273")}),
          {"The factorial, formatted.", {signed_is_num, "\"#NUM!\" above 9273.", factorial_fails}}),
      Row<&cls_Quorvex::qvxFACTDOUBLE>(
          "qvxFACTDOUBLE", "Probability", math,
          "Returns the double factorial of a number, with up to 32,767 significant digits of "
          "precision. The double factorial of a number is the product of every other whole number "
          "from the number down to 1 or 2; it is cut to a whole number and can be 17,234 at most.",
          "qvxFACTDOUBLE(51)", With_Digits({Operand_Parameter("num", "a number from 0 to 17234")}),
          {"The double factorial, formatted.",
           {signed_is_num, "\"#NUM!\" above 17234.", factorial_fails}}),
  };
}

std::vector<Method> Probability_Rows() {
  Parameters parameters = With_Notation(
      {Operand_Parameter("target_num", "the number of events"),
       Operand_Parameter("average_num", "the number of events to be expected"),
       Operand_Parameter("is_cumulative",
                         "TRUE for the probability of so many events at most, FALSE for that of "
                         "exactly so many; no other kind of value is accepted")});
  parameters.push_back(Optional("restrict_input_lengths",
                                "TRUE, or left out, refuses numbers of more than 1,073,741,824 "
                                "digits"));
  return {
      Row<&cls_Quorvex::qvxPOISSON>(
          "qvxPOISSON", "Probability", statistical,
          "Returns the Poisson distribution, with up to 32,767 significant digits of precision. "
          "Can return cumulative or non-cumulative Poisson distribution.",
          "qvxPOISSON(2, \"3.5\", TRUE, , 30)", std::move(parameters),
          {"The probability, as text, in E notation if wanted.",
           {"\"#NUM!\" for a negative number, a target above 9273 and more than 32,768 digits. "
            "\"#VALUE!\" for text that is no number and for a truth value given as anything else.",
            "The call fails for an array, for digits beyond 32 bits or below -1, and for a sum at "
            "so few "
            "digits that its count comes to rest."}}),
  };
}

std::vector<Method> Logarithm_Rows() {
  return {
      Row<&cls_Quorvex::qvxLOG>(
          "qvxLOG", "Logarithm", math,
          "Returns the logarithm of a number to a base, with up to 32,767 significant digits of "
          "precision. If the base is left out, it is 10.",
          "qvxLOG(1000, 2, , 50)",
          With_Notation({Operand_Parameter("num", "a number above 0"),
                         Optional("num_base",
                                  "the base, a number above 0; the steps take as many digits more "
                                  "than the limit as it says. Left out, 10")}),
          {logarithm,
           {logarithm_of_negative,
            "\"#NUM!\" also for a base that is not above 0, or \"#VALUE!\" where it takes more "
            "than "
            "the digits of the limit away; \"#NUM!\" where limit and base together exceed 40,051; "
            "\"#DIV/0!\" for base 1.",
            logarithm_fails}}),
      Row<&cls_Quorvex::qvxLN>(
          "qvxLN", "Logarithm", math,
          "Returns the natural logarithm of a number, with up to 32,767 significant digits of "
          "precision. The natural logarithm is the logarithm to the base of the constant e "
          "(approximately 2.71828). qvxLN uses the constant e with up to 32,767 significant "
          "digits.",
          "qvxLN(10, , 50)", With_Notation({Operand_Parameter("num", "a number above 0")}),
          {logarithm,
           {logarithm_of_negative, "\"#NUM!\" also beyond 40,051 digits.", logarithm_fails}}),
      Row<&cls_Quorvex::qvxEXP>(
          "qvxEXP", "Logarithm", math,
          "Returns the constant e (approximately 2.71828) raised to the power of a number, with up "
          "to 32,767 significant digits of precision. It is the inverse of the natural logarithm.",
          "qvxEXP(1, , 50)", With_Notation({Operand_Parameter("num", "the power to raise e to")}),
          {"The power, as text, in E notation if wanted; of 0 always 1.",
           {"\"#VALUE!\" for any failure: what is no number, an error token included, a power "
            "from about 1,488,522,236 on, more than 40,041 digits, an option that can't be "
            "read."}}),
  };
}

}  // namespace quorvex::catalogue
