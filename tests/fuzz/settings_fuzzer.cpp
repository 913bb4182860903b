// Any bytes as a settings file, a setting and a locale: what is stored is found, other settings
// stay, and whatever a system tells of its locale, numbers can be written in it.
#include <fuzzer/FuzzedDataProvider.h>

#include <cstdint>
#include <string>

#include "fuzz/require.h"
#include "host/locale_rules.h"
#include "host/platform.h"
#include "host/settings_text.h"

namespace {

using namespace quorvex;

void Check_Settings(FuzzedDataProvider& data) {
  const std::string application = data.ConsumeRandomLengthString(20);
  const std::string section = data.ConsumeRandomLengthString(20);
  const std::string key = data.ConsumeRandomLengthString(20);
  const std::string value = data.ConsumeRandomLengthString(60);
  const std::string contents = data.ConsumeRemainingBytesAsString();
  const Setting_Name name{application, section, key};
  const Setting_Name limit{"Quorvex", "Options", "MaxSD"};
  const auto limit_before = Find_Setting(contents, limit);
  const std::string stored = With_Setting(contents, name, value);
  Require(Find_Setting(stored, name) == value, "a setting is lost", stored);
  Require(!Holds_No_Setting(stored), "a setting is not seen", stored);
  if (Find_Setting(With_Setting("", name, value), limit)) return;  // which was stored itself
  Require(Find_Setting(stored, limit) == limit_before, "another setting changed", stored);
}

void Check_Locale(FuzzedDataProvider& data) {
  Locale_Report report;
  for (std::string* part : {&report.decimal_separator, &report.thousands_separator,
                            &report.monetary_thousands_separator, &report.currency_symbol}) {
    *part = data.ConsumeRandomLengthString(8);
  }
  const Locale locale = Usable_Locale(report);
  const auto problem = Locale_Problem(locale);
  Require(!problem, "a locale that can't be used", problem.value_or(""));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  FuzzedDataProvider data(bytes, size);
  data.ConsumeBool() ? Check_Settings(data) : Check_Locale(data);
  return 0;
}
