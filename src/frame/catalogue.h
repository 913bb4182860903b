// The exported interface as data: what the command line, the batch protocol, the reference and the
// adapters of hosts are driven by.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "frame/cls_Quorvex.h"
#include "host/export.h"
#include "host/host_value.h"

namespace quorvex {

enum class Parameter_Kind { value, text, number, integer, boolean, list, object };
enum class Result_Kind { nothing, text, value, boolean, record };

struct Parameter {
  std::string_view name;
  std::string_view help;
  bool optional = false;
  bool by_value = false;
  Parameter_Kind kind = Parameter_Kind::value;  // filled in from the method's signature
};

/// A record, its fields in declared order.
struct Record {
  std::vector<std::pair<std::string_view, HostValue>> fields;
};

/// What a call gave: nothing, a value, or a record.
using Call_Result = std::variant<std::monostate, HostValue, Record>;

/// What a call gives, for users to read. "Formatted" means: by the formatting options.
struct Results {
  std::string_view returns;
  std::vector<std::string_view> failures;  // which tokens there are, and when the call fails
};

/// One public method.
struct Method {
  std::string_view name;
  std::string_view family;
  std::string_view category;  // of the host's function dialog; empty for what is not offered there
  std::string_view description;
  std::string_view example;  // a formula
  std::vector<Parameter> parameters;
  Results results;
  Result_Kind result = Result_Kind::nothing;
  Call_Result (*invoke)(cls_Quorvex&, std::span<HostValue>) = nullptr;
};

/// All public methods, in the order of the class.
QUORVEX_API std::span<const Method> Catalogue();

/// The method of that name, in any case of letters; null if there is none.
QUORVEX_API const Method* Find_Method(std::string_view name);

/// Calls a method. Arguments left out at the end are missing; there must be no more than the method
/// has parameters (std::invalid_argument). A method's `Run_Time_Failure` is let through, and memory
/// that can't be had becomes one, number 7.
QUORVEX_API Call_Result Invoke(cls_Quorvex& engine, const Method& method,
                               std::vector<HostValue> arguments);

}  // namespace quorvex
