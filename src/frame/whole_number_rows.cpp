// Rows of the functions of whole numbers, fractions, remainders and signs.
#include "frame/catalogue_rows.h"
#include "frame/result_texts.h"

namespace quorvex::catalogue {
namespace {

Parameters Number() {
  return {Operand_Parameter("num", first_number)};
}

Parameters To_Next(std::string_view name, std::string_view help) {
  Parameters parameters = Number();
  parameters.push_back(Optional(name, help));
  return With_Formats(std::move(parameters));
}

Parameters Rounded_Up() {
  return To_Next("RoundNegTowardZero", "TRUE rounds negative numbers towards zero instead");
}

Parameters Rounded_Down() {
  return To_Next("RoundNegAwayFromZero", "TRUE rounds negative numbers away from zero instead");
}

Parameters Division_Parameters(std::string_view sign) {
  return With_Digits({Operand_Parameter("dividend", "the number to divide"),
                      Operand_Parameter("divisor", "the number to divide by"),
                      Optional("sign", sign)});
}

constexpr std::string_view sign_of_remainder =
    "the sign of the result: 1 as it comes out, 2 that of the dividend, 3 that of the divisor (the "
    "default), 4 none, 5 a minus";

// Each argument of the remainder stands for what the next one is elsewhere.
Parameters Remainder_Parameters() {
  Parameters parameters = Division_Parameters(
      "must be given: TRUE cuts the quotient towards zero, FALSE rounds it down");
  constexpr std::string_view helps[] = {
      sign_of_remainder, "0 shows no sign, 1 a leading minus (the default), 2 parentheses",
      "TRUE groups the integer digits by thousands", "TRUE attaches the currency symbol",
      "TRUE writes E notation, without grouping; the limit is the default one"};
  for (std::size_t place = 0; place < std::size(helps); ++place) {
    parameters[place + 3].help = helps[place];
  }
  return parameters;
}

}  // namespace

std::vector<Method> Parity_Rows() {
  return {
      Row<&cls_Quorvex::qvxISODD>(
          "qvxISODD", "Whole number", information,
          "Determines whether the whole part of a number is odd, with up to 32,767 significant "
          "digits of precision. Returns TRUE if it is odd; returns FALSE if it is even.",
          "qvxISODD(\"12345678901234567891\")", Number(),
          {true_or_false, {parity_of_no_number, array_fails}}),
      Row<&cls_Quorvex::qvxISEVEN>(
          "qvxISEVEN", "Whole number", information,
          "Determines whether the whole part of a number is even, with up to 32,767 significant "
          "digits of precision. Returns TRUE if it is even; returns FALSE if it is odd.",
          "qvxISEVEN(\"12345678901234567891\")", Number(),
          {true_or_false, {parity_of_no_number, array_fails}}),
      Row<&cls_Quorvex::qvxEVEN>(
          "qvxEVEN", "Whole number", math,
          "Rounds a number up to the next even integer, with up to 32,767 significant digits of "
          "precision. Numbers are rounded away from zero.",
          "qvxEVEN(\"12345678901234567890.5\")", Rounded_Up(),
          {whole_number, {no_number_is_value, option_fails}}),
      Row<&cls_Quorvex::qvxODD>(
          "qvxODD", "Whole number", math,
          "Rounds a number up to the next odd integer, with up to 32,767 significant digits of "
          "precision. Numbers are rounded away from zero.",
          "qvxODD(\"-12345678901234567890.5\")", Rounded_Up(),
          {whole_number, {no_number_is_value, option_fails}}),
      Row<&cls_Quorvex::qvxEVEN2>(
          "qvxEVEN2", "Whole number", math,
          "Rounds a number down to the next even integer, with up to 32,767 significant digits of "
          "precision. Numbers are rounded towards zero.",
          "qvxEVEN2(\"12345678901234567891.5\")", Rounded_Down(),
          {whole_number, {no_number_is_value, option_fails}}),
      Row<&cls_Quorvex::qvxODD2>(
          "qvxODD2", "Whole number", math,
          "Rounds a number down to the next odd integer, with up to 32,767 significant digits of "
          "precision. Numbers are rounded towards zero.",
          "qvxODD2(\"12345678901234567890.5\")", Rounded_Down(),
          {whole_number, {no_number_is_value, option_fails}}),
      Row<&cls_Quorvex::qvxISERROR>(
          "qvxISERROR", "Whole number", information,
          "Determines whether a value returned by an Quorvex function is an error value. Returns "
          "TRUE if it is an error; FALSE if not.",
          "qvxISERROR(qvxDIVIDE(1, 0))", {Operand_Parameter("num", "a value or text")},
          {"TRUE for an error value and for text that holds a #, otherwise FALSE.",
           {"DIV/0!, VALUE! and NUM!, which some functions give without a #, are no errors to it.",
            array_fails}}),
  };
}

std::vector<Method> Whole_Part_Rows() {
  return {
      Row<&cls_Quorvex::qvxINT>(
          "qvxINT", "Whole number", math,
          "Rounds a number down to the next integer, with up to 32,767 significant digits of "
          "precision.",
          "qvxINT(\"-12345678901234567890.5\")", With_Formats(Number()),
          {whole_number, {no_number_is_value, option_fails}}),
      Row<&cls_Quorvex::qvxTRUNC>(
          "qvxTRUNC", "Whole number", math,
          "Cuts a number to a count of decimal places, with up to 32,767 significant digits of "
          "precision. Without a count, the integer part is left.",
          "qvxTRUNC(\"-12345678901234567890.129\", 2)",
          With_Formats({Operand_Parameter("num", first_number),
                        Optional("num_digits",
                                 "the decimal places to keep, none if left out; a negative count "
                                 "acts one place short, so that -2 cuts to tens")}),
          {"The number cut to its places, formatted.", {no_number_is_value, option_fails}}),
  };
}

std::vector<Method> Whole_Number_Rows() {
  return {
      Row<&cls_Quorvex::qvxFRAC>(
          "qvxFRAC", "Whole number", math,
          "Returns the fractional part of a number, with up to 32,767 significant digits of "
          "precision. It can be read as a whole number.",
          "qvxFRAC(\"-3.25\", TRUE)",
          With_Digits(
              {Operand_Parameter("num", first_number),
               Optional("as_int", "TRUE gives the digits of the fraction as a whole number"),
               Optional("sign",
                        "the sign of the result: 1 that of num (the default), 2 none, 3 a "
                        "minus")}),
          {"The digits behind the separator, as a fraction or as a whole number, formatted; 0 for "
           "text without a separator.",
           {"No token: what stands behind the separator of text that is no number comes back "
            "unchecked.",
            root_fails}}),
      Row<&cls_Quorvex::qvxMOD>(
          "qvxMOD", "Whole number", math,
          "Returns the remainder of a division, with up to 32,767 significant digits of precision. "
          "The quotient is rounded down.",
          "qvxMOD(\"-12345678901234567890\", 7)", Division_Parameters(sign_of_remainder),
          {remainder, {remainder_by_zero, remainder_fails}}),
      Row<&cls_Quorvex::qvxMODTRUNC>(
          "qvxMODTRUNC", "Whole number", math,
          "Returns the remainder of a division, with up to 32,767 significant digits of precision. "
          "The quotient is cut towards zero.",
          "qvxMODTRUNC(\"-12345678901234567890\", 7, 1)", Division_Parameters(sign_of_remainder),
          {remainder, {remainder_by_zero, remainder_fails}}),
      Row<&cls_Quorvex::qvxREMAINDER>(
          "qvxREMAINDER", "Whole number", math,
          "Returns the remainder of a division, with up to 32,767 significant digits of precision. "
          "Sign tells how the quotient is made whole, and every argument behind it acts as the one "
          "before it does in qvxMOD.",
          "qvxREMAINDER(\"-12345678901234567890\", 7, TRUE, 1)", Remainder_Parameters(),
          {remainder, {remainder_by_zero, remainder_fails, "It fails without a sign, too."}}),
  };
}

std::vector<Method> Sign_Rows() {
  return {
      Row<&cls_Quorvex::qvxABS>(
          "qvxABS", "Whole number", math,
          "Returns the absolute value of a number, with up to 32,767 significant digits of "
          "precision. The absolute value of a number is the number with its negative sign (if it "
          "had one) removed.",
          "qvxABS(\"-12345678901234567890.5\")", With_Formats(Number()),
          {"The number without its sign, with all its digits, formatted; 0 for a blank cell.",
           {no_number_is_num_or_value, token_passes, option_fails}}),
      Row<&cls_Quorvex::qvxSIGN>(
          "qvxSIGN", "Comparison", math,
          "Determines the sign of a number, with up to 32,767 significant digits of precision. "
          "Returns 1 for a positive number, 0 for zero and -1 for a negative number.",
          "qvxSIGN(-273.15)", Number(),
          {"The number 1, 0 or -1; the text 0 for a blank cell.",
           {no_number_is_value, array_fails}}),
      Row<&cls_Quorvex::qvxNEG>(
          "qvxNEG", "Whole number", math,
          "Returns a number with a negative sign, with up to 32,767 significant digits of "
          "precision.",
          "qvxNEG(\"12345678901234567890.5\")", With_Formats(Number()),
          {"The number with all its digits, negative whichever sign it had, formatted.",
           {"\"VALUE!\", without a #, for a blank cell.", no_number_is_num_or_value, token_passes,
            option_fails}}),
      Row<&cls_Quorvex::qvxCHANGESIGN>(
          "qvxCHANGESIGN", "Whole number", math,
          "Changes the sign of a number, with up to 32,767 significant digits of precision. "
          "Positive numbers are changed to negative, and negative numbers are changed to positive.",
          "qvxCHANGESIGN(\"-12345678901234567890.5\")", With_Formats(Number()),
          {"The number with all its digits and the other sign, formatted; 0 for a blank cell.",
           {no_number_is_num_or_value, token_passes, option_fails}}),
  };
}

}  // namespace quorvex::catalogue
