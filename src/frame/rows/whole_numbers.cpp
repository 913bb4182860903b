// Rows of whole numbers, their parts, remainders and signs.
#include <tuple>
#include <utility>

#include "frame/rows/result_texts.h"
#include "frame/rows/row.h"

namespace quorvex::catalogue {
namespace {

Parameters Number() {
  return {Operand_Parameter("num", first_number)};
}

Parameters To_Next(std::string_view name, std::string_view help) {
  Parameters parameters = Number();
  parameters.push_back(Truth_Option(name, help));
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
  constexpr std::pair<std::string_view, bool> meanings[] = {
      {sign_of_remainder, false},
      {"0 shows no sign, 1 a leading minus (the default), 2 parentheses", false},
      {"TRUE groups the integer digits by thousands", true},
      {"TRUE attaches the currency symbol", true},
      {"TRUE writes E notation, without grouping; the limit is the default one", true}};
  parameters[2].is_truth_value = true;
  for (std::size_t place = 0; place < std::size(meanings); ++place) {
    Parameter& parameter = parameters[place + 3];
    std::tie(parameter.help, parameter.is_truth_value) = meanings[place];
  }
  return parameters;
}

}  // namespace

std::vector<Method> Whole_Number_Rows() {
  return {
      Row<&cls_Quorvex::qvxISODD>({
          .name = "qvxISODD",
          .slot = 23,
          .family = "Whole number",
          .category = information,
          .description =
              "Determines whether the whole part of a number is odd, with up to 32,767 significant "
              "digits of precision. Returns TRUE if it is odd; returns FALSE if it is even.",
          .example = "qvxISODD(\"12345678901234567891\")",
          .parameters = Number(),
          .results = {true_or_false, {parity_of_no_number, array_fails}},
      }),
      Row<&cls_Quorvex::qvxISEVEN>({
          .name = "qvxISEVEN",
          .slot = 24,
          .family = "Whole number",
          .category = information,
          .description = "Determines whether the whole part of a number is even, with up to 32,767 "
                         "significant digits of precision. Returns TRUE if it is even; returns "
                         "FALSE if it is odd.",
          .example = "qvxISEVEN(\"12345678901234567891\")",
          .parameters = Number(),
          .results = {true_or_false, {parity_of_no_number, array_fails}},
      }),
      Row<&cls_Quorvex::qvxEVEN>({
          .name = "qvxEVEN",
          .slot = 25,
          .family = "Whole number",
          .category = math,
          .description = "Rounds a number up to the next even integer, with up to 32,767 "
                         "significant digits of precision. Numbers are rounded away from zero.",
          .example = "qvxEVEN(\"12345678901234567890.5\")",
          .parameters = Rounded_Up(),
          .results = {whole_number, {no_number_is_value, option_fails}},
      }),
      Row<&cls_Quorvex::qvxODD>({
          .name = "qvxODD",
          .slot = 26,
          .family = "Whole number",
          .category = math,
          .description = "Rounds a number up to the next odd integer, with up to 32,767 "
                         "significant digits of precision. Numbers are rounded away from zero.",
          .example = "qvxODD(\"-12345678901234567890.5\")",
          .parameters = Rounded_Up(),
          .results = {whole_number, {no_number_is_value, option_fails}},
      }),
      Row<&cls_Quorvex::qvxEVEN2>({
          .name = "qvxEVEN2",
          .slot = 27,
          .family = "Whole number",
          .category = math,
          .description = "Rounds a number down to the next even integer, with up to 32,767 "
                         "significant digits of precision. Numbers are rounded towards zero.",
          .example = "qvxEVEN2(\"12345678901234567891.5\")",
          .parameters = Rounded_Down(),
          .results = {whole_number, {no_number_is_value, option_fails}},
      }),
      Row<&cls_Quorvex::qvxODD2>({
          .name = "qvxODD2",
          .slot = 28,
          .family = "Whole number",
          .category = math,
          .description = "Rounds a number down to the next odd integer, with up to 32,767 "
                         "significant digits of precision. Numbers are rounded towards zero.",
          .example = "qvxODD2(\"12345678901234567890.5\")",
          .parameters = Rounded_Down(),
          .results = {whole_number, {no_number_is_value, option_fails}},
      }),
      Row<&cls_Quorvex::qvxISERROR>({
          .name = "qvxISERROR",
          .slot = 29,
          .family = "Whole number",
          .category = information,
          .description = "Determines whether a value returned by an Quorvex function is an error "
                         "value. Returns TRUE if it is an error; FALSE if not.",
          .example = "qvxISERROR(qvxDIVIDE(1, 0))",
          .parameters = {Operand_Parameter("num", "a value or text")},
          .results = {"TRUE for an error value and for text that holds a #, otherwise FALSE.",
                      {"DIV/0!, VALUE! and NUM!, which some functions give without a #, are no "
                       "errors to it.",
                       array_fails}},
      }),
      Row<&cls_Quorvex::qvxINT>({
          .name = "qvxINT",
          .slot = 47,
          .family = "Whole number",
          .category = math,
          .description = "Rounds a number down to the next integer, with up to 32,767 significant "
                         "digits of precision.",
          .example = "qvxINT(\"-12345678901234567890.5\")",
          .parameters = With_Formats(Number()),
          .results = {whole_number, {no_number_is_value, option_fails}},
      }),
      Row<&cls_Quorvex::qvxTRUNC>({
          .name = "qvxTRUNC",
          .slot = 48,
          .family = "Whole number",
          .category = math,
          .description =
              "Cuts a number to a count of decimal places, with up to 32,767 significant digits of "
              "precision. Without a count, the integer part is left.",
          .example = "qvxTRUNC(\"-12345678901234567890.129\", 2)",
          .parameters =
              With_Formats({Operand_Parameter("num", first_number),
                            Optional("num_digits",
                                     "the decimal places to keep, none if left out; a negative "
                                     "count acts one place short, so that -2 cuts to tens")}),
          .results = {"The number cut to its places, formatted.",
                      {no_number_is_value, option_fails}},
      }),
      Row<&cls_Quorvex::qvxFRAC>({
          .name = "qvxFRAC",
          .slot = 51,
          .family = "Whole number",
          .category = math,
          .description = "Returns the fractional part of a number, with up to 32,767 significant "
                         "digits of precision. It can be read as a whole number.",
          .example = "qvxFRAC(\"-3.25\", TRUE)",
          .parameters = With_Digits(
              {Operand_Parameter("num", first_number),
               Truth_Option("as_int", "TRUE gives the digits of the fraction as a whole number"),
               Optional("sign",
                        "the sign of the result: 1 that of num (the default), 2 none, 3 a minus")}),
          .results = {"The digits behind the separator, as a fraction or as a whole number, "
                      "formatted; 0 for text without a separator.",
                      {"No token: what stands behind the separator of text that is no number comes "
                       "back unchecked.",
                       root_fails}},
      }),
      Row<&cls_Quorvex::qvxMOD>({
          .name = "qvxMOD",
          .slot = 52,
          .family = "Whole number",
          .category = math,
          .description = "Returns the remainder of a division, with up to 32,767 significant "
                         "digits of precision. The quotient is rounded down.",
          .example = "qvxMOD(\"-12345678901234567890\", 7)",
          .parameters = Division_Parameters(sign_of_remainder),
          .results = {remainder, {remainder_by_zero, remainder_fails}},
      }),
      Row<&cls_Quorvex::qvxMODTRUNC>({
          .name = "qvxMODTRUNC",
          .slot = 53,
          .family = "Whole number",
          .category = math,
          .description = "Returns the remainder of a division, with up to 32,767 significant "
                         "digits of precision. The quotient is cut towards zero.",
          .example = "qvxMODTRUNC(\"-12345678901234567890\", 7, 1)",
          .parameters = Division_Parameters(sign_of_remainder),
          .results = {remainder, {remainder_by_zero, remainder_fails}},
      }),
      Row<&cls_Quorvex::qvxREMAINDER>({
          .name = "qvxREMAINDER",
          .slot = 54,
          .family = "Whole number",
          .category = math,
          .description = "Returns the remainder of a division, with up to 32,767 significant "
                         "digits of precision. Sign tells how the quotient is made whole, and "
                         "every argument behind it acts as the one before it does in qvxMOD.",
          .example = "qvxREMAINDER(\"-12345678901234567890\", 7, TRUE, 1)",
          .parameters = Remainder_Parameters(),
          .results = {remainder,
                      {remainder_by_zero, remainder_fails, "It fails without a sign, too."}},
      }),
      Row<&cls_Quorvex::qvxABS>({
          .name = "qvxABS",
          .slot = 55,
          .family = "Whole number",
          .category = math,
          .description = "Returns the absolute value of a number, with up to 32,767 significant "
                         "digits of precision. The absolute value of a number is the number with "
                         "its negative sign (if it had one) removed.",
          .example = "qvxABS(\"-12345678901234567890.5\")",
          .parameters = With_Formats(Number()),
          .results =
              {"The number without its sign, with all its digits, formatted; 0 for a blank cell.",
               {no_number_is_num_or_value, token_passes, option_fails}},
      }),
      Row<&cls_Quorvex::qvxNEG>({
          .name = "qvxNEG",
          .slot = 57,
          .family = "Whole number",
          .category = math,
          .description = "Returns a number with a negative sign, with up to 32,767 significant "
                         "digits of precision.",
          .example = "qvxNEG(\"12345678901234567890.5\")",
          .parameters = With_Formats(Number()),
          .results = {"The number with all its digits, negative whichever sign it had, formatted.",
                      {"\"VALUE!\", without a #, for a blank cell.", no_number_is_num_or_value,
                       token_passes, option_fails}},
      }),
      Row<&cls_Quorvex::qvxCHANGESIGN>({
          .name = "qvxCHANGESIGN",
          .slot = 58,
          .family = "Whole number",
          .category = math,
          .description = "Changes the sign of a number, with up to 32,767 significant digits of "
                         "precision. Positive numbers are changed to negative, and negative "
                         "numbers are changed to positive.",
          .example = "qvxCHANGESIGN(\"-12345678901234567890.5\")",
          .parameters = With_Formats(Number()),
          .results =
              {"The number with all its digits and the other sign, formatted; 0 for a blank cell.",
               {no_number_is_num_or_value, token_passes, option_fails}},
      }),
  };
}

}  // namespace quorvex::catalogue
