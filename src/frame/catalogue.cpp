#include "frame/catalogue.h"

#include <algorithm>
#include <stdexcept>
#include <string>

#include "frame/binding.h"
#include "frame/catalogue_rows.h"
#include "frame/result_texts.h"
#include "host/run_time_failure.h"

namespace quorvex {

namespace binding {

Call_Result Give(const type_Restrictionator& options) {
  return Record{{{"FormatNegative", options.FormatNegative},
                 {"FormatThousands", options.FormatThousands},
                 {"FormatCurrency", options.FormatCurrency},
                 {"ExponentialNotation", options.ExponentialNotation},
                 {"maxSD", options.maxSD},
                 {"InsertFunctionDialog", options.InsertFunctionDialog},
                 {"IncluderExcluderFunctions", options.IncluderExcluderFunctions},
                 {"FormatDecimalPlace", options.FormatDecimalPlace},
                 {"PreserveTrailingZerosAfterDecimal", options.PreserveTrailingZerosAfterDecimal}}};
}

Call_Result Give(const type_Division_Recip& quotient) {
  return Record{{{"digits", quotient.digits}, {"powerOfTen", quotient.powerOfTen}}};
}

NumberText& Text_In_Place(HostValue& argument) {
  if (!argument.is_text()) argument = To_Text(argument);
  return argument.mutable_text();
}

std::shared_ptr<Host_Application> Application_In(const HostValue& argument) {
  if (argument.is_missing() || argument.is_empty()) return nullptr;
  throw Run_Time_Failure(Failure_Number::type_mismatch,
                         "The host's application object is needed, and no value stands for it.");
}

const List& List_In_Place(HostValue& argument) {
  if (argument.is_missing()) argument = List();
  if (argument.kind() != HostValue::Kind::list) argument = List{std::move(argument)};
  return argument.list();
}

}  // namespace binding

namespace {

using namespace catalogue;

std::vector<Method> Call_Frame_Rows() {
  return {
      Row<&cls_Quorvex::PublicRestrictionatorCaller>(
          "PublicRestrictionatorCaller", "Call frame", not_offered,
          "Resolves the first five formatting options, as every function does.",
          "PublicRestrictionatorCaller(2, TRUE)", With_Digits({}),
          {options_record, {unread_option_fails}}),
      Row<&cls_Quorvex::Restrictionator>("Restrictionator", "Call frame", not_offered,
                                         "Resolves the formatting options, as every function does.",
                                         "Restrictionator(2, TRUE, , , 50, 2)", With_Places({}),
                                         {options_record, {unread_option_fails}}),
  };
}

std::vector<Method> Division_Rows() {
  const Parameters two_numbers = {Operand_Parameter("num1", first_number),
                                  Operand_Parameter("num2", second_number)};
  return {
      Row<&cls_Quorvex::DivisionDecimalPosition>(
          "DivisionDecimalPosition", "Division", not_offered,
          "Returns the place of a quotient's decimal separator by the lengths of two digit "
          "strings.",
          "DivisionDecimalPosition(\"1\", \"30\")",
          {Operand_Parameter("divisor", "the digits of the number that is divided"),
           Operand_Parameter("dividend", "the digits of the number divided by")},
          {"A number: at which place behind the separator the quotient begins, 0 if before it; 1 "
           "for equal operands.",
           {array_fails}}),
      Row<&cls_Quorvex::Recip_Divide>(
          "Recip_Divide", "Division", not_offered,
          "Returns the quotient of two whole numbers as digits and a power of ten.",
          "Recip_Divide(\"1\", \"3\", 8)",
          {Operand_Parameter("iBig", "the number to divide"),
           Operand_Parameter("kBig", "the number to divide by"),
           Operand_Parameter("Precision", "the significant digits wanted")},
          {"A record: digits, and powerOfTen, the power of ten that they are multiplied by.",
           {"In digits: \"#DIV/0!\" for a divisor of 0; the token of an operand that is no number, "
            "or that it is; \"#VALUE!\" where products can't be formed."}}),
      Row<&cls_Quorvex::myInverse5>(
          "myInverse5", "Division", not_offered,
          "Returns digits of the reciprocal of a whole number, approached from below.",
          "myInverse5(\"7\", 20)",
          {Operand_Parameter("kBig", "a whole number as digits"),
           Operand_Parameter("p", "the digits wanted")},
          {"A record: digits, as many as wanted, and powerOfTen, the power of ten that they are "
           "multiplied by.",
           {"In digits: \"#EXPR!\" where the digits of a precision of 1 or 2 never come to rest; "
            "empty text after any other failure, as for what is no whole number."}}),
      Row<&cls_Quorvex::Min>("Min", "Division", not_offered, "Returns the lesser of two numbers.",
                             "Min(2, 10)", two_numbers, {lesser_or_greater, {no_number_fails}}),
      Row<&cls_Quorvex::Max>("Max", "Division", not_offered, "Returns the greater of two numbers.",
                             "Max(2, 10)", two_numbers, {lesser_or_greater, {no_number_fails}}),
      Row<&cls_Quorvex::GetHalfofLong>("GetHalfofLong", "Division", not_offered,
                                       "Returns the half of a 32-bit whole number, rounded down.",
                                       "GetHalfofLong(7)",
                                       {Operand_Parameter("num_as_long", "a whole number")},
                                       {"A number.",
                                        {"The call fails for what is no number of 32 bits. A "
                                         "fraction is rounded before it is halved."}}),
  };
}

std::vector<Method> Cell_Sum_Rows() {
  return {
      Row<&cls_Quorvex::qvxSUM>(
          "qvxSUM", "List", math,
          "Returns the sum of a range or array, with up to 32,767 significant digits of precision. "
          "Every cell must be a number or blank.",
          "qvxSUM({1, \"0.00000000000000000001\"; 2, 3}, , TRUE)",
          With_Digits({Operand_Parameter("rngArray", "a range of several cells, or an array")}),
          {"The sum, formatted.",
           {"The token of a cell that is no number, or that it holds.", unread_option_is_value,
            "The call fails for a single cell or value."}}),
  };
}

std::vector<Method> Mean_Rows() {
  return {
      Row<&cls_Quorvex::qvxAVERAGE>(
          "qvxAVERAGE", "List", statistical,
          "Returns the average of the numeric arguments, with up to 32,767 significant digits of "
          "precision. MSD=n must be given.  \"format:negative,thousands,currency,exponent,MSD=n\"",
          "qvxAVERAGE(1, 2, 4, \"format:MSD=30\")", Number_List(),
          {"The mean, formatted; 0 where there is no number.",
           {"\"#VALUE!\" without MSD=, unless the sum is 0. The call fails for a sum beyond 64-bit "
            "floats.",
            list_fails}}),
  };
}

std::vector<Method> List_Rows() {
  return {
      Row<&cls_Quorvex::qvxPRODUCT>(
          "qvxPRODUCT", "List", math,
          "Returns the product of the numeric arguments, with up to 32,767 significant digits of "
          "precision.  \"format:negative,thousands,currency,exponent,MSD=n\"",
          "qvxPRODUCT(\"12345678901234567890\", -2, 0.5)", Number_List(),
          {"The product, formatted; 1 where there is no number.", {list_fails}}),
      Row<&cls_Quorvex::qvxSUM2>(
          "qvxSUM2", "List", math,
          "Returns the sum of the numeric arguments, with up to 32,767 significant digits of "
          "precision.  \"format:negative,thousands,currency,exponent,MSD=n\"",
          "qvxSUM2({1, 2; 3, \"no number\"}, \"99999999999999999999\", \"format:thousands\")",
          Number_List(), {"The sum, formatted; 0 where there is no number.", {list_fails}}),
      Row<&cls_Quorvex::qvxCOUNT>(
          "qvxCOUNT", "List", statistical,
          "Returns how many of the arguments are numbers, with up to 32,767 significant digits of "
          "precision.  \"format:negative,thousands,currency,exponent,MSD=n\"",
          "qvxCOUNT(1, \"2\", \"two\", TRUE, \"3.00000000000000000001\")", Number_List(),
          {"The count, formatted.", {list_fails}}),
      Row<&cls_Quorvex::qvxMAX>(
          "qvxMAX", "List", statistical,
          "Returns the largest of the numeric arguments, with up to 32,767 significant digits of "
          "precision. The first argument must be a number.  "
          "\"format:negative,thousands,currency,exponent,MSD=n\"",
          "qvxMAX(\"0.1\", \"0.10000000000000000001\")", Number_List(),
          {extreme, {first_element_stays, list_fails}}),
      Row<&cls_Quorvex::qvxMIN>(
          "qvxMIN", "List", statistical,
          "Returns the smallest of the numeric arguments, with up to 32,767 significant digits of "
          "precision. The first argument must be a number.  "
          "\"format:negative,thousands,currency,exponent,MSD=n\"",
          "qvxMIN(-1, \"-1.00000000000000000001\", \"format:negative\")", Number_List(),
          {extreme, {first_element_stays, list_fails}}),
  };
}

std::vector<Method> Recognition_Rows() {
  return {
      Row<&cls_Quorvex::qvxISNUMBER>(
          "qvxISNUMBER", "Recognition", information,
          "Determines whether a value or text string can be evaluated as a number by Quorvex "
          "functions, with up to 32,767 significant digits of precision. Returns TRUE if input can "
          "be evaluated as a number by Quorvex functions; returns FALSE if not.",
          "qvxISNUMBER(\"-1,234.5\")", {Operand_Parameter("num", "a value or text")},
          {true_or_false, {"No token: text that is one is no number.", array_fails}}),
  };
}

Parameters Rounding_Parameters() {
  return With_Formats(
      {Operand_Parameter("num", first_number),
       Operand_Parameter("num_digits",
                         "the decimal places to keep; a negative count acts one place short, so "
                         "that -2 rounds to tens")});
}

std::vector<Method> Rounding_Rows() {
  return {
      Row<&cls_Quorvex::qvxROUND>(
          "qvxROUND", "Rounding", math,
          "Rounds a number to a count of decimal places, with up to 32,767 significant digits of "
          "precision. Halves are rounded away from zero.",
          "qvxROUND(\"12345678901234567890.125\", 2)", Rounding_Parameters(),
          {rounded_number, {rounding_of_no_number, option_fails}}),
      Row<&cls_Quorvex::qvxROUNDUP>(
          "qvxROUNDUP", "Rounding", math,
          "Rounds a number away from zero to a count of decimal places, with up to 32,767 "
          "significant digits of precision. The result is never below one unit of the last place.",
          "qvxROUNDUP(\"0.00000000000000000001\", 2)", Rounding_Parameters(),
          {rounded_number, {rounding_of_no_number, option_fails}}),
      Row<&cls_Quorvex::qvxROUNDDOWN>(
          "qvxROUNDDOWN", "Rounding", math,
          "Rounds a number towards zero to a count of decimal places, with up to 32,767 "
          "significant digits of precision.",
          "qvxROUNDDOWN(\"-12345678901234567890.129\", 2)", Rounding_Parameters(),
          {rounded_number, {rounding_of_no_number, option_fails}}),
  };
}

std::vector<Method> Constant_Rows() {
  const Parameters digits = {Optional(
      "digits", "the digits wanted, of 32,767 that there are; left out, the default limit")};
  return {
      Row<&cls_Quorvex::qvxPi>(
          "qvxPi", "Constants", math,
          "Returns the mathematical constant Pi, the ratio of circumference of a circle divided by "
          "its diameter, with up to 32,767 significant digits of precision. Pi is the same for all "
          "circles. Pi's decimal places continue infinitely and never repeat.",
          "qvxPi(50)", digits, {digits_cut, {beyond_pi, unread_count}}),
      Row<&cls_Quorvex::qvxE>(
          "qvxE", "Constants", math,
          "Returns the mathematical constant e, the base of natural logarithms, with up to 32,767 "
          "significant digits of precision. e's decimal places continue infinitely and never "
          "repeat.",
          "qvxE(50)", digits, {digits_cut, {beyond_pi, unread_count}}),
  };
}

std::vector<Method> Angle_Rows() {
  const Parameter digits = Optional("maxSD", "the limit of significant digits, that of pi as well");
  return {
      Row<&cls_Quorvex::qvxRADIANS>(
          "qvxRADIANS", "Trigonometry", math,
          "Converts degrees to radians, with up to 32,767 significant digits of precision.",
          "qvxRADIANS(\"90\", 30)", {Operand_Parameter("degrees", "an angle in degrees"), digits},
          {angle_in_radians, {beyond_pi, angle_of_no_number, token_passes, unread_digits_fail}}),
      Row<&cls_Quorvex::qvxDEGREES>(
          "qvxDEGREES", "Trigonometry", math,
          "Converts radians to degrees, with up to 32,767 significant digits of precision.",
          "qvxDEGREES(\"0.5\", 30)", {Operand_Parameter("radians", "an angle in radians"), digits},
          {"The angle in degrees, not formatted.",
           {beyond_pi, angle_of_no_number, token_passes, unread_digits_fail}}),
  };
}

std::vector<Method> Default_Rows() {
  return {
      Row<&cls_Quorvex::qvxDEFAULTMAXSD>(
          "qvxDEFAULTMAXSD", "Call frame", not_offered,
          "Returns the maximum significant digits that a function uses when none are given.",
          "qvxDEFAULTMAXSD()", {}, {"A number.", {nothing_fails}}),
  };
}

std::vector<Method> Last_Rows() {
  return {
      Row<&cls_Quorvex::qvxFORMAT>("qvxFORMAT", "Formatting", miscellaneous,
                                   "Applies formatting to a number entered as text.",
                                   "qvxFORMAT(\"-1234567.891\", 2, TRUE, TRUE, , , 2)",
                                   With_Places({Operand_Parameter("number", "a number as text")}),
                                   {"The number, formatted, at the limit and one digit more.",
                                    {no_number_is_num_or_value, token_passes, option_fails,
                                     "It fails, too, where rounding to fixed places would carry "
                                     "into a thousands separator."}}),
  };
}

std::vector<Method> Make_Catalogue() {
  std::vector<Method> methods;
  for (auto rows : {Host_Rows(),         Call_Frame_Rows(), Division_Rows(),    Mantissa_Rows(),
                    Angle_Worker_Rows(), Cell_Sum_Rows(),   Square_Root_Rows(), Parity_Rows(),
                    Mean_Rows(),         Order_Rows(),      Extraction_Rows(),  List_Rows(),
                    Recognition_Rows(),  Whole_Part_Rows(), Factorial_Rows(),   Whole_Number_Rows(),
                    Sign_Rows(),         Sum_Rows(),        Product_Rows(),     Power_Rows(),
                    Comparison_Rows(),   Rounding_Rows(),   Reduction_Rows(),   Divisor_Rows(),
                    Constant_Rows(),     About_Rows(),      Default_Rows(),     Test_Rows(),
                    Angle_Rows(),        Sine_Rows(),       Arc_Rows(),         Probability_Rows(),
                    Logarithm_Rows(),    Last_Rows()}) {
    std::ranges::move(rows, std::back_inserter(methods));
  }
  return methods;
}

char Lower(char letter) {
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool Same_Name(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, {}, Lower, Lower);
}

}  // namespace

std::span<const Method> Catalogue() {
  static const std::vector<Method> methods = Make_Catalogue();
  return methods;
}

const Method* Find_Method(std::string_view name) {
  const auto methods = Catalogue();
  const auto found = std::ranges::find_if(
      methods, [&](const Method& method) { return Same_Name(method.name, name); });
  return found == methods.end() ? nullptr : &*found;
}

Call_Result Invoke(cls_Quorvex& engine, const Method& method, std::vector<HostValue> arguments) {
  if (arguments.size() > method.parameters.size()) {
    throw std::invalid_argument(std::string(method.name) + " takes fewer arguments.");
  }
  arguments.resize(method.parameters.size());
  return With_Memory_Failures([&] { return method.invoke(engine, arguments); });
}

}  // namespace quorvex
