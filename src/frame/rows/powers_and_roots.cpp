// Rows of powers and roots.
#include "frame/rows/result_texts.h"
#include "frame/rows/row.h"

namespace quorvex::catalogue {
namespace {

// Parameters of operations that can refuse long operands.
Parameters With_Restriction(Parameters parameters) {
  parameters = With_Places(std::move(parameters));
  parameters.insert(
      parameters.end() - 2,
      Truth_Option("restrict_input_lengths",
                   "TRUE refuses operands of more than 1,073,741,824 digits together"));
  return parameters;
}

Parameters Square_Root_Parameters() {
  return {Operand_Parameter("num", first_number),
          Truth_Option("format_thousands", "TRUE groups the integer digits by thousands"),
          Truth_Option("format_currency", "TRUE attaches the currency symbol"),
          Truth_Option("exponential_notation", "TRUE writes E notation, without grouping"),
          Optional("maxSD", "the limit of significant digits; left out, the default limit")};
}

// Named, since in a list they would look like two sentences each.
constexpr Sentence root_tokens =
    "\"DIV/0!\", without a #, for a degree of 0. \"#NUM!\" for a negative number unless the degree "
    "is an odd whole number, and where the approach never comes to rest.";
constexpr Sentence power_tokens =
    "\"#NUM!\" for a fractional power of a negative number, and for a power with more integer "
    "digits than a text can hold.";

}  // namespace

std::vector<Method> Power_And_Root_Rows() {
  return {
      Row<&cls_Quorvex::qvxSQRT>({
          .name = "qvxSQRT",
          .slot = 21,
          .family = "Root",
          .category = math,
          .description = "Returns the square root of a number, with up to 32,767 significant "
                         "digits of precision.",
          .example = "qvxSQRT(2, , , , 50)",
          .parameters = Square_Root_Parameters(),
          .results = {root, {signed_is_num, no_number_is_num_or_value, token_passes, root_fails}},
      }),
      Row<&cls_Quorvex::qvxSQRTPI>({
          .name = "qvxSQRTPI",
          .slot = 22,
          .family = "Root",
          .category = math,
          .description = "Returns the square root of (number * Pi), with up to 32,767 significant "
                         "digits of precision.",
          .example = "qvxSQRTPI(1, , , , 50)",
          .parameters = Square_Root_Parameters(),
          .results = {root,
                      {signed_is_num, beyond_pi, unread_number_is_value, token_passes, root_fails}},
      }),
      Row<&cls_Quorvex::qvxROOT>({
          .name = "qvxROOT",
          .slot = 63,
          .family = "Root",
          .category = operators,
          .place = 6,
          .description = "Gets the specified root of a number, with up to 32,767 significant "
                         "digits of precision.",
          .example = "qvxROOT(2, 7, , , , , 50)",
          .parameters =
              With_Restriction({Operand_Parameter("number1", "the number to take the root of"),
                                Operand_Parameter("number2",
                                                  "the degree: 2 for the square root, 3 for the "
                                                  "cube root; it may be fractional or negative")}),
          .results = {root,
                      {root_tokens, no_number_is_num_or_value, token_passes, unread_option_is_value,
                       restricted}},
      }),
      Row<&cls_Quorvex::qvxPOWER>({
          .name = "qvxPOWER",
          .slot = 64,
          .family = "Power",
          .category = operators,
          .place = 5,
          .description = "Raises one number to the power of another number, with up to 32,767 "
                         "significant digits of precision. Num is raised to the power of pwr.",
          .example = "qvxPOWER(\"1.000000001\", 1000000, , , , , 30)",
          .parameters =
              With_Restriction({Operand_Parameter("number1", "the number to raise"),
                                Operand_Parameter("number2", "the power to raise it to")}),
          .results = {"The power, formatted.",
                      {power_tokens, no_number_is_num_or_value, token_passes,
                       unread_option_is_value, restricted}},
      }),
  };
}

}  // namespace quorvex::catalogue
