#include "text/limits.h"

#include <cmath>

#include "host/conversions.h"
#include "host/run_time_failure.h"
#include "text/guard_digits.h"
#include "text/options.h"
#include "text/primitives.h"

namespace quorvex {
namespace {

bool Is_Absent(const HostValue& value) {
  return value.is_missing() || value.is_empty() || (value.is_text() && value.text().empty());
}

bool Is_Number(const std::string& text) {
  return With_Handler([&] { return Text_To_Number(text), true; },
                      [](const Run_Time_Failure& failure) {
                        if (failure.number() == Failure_Number::type_mismatch) return false;
                        throw Run_Time_Failure(failure);
                      });
}

}  // namespace

HostValue Limit_As_Given(const HostValue& maxSD) {
  return maxSD.is_missing() ? Default_MaxSD() : maxSD;
}

double Limit_As_Number(const HostValue& maxSD) {
  return maxSD.is_missing() ? Default_MaxSD() : To_Number(maxSD);
}

double Working_Limit(const HostValue& maxSD) {
  return maxSD.is_missing() ? Default_MaxSD() : Up_To_Ceiling(To_Number(maxSD));
}

double Limit_Unless_Blank(const HostValue& maxSD) {
  if (Is_Single_Cell(maxSD)) return Limit_Unless_Blank(Cell_Of(maxSD));
  return Is_Absent(maxSD) ? Default_MaxSD() : Up_To_Ceiling(To_Number(maxSD));
}

std::optional<std::int32_t> Whole_Limit(const HostValue& maxSD) {
  if (Is_Single_Cell(maxSD)) return Whole_Limit(Cell_Of(maxSD));
  if (Is_Absent(maxSD)) return To_Int32(Default_MaxSD());
  if (maxSD.is_text() && !Is_Number(maxSD.text())) return std::nullopt;
  return To_Int32(maxSD);
}

double Constant_Digits(const HostValue& digits) {
  if (digits.is_missing()) return Default_MaxSD();
  return Up_To_Ceiling(Count_Of_Digits(digits));
}

double Count_Of_Digits(const HostValue& digits) {
  return With_Handler([&] { return To_Number(digits); },
                      [&](const Run_Time_Failure& failure) {
                        if (!digits.is_text()) throw Run_Time_Failure(failure);
                        const bool is_number = failure.number() == Failure_Number::overflow;
                        const bool is_small = is_number && !Is_Positive(digits.text());
                        return is_small ? -maximum_digits : 2 * maximum_digits;
                      });
}

}  // namespace quorvex
