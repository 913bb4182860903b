// A public method as data: its name, its parameters, what users read of it, and how it is called.
#pragma once

#include <span>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "frame/class/cls_Quorvex.h"
#include "host/host_value.h"

namespace quorvex {

enum class Parameter_Kind { value, text, number, integer, boolean, list, object };
enum class Result_Kind { nothing, text, value, boolean, record };

/// How a host hands a parameter over. The method changes the caller's variable only where it is
/// passed in and out.
enum class Passing { by_value, by_reference, in_and_out };

struct Parameter {
  std::string_view name;
  std::string_view help;
  bool optional = false;
  Passing passing = Passing::by_reference;  // in_and_out is filled in from the method's signature
  Parameter_Kind kind = Parameter_Kind::value;  // filled in as well
  // Nothing but true or false: for hosts that hand 1 and 0 over for them.
  bool is_truth_value = false;
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
  std::string_view worksheet_name = {};  // what cells call it; the same but for letters' case
  int slot = 0;                          // its place in the class, from 1 on, which never changes
  std::string_view family = {};
  std::string_view category = {};  // of the host's function dialog; empty if not offered there
  // Within its category a host is told of it by this number, and of those that share one by their
  // worksheet names.
  int place = 0;
  std::string_view description = {};
  std::string_view example = {};  // a formula
  std::vector<Parameter> parameters = {};
  Results results = {};

  // Filled in from the method's signature.
  Result_Kind result = Result_Kind::nothing;
  std::string_view record = {};  // the name of its type, for a method that gives one
  // True for a method that begins with a list: all arguments of a formula are elements of that
  // list, and what else the method takes, such as the size of the caller's block, is for the host
  // to say.
  bool takes_all_as_list = false;
  // Takes one value for each parameter, and changes those alone that are passed in and out.
  Call_Result (*invoke)(cls_Quorvex&, std::span<HostValue>) = nullptr;
};

}  // namespace quorvex
