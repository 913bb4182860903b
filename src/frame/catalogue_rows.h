// What rows of the catalogue are written with.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "frame/binding.h"
#include "frame/catalogue.h"

namespace quorvex::catalogue {

using Parameters = std::vector<Parameter>;

inline constexpr std::string_view operators = "High-Precision Operators";
inline constexpr std::string_view math = "High-Precision Math";
inline constexpr std::string_view statistical = "High-Precision Statistical";
inline constexpr std::string_view text_functions = "High-Precision Text";
inline constexpr std::string_view information = "High-Precision Information";
inline constexpr std::string_view miscellaneous = "High-Precision Miscellaneous";
inline constexpr std::string_view add_in_information = "Quorvex Add-In Information";
inline constexpr std::string_view not_offered;

inline Parameter Operand_Parameter(std::string_view name, std::string_view help) {
  return {name, help};
}

inline Parameter By_Value(std::string_view name, std::string_view help) {
  return {.name = name, .help = help, .by_value = true};
}

inline Parameter Optional(std::string_view name, std::string_view help) {
  return {.name = name, .help = help, .optional = true};
}

/// Parameters followed by the formatting options that most methods take.
inline Parameters With_Formats(Parameters parameters) {
  parameters.insert(parameters.end(),
                    {Optional("format_negative",
                              "0 shows no sign, 1 a leading minus (the default), 2 parentheses"),
                     Optional("format_thousands", "TRUE groups the integer digits by thousands"),
                     Optional("format_currency", "TRUE attaches the currency symbol"),
                     Optional("exponential_notation", "TRUE writes E notation, without grouping")});
  return parameters;
}

inline Parameters With_Digits(Parameters parameters) {
  parameters = With_Formats(std::move(parameters));
  parameters.push_back(Optional("maximum_significant_digits",
                                "the limit of significant digits; left out, the default limit"));
  return parameters;
}

inline Parameters With_Places(Parameters parameters) {
  parameters = With_Digits(std::move(parameters));
  parameters.push_back(
      Optional("format_decimal_place", "a fixed count of decimal places, rounded half up"));
  parameters.push_back(Optional("preserve_decimal_place", "accepted, without effect"));
  return parameters;
}

inline constexpr std::string_view first_number = "a number";
inline constexpr std::string_view second_number = "another number";

inline Parameters Number_List() {
  return {Operand_Parameter("numlist",
                            "numbers, ranges and arrays; and among them, as text, how the result "
                            "is formatted: \"format:\" and any of the words negative, thousands, "
                            "currency, exponent, MSD=n")};
}

template <auto method>
Method Row(std::string_view name, std::string_view family, std::string_view category,
           std::string_view description, std::string_view example, Parameters parameters,
           Results results = {}) {
  using Bound = binding::Bound<method>;
  if (parameters.size() != Bound::kinds.size()) {
    throw std::logic_error(std::string(name) + " is described with another count of parameters.");
  }
  for (std::size_t place = 0; place < parameters.size(); ++place) {
    parameters[place].kind = Bound::kinds[place];
  }
  return {name,
          family,
          category,
          description,
          example,
          std::move(parameters),
          std::move(results),
          Bound::result,
          &Bound::Invoke};
}

// Rows that fill files of their own, in the order of the class.
std::vector<Method> Host_Rows();
std::vector<Method> Angle_Worker_Rows();
std::vector<Method> Square_Root_Rows();
std::vector<Method> Parity_Rows();
std::vector<Method> Order_Rows();
std::vector<Method> Extraction_Rows();
std::vector<Method> Whole_Part_Rows();
std::vector<Method> Whole_Number_Rows();
std::vector<Method> Sign_Rows();
std::vector<Method> Sum_Rows();
std::vector<Method> Product_Rows();
std::vector<Method> Power_Rows();
std::vector<Method> Comparison_Rows();
std::vector<Method> Reduction_Rows();
std::vector<Method> Divisor_Rows();
std::vector<Method> About_Rows();
std::vector<Method> Test_Rows();
std::vector<Method> Sine_Rows();
std::vector<Method> Arc_Rows();
std::vector<Method> Mantissa_Rows();
std::vector<Method> Factorial_Rows();
std::vector<Method> Probability_Rows();
std::vector<Method> Logarithm_Rows();

}  // namespace quorvex::catalogue
