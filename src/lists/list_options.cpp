#include "lists/list_options.h"

#include "host/conversions.h"
#include "host/run_time_failure.h"
#include "text/digit_runs.h"

namespace quorvex {
namespace {

bool Has_Word(std::string_view text, std::string_view word) {
  return text.find(word) != std::string_view::npos;
}

}  // namespace

bool Is_Option_String(std::string_view capitals) {
  return capitals.starts_with("FORMAT:");
}

void Read_Option_String(std::string_view capitals, List_Options& options) {
  options.negative = options.negative || Has_Word(capitals, "NEGATIVE");
  options.thousands = options.thousands || Has_Word(capitals, "THOUSANDS");
  options.currency = options.currency || Has_Word(capitals, "CURRENCY");
  options.exponent = options.exponent || Has_Word(capitals, "EXPONENT");
  constexpr std::string_view limit = "MSD=";
  const std::size_t place = capitals.find(limit);
  if (options.has_msd || place == std::string_view::npos) return;
  const std::string_view behind = capitals.substr(place + limit.size());
  const std::size_t digits = Count_Digits(behind);
  if (digits == 0) {
    throw Run_Time_Failure(Failure_Number::type_mismatch, "MSD= must have digits right behind it.");
  }
  options.msd = Text_To_Number(behind.substr(0, digits));
  options.has_msd = true;
}

}  // namespace quorvex
