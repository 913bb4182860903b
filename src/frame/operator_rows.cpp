// Rows of the operators: arithmetic and comparison of two numbers.
#include "frame/catalogue_rows.h"
#include "frame/result_texts.h"

namespace quorvex::catalogue {
namespace {

// Parameters of operations that can refuse long operands.
Parameters With_Restriction(Parameters parameters) {
  parameters = With_Places(std::move(parameters));
  parameters.insert(parameters.end() - 2,
                    Optional("restrict_input_lengths",
                             "TRUE refuses operands of more than 1,073,741,824 digits together"));
  return parameters;
}

Parameters Compared_By_Value() {
  return {By_Value("number1", first_number), By_Value("number2", second_number)};
}

// Named, since in a list they would look like two sentences each.
constexpr Sentence root_tokens =
    "\"DIV/0!\", without a #, for a degree of 0. \"#NUM!\" for a negative number unless "
    "the degree is an odd whole number, and where the approach never comes to rest. \"#VALUE!\" "
    "where it can be seen to take longer than anybody waits.";
constexpr Sentence power_tokens =
    "\"#NUM!\" for a fractional power of a negative number, and for a power with more "
    "integer digits than a text can hold. \"#VALUE!\" for a fractional power whose root can be "
    "seen to take longer than anybody waits.";

}  // namespace

std::vector<Method> Sum_Rows() {
  return {
      Row<&cls_Quorvex::qvxADD>(
          "qvxADD", "Arithmetic", operators,
          "Adds two numbers, with up to 32,767 significant digits of precision.",
          "qvxADD(\"12345678901234567890.5\", 1.25)",
          With_Places({Operand_Parameter("number1", first_number),
                       Operand_Parameter("number2", second_number)}),
          {"The sum, formatted.", {unread_is_value, token_passes}}),
      Row<&cls_Quorvex::qvxSUBTRACT>(
          "qvxSUBTRACT", "Arithmetic", operators,
          "Subtracts one number from another, with up to 32,767 significant digits of precision. "
          "Number2 is subtracted from number1.",
          "qvxSUBTRACT(1, \"0.00000000000000000001\")",
          With_Places({Operand_Parameter("number1", "the number to subtract from"),
                       Operand_Parameter("number2", "the number to subtract")}),
          {"The difference, formatted.", {unread_is_value, token_passes}}),
  };
}

std::vector<Method> Product_Rows() {
  return {
      Row<&cls_Quorvex::qvxMULTIPLY>(
          "qvxMULTIPLY", "Arithmetic", operators,
          "Multiplies two numbers, with up to 32,767 significant digits of precision.",
          "qvxMULTIPLY(\"12345678901234567890\", \"-0.5\")",
          With_Places({Operand_Parameter("number1", first_number),
                       Operand_Parameter("number2", second_number)}),
          {"The product, formatted.",
           {unread_is_value, token_passes,
            "\"#VALUE!\" also where the library of products can't be found."}}),
      Row<&cls_Quorvex::qvxDIVIDE>(
          "qvxDIVIDE", "Arithmetic", operators,
          "Divides one number by another, with up to 32,767 significant digits of precision. "
          "Number1 is divided by number2.",
          "qvxDIVIDE(1, 7, , , , , 30)",
          With_Places({Operand_Parameter("number1", "the number to divide"),
                       Operand_Parameter("number2", "the number to divide by")}),
          {"The quotient, formatted, at the limit and one digit more.",
           {"\"#DIV/0!\" for a divisor of 0 or blank.", no_number_is_num_or_value, token_passes,
            unread_option_is_value}}),
  };
}

std::vector<Method> Power_Rows() {
  return {
      Row<&cls_Quorvex::qvxROOT>(
          "qvxROOT", "Root", operators,
          "Gets the specified root of a number, with up to 32,767 significant digits of precision.",
          "qvxROOT(2, 7, , , , , 50)",
          With_Restriction(
              {Operand_Parameter("number1", "the number to take the root of"),
               Operand_Parameter("number2",
                                 "the degree: 2 for the square root, 3 for the cube root; it may "
                                 "be fractional or negative")}),
          {root,
           {root_tokens, no_number_is_num_or_value, token_passes, unread_option_is_value,
            restricted}}),
      Row<&cls_Quorvex::qvxPOWER>(
          "qvxPOWER", "Power", operators,
          "Raises one number to the power of another number, with up to 32,767 significant digits "
          "of precision. Num is raised to the power of pwr.",
          "qvxPOWER(\"1.000000001\", 1000000, , , , , 30)",
          With_Restriction({Operand_Parameter("number1", "the number to raise"),
                            Operand_Parameter("number2", "the power to raise it to")}),
          {"The power, formatted.",
           {power_tokens, no_number_is_num_or_value, token_passes, unread_option_is_value,
            restricted}}),
  };
}

std::vector<Method> Comparison_Rows() {
  return {
      Row<&cls_Quorvex::qvxISEQUAL>(
          "qvxISEQUAL", "Comparison", operators,
          "Determines whether two numbers are equal, with up to 32,767 significant digits of "
          "precision. Returns TRUE if they are equal; returns FALSE if not.",
          "qvxISEQUAL(\"1.50\", 1.5)", Compared_By_Value(),
          {true_or_false_text, {no_number_is_num, token_passes, array_fails}}),
      Row<&cls_Quorvex::qvxISNOTEQUAL>(
          "qvxISNOTEQUAL", "Comparison", operators,
          "Determines whether two numbers differ, with up to 32,767 significant digits of "
          "precision. Returns TRUE if they differ; returns FALSE if they are equal.",
          "qvxISNOTEQUAL(\"1.50\", 1.5)", Compared_By_Value(),
          {true_or_false_text,
           {no_number_is_num, "But \"#VALUE!\" and \"#DIV/0!\" differ from everything.",
            array_fails}}),
      Row<&cls_Quorvex::qvxISGREATER>(
          "qvxISGREATER", "Comparison", operators,
          "Determines whether one number is larger than another, with up to 32,767 significant "
          "digits of precision. Returns TRUE if the first number is larger than the second; "
          "returns FALSE if the first number is smaller than the second number, or if they are "
          "equal.",
          "qvxISGREATER(\"0.1\", \"0.09\")",
          {Operand_Parameter("number1", first_number), Operand_Parameter("number2", second_number)},
          {true_or_false_text, {no_number_is_num, token_passes, array_fails}}),
      Row<&cls_Quorvex::qvxISGREATEROREQUAL>(
          "qvxISGREATEROREQUAL", "Comparison", operators,
          "Determines whether one number is larger than another or equal to it, with up to 32,767 "
          "significant digits of precision. Returns TRUE if the first number is larger than the "
          "second or equal to it; returns FALSE if it is smaller.",
          "qvxISGREATEROREQUAL(2, 10)", Compared_By_Value(),
          {true_or_false_text, {no_number_is_num, token_passes, array_fails}}),
      Row<&cls_Quorvex::qvxISLESS>(
          "qvxISLESS", "Comparison", operators,
          "Determines whether one number is smaller than another, with up to 32,767 significant "
          "digits of precision. Returns TRUE if the first number is smaller than the second; "
          "returns FALSE if it is larger, or if they are equal.",
          "qvxISLESS(-2, -1)", Compared_By_Value(),
          {true_or_false_text, {no_number_is_num, token_passes, array_fails}}),
      Row<&cls_Quorvex::qvxISLESSOREQUAL>(
          "qvxISLESSOREQUAL", "Comparison", operators,
          "Determines whether one number is smaller than another or equal to it, with up to 32,767 "
          "significant digits of precision. Returns TRUE if the first number is smaller than the "
          "second or equal to it; returns FALSE if it is larger.",
          "qvxISLESSOREQUAL(2, 2)", Compared_By_Value(),
          {true_or_false_text, {no_number_is_num, token_passes, array_fails}}),
  };
}

}  // namespace quorvex::catalogue
