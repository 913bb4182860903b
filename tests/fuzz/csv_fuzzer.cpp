// Any bytes are either refused as a file, or a worksheet that is written and read back as the same
// one.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <sstream>
#include <string>
#include <string_view>

#include "host/platform.h"
#include "sheet/csv.h"

namespace {

std::string Written(const quorvex::Worksheet& sheet, quorvex::Csv_Form form) {
  std::ostringstream out;
  quorvex::Write_Csv(out, sheet, form, quorvex::Csv_Content::formulas);
  return out.str();
}

std::string Read_And_Written(std::string_view text, std::optional<char> separator,
                             quorvex::Csv_Form& form) {
  quorvex::Worksheet sheet("Sheet1");
  form = quorvex::Read_Csv(text, "fuzz.csv", sheet, separator);
  return Written(sheet, form);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  quorvex::Current_Platform().locale = quorvex::Fixed_Locale({});
  const std::string text(data, data + size);
  std::string once;
  quorvex::Csv_Form form;
  try {
    once = Read_And_Written(text, std::nullopt, form);
  } catch (const quorvex::File_Error& error) {
    if (std::string_view(error.what()).starts_with("fuzz.csv")) return 0;
    std::cerr << "the file is not named: " << error.what() << '\n';
    std::abort();
  }
  try {
    quorvex::Csv_Form again;
    const std::string twice = Read_And_Written(once, form.separator, again);
    if (twice == once) return 0;
    std::cerr << "another worksheet came back:\n" << once << "---\n" << twice << '\n';
  } catch (const quorvex::File_Error& error) {
    std::cerr << "what was written can't be read: " << error.what() << '\n';
  }
  std::abort();
}
