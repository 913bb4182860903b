// Any bytes as number text: what is recognised is what addition accepts, no routine lets a failure
// out but for lack of memory, what is formatted reads back as the same number, and a number is
// its whole part and the rest.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "arith/do_operation.h"
#include "frame/class/cls_Quorvex.h"
#include "fuzz/require.h"
#include "support/localized.h"
#include "support/surroundings.h"
#include "text/clean_up_number.h"
#include "text/compare_numbers.h"
#include "text/expand_exponent.h"
#include "text/primitives.h"
#include "text/quotes.h"
#include "text/recognition.h"
#include "text/tokens.h"

namespace {

using namespace quorvex;

// Exponents whose zeros would take the time of thousands of runs.
bool Asks_For_Much(const std::string& text) {
  std::string cleaned(Strip_Quotes(text));
  Remove_Currency_Symbol(cleaned);
  Remove_Thousands_Separators(cleaned);
  try {
    return Read_Exponent(cleaned).exponent > 100000;
  } catch (const Run_Time_Failure&) {
    return false;
  }
}

void Check_Recognition(const std::string& text) {
  const HostValue all = 2147483648.0;
  const NumberText sum = Do_Operation(operation::add, text, 0, {.maximum_significant_digits = all},
                                      {.intermediate = true});
  const bool accepted = !Has_Token_Mark(sum) && !Is_Lone_Mark(text);
  Require(Is_Number_Text(text) == accepted, "recognition and addition differ", text);
  if (!Has_Token_Mark(sum)) {
    const HostValue equal = Compare_Numbers(sum, text, true, false);
    Require(Is_True(equal) || equal.is_text(), "a sum with 0 differs from its operand", text);
  }
}

void Check_Comparison(const std::string& text) {
  const HostValue equal = Compare_Numbers(text, text, true, false);
  const bool has_token = equal.is_text() && Has_Token_Mark(equal.text());
  Require(has_token || Is_True(equal), "a number differs from itself", text);
  Require(has_token == Compare_Numbers(text, text, false, true).is_text(),
          "comparisons differ in what is a number", text);
}

void Check_Format(const std::string& text, bool exponential) {
  const NumberText formatted =
      cls_Quorvex().qvxFORMAT(text, Missing, !exponential, true, exponential, 2147483648.0);
  const type_CleanUp clean = Clean_Up_Number(text, true, true);
  Require(clean.IsError == Has_Token_Mark(formatted), "a token is lost or found", text);
  if (clean.IsError) return;
  Require(Is_True(Compare_Numbers(formatted, clean.NumClean, true, false)),
          "what is formatted reads back as another number", formatted);
}

void Check_Whole_Part(const std::string& text) {
  cls_Quorvex engine;
  const HostValue all = 2147483648.0;
  const NumberText whole = engine.qvxTRUNC(text);
  const HostValue odd = engine.qvxISODD(text);
  (void)engine.qvxFRAC(text, true, Missing, Missing, true, true, true);
  (void)engine.qvxEVEN(text);
  if (odd.is_text() || text.empty()) return;
  Require(odd.boolean() == (engine.qvxMODTRUNC(whole, 2) == "1"), "parity differs", text);
  const NumberText rest = engine.qvxMODTRUNC(text, 1, 1, Missing, Missing, Missing, Missing, all);
  const NumberText less = engine.qvxSUBTRACT(text, whole, Missing, Missing, Missing, Missing, all);
  Require(rest == less, "a number is not its whole part and what it leaves by 1", text);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::vector<Locale> locales = Test_Locales();
  const Locale_Guard locale(locales[data[0] % locales.size()]);
  const Memory_Guard memory(std::size_t{1} << 20U);
  const bool exponential = (data[0] & 0x80U) != 0;
  const std::string text(data + 1, data + size);

  try {
    (void)Clean_Up_Number(text, false, false);
    if (Asks_For_Much(text)) return 0;
    Check_Recognition(text);
    Check_Comparison(text);
    Check_Format(text, exponential);
    Check_Whole_Part(text);
  } catch (const Run_Time_Failure& failure) {
    // Zeros that an exponent stands for may have no room.
    Require(failure.number() == Failure_Number::out_of_memory, "a failure got out", failure.what());
  }
  return 0;
}
