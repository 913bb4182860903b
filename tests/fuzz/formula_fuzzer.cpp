// Any bytes are either refused at a place within them, or a formula that is written and read back
// as the same one.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "formula/formula.h"
#include "fuzz/require.h"
#include "host/platform.h"

namespace {

using quorvex::Require;

void Check_Mark(std::string_view text, std::size_t position) {
  const std::string marked = quorvex::Mark_Place(text, position);
  Require(marked.ends_with('^') && marked.size() < 1000, "no short mark", marked);
}

void Check(const std::string& text) {
  std::string written;
  try {
    written = quorvex::Formula_Text(quorvex::Parse_Formula(text));
  } catch (const quorvex::Syntax_Error& error) {
    Require(error.position() <= text.size(), "the place lies outside", error.what());
    Check_Mark(text, error.position());
    return;
  }
  try {
    const std::string again = quorvex::Formula_Text(quorvex::Parse_Formula(written));
    Require(again == written, "another formula came back", again);
  } catch (const quorvex::Syntax_Error& error) {
    Require(false, "what was written can't be read", error.what());
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(data, data + size);
  for (const auto& [decimal, thousands] : {std::pair(".", ","), std::pair(",", ".")}) {
    quorvex::Locale locale;
    locale.decimal_separator = decimal;
    locale.thousands_separator = thousands;
    quorvex::Current_Platform().locale = quorvex::Fixed_Locale(locale);
    Check(text);
  }
  return 0;
}
