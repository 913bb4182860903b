// Any bytes as a worksheet that is calculated: what is written as formulas and read again gives the
// same values, and nothing but a failure of a call ends a calculation.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <sstream>
#include <string>

#include "frame/class/cls_Quorvex.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "io/call_guard.h"
#include "sheet/csv.h"
#include "sheet/recalculate.h"
#include "sheet/workbook.h"
#include "support/surroundings.h"

namespace {

using namespace quorvex;

struct Written {
  std::string values;
  std::string formulas;
  Csv_Form form;
};

std::string Text_Of(const Worksheet& sheet, Csv_Form form, Csv_Content content) {
  std::ostringstream out;
  Write_Csv(out, sheet, form, content);
  return out.str();
}

// Nothing for what is no worksheet, and for what asks for more than there is.
std::optional<Written> Calculated(const std::string& text, std::optional<char> separator) {
  Workbook book;
  cls_Quorvex engine;
  try {
    Worksheet& sheet = book.add("Sheet1");
    Written written;
    written.form = Read_Csv(text, "fuzz.csv", sheet, separator);
    Recalculate_All(book, engine);
    written.values = Text_Of(sheet, written.form, Csv_Content::values);
    written.formulas = Text_Of(sheet, written.form, Csv_Content::formulas);
    return written;
  } catch (const File_Error&) {
    return std::nullopt;
  } catch (const Run_Time_Failure&) {
    return std::nullopt;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const auto guard = std::make_shared<Call_Guard>(Seconds(2));
  Current_Platform().yielder = guard;
  Current_Platform().locale = Fixed_Locale({});
  const Memory_Guard memory(std::size_t{1} << 26U);
  guard->begin_call();
  const auto once = Calculated(std::string(data, data + size), std::nullopt);
  if (!once) return 0;
  guard->begin_call();
  const auto again = Calculated(once->formulas, once->form.separator);
  if (!again || (again->values == once->values && again->formulas == once->formulas)) return 0;
  std::cerr << "another worksheet came back:\n"
            << once->formulas << "---\n"
            << once->values << "---\n"
            << again->values << '\n';
  std::abort();
}
