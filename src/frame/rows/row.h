// What rows of the catalogue are written with.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "frame/rows/binding.h"
#include "frame/rows/categories.h"
#include "frame/rows/families.h"
#include "frame/rows/method.h"

namespace quorvex::catalogue {

using Parameters = std::vector<Parameter>;

inline Parameter Operand_Parameter(std::string_view name, std::string_view help) {
  return {.name = name, .help = help};
}

inline Parameter By_Value(std::string_view name, std::string_view help) {
  return {.name = name, .help = help, .passing = Passing::by_value};
}

inline Parameter Optional(std::string_view name, std::string_view help) {
  return {.name = name, .help = help, .optional = true};
}

inline Parameter Truth_Option(std::string_view name, std::string_view help) {
  return {.name = name, .help = help, .optional = true, .is_truth_value = true};
}

/// Parameters followed by the formatting options that most methods take.
inline Parameters With_Formats(Parameters parameters) {
  parameters.insert(
      parameters.end(),
      {Optional("format_negative",
                "0 shows no sign, 1 a leading minus (the default), 2 parentheses"),
       Truth_Option("format_thousands", "TRUE groups the integer digits by thousands"),
       Truth_Option("format_currency", "TRUE attaches the currency symbol"),
       Truth_Option("exponential_notation", "TRUE writes E notation, without grouping")});
  return parameters;
}

inline Parameter Limit_Parameter() {
  return Optional("maximum_significant_digits",
                  "the limit of significant digits; left out, the default limit");
}

inline Parameters With_Digits(Parameters parameters) {
  parameters = With_Formats(std::move(parameters));
  parameters.push_back(Limit_Parameter());
  return parameters;
}

inline Parameters With_Places(Parameters parameters) {
  parameters = With_Digits(std::move(parameters));
  parameters.push_back(
      Optional("format_decimal_place", "a fixed count of decimal places, rounded half up"));
  parameters.push_back(Truth_Option("preserve_decimal_place", "accepted, without effect"));
  return parameters;
}

/// Parameters followed by the options of functions whose results are not formatted otherwise.
inline Parameters With_Notation(Parameters parameters) {
  parameters.push_back(Truth_Option("exponential_notation", "TRUE writes E notation"));
  parameters.push_back(Limit_Parameter());
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

/// A row as it is written, and what the method's signature adds to it.
template <auto method>
Method Row(Method row) {
  using Bound = binding::Bound<method>;
  const auto refuse = [&](const char* why) { throw std::logic_error(std::string(row.name) + why); };
  if (row.parameters.size() != Bound::kinds.size())
    refuse(" is described with another count of parameters.");
  for (std::size_t place = 0; place < row.parameters.size(); ++place) {
    Parameter& parameter = row.parameters[place];
    parameter.kind = Bound::kinds[place];
    if (parameter.kind == Parameter_Kind::boolean) parameter.is_truth_value = true;
    if (!Bound::changes[place]) continue;
    if (parameter.passing == Passing::by_value) refuse(" changes what it takes by value.");
    parameter.passing = Passing::in_and_out;
  }
  if (row.worksheet_name.empty()) row.worksheet_name = row.name;
  row.result = Bound::result;
  row.record = Bound::record;
  row.takes_all_as_list = !row.parameters.empty() && row.parameters[0].kind == Parameter_Kind::list;
  row.invoke = &Bound::Invoke;
  return row;
}

}  // namespace quorvex::catalogue
