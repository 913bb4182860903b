#include "frame/rows/binding.h"

#include "host/run_time_failure.h"

namespace quorvex::binding {
namespace {

bool Is_List(const HostValue& argument) {
  return argument.kind() == HostValue::Kind::list;
}

List Only(const HostValue& argument) {
  return argument.is_missing() ? List() : List{argument};
}

}  // namespace

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

List_Argument::List_Argument(const HostValue& argument)
    : made_(Is_List(argument) ? List() : Only(argument)),
      list_(Is_List(argument) ? argument.list() : made_) {}

NumberText& Text_In_Place(HostValue& argument) {
  if (!argument.is_text()) argument = To_Text(argument);
  return argument.mutable_text();
}

std::shared_ptr<Host_Application> Application_In(const HostValue& argument) {
  if (argument.is_missing() || argument.is_empty()) return nullptr;
  throw Run_Time_Failure(Failure_Number::type_mismatch,
                         "The host's application object is needed, and no value stands for it.");
}

}  // namespace quorvex::binding
