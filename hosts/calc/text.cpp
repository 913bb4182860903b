#include "text.h"

#include <algorithm>

#include "host/platform.h"
#include "host/run_time_failure.h"

namespace quorvex::calc {
namespace {

// In bytes. The office counts in 32-bit integers with a sign, and keeps a text several times over.
constexpr std::size_t longest_text = std::size_t{1} << 28;

}  // namespace

bool Is_Ascii(std::string_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](char character) { return static_cast<signed char>(character) >= 0; });
}

std::string To_Utf8(const rtl::OUString& text) {
  const sal_Unicode* from = text.getStr();
  const auto length = static_cast<std::size_t>(text.getLength());
  std::string utf8(length, '\0');
  sal_Unicode bits = 0;
  for (std::size_t place = 0; place < length; ++place) {
    bits |= from[place];
    utf8[place] = static_cast<char>(from[place]);
  }
  if (bits < 0x80) return utf8;
  const rtl::OString converted = rtl::OUStringToOString(text, RTL_TEXTENCODING_UTF8);
  return {converted.getStr(), static_cast<std::size_t>(converted.getLength())};
}

rtl::OUString To_Utf16(std::string_view text) {
  if (text.size() > longest_text) {
    throw Run_Time_Failure(Failure_Number::out_of_memory, "A text is too long for a cell.");
  }
  // The office ends the process where it can't have memory for a text.
  Require_Memory(static_cast<double>(text.size()) * sizeof(sal_Unicode) * texts_at_once);
  const auto length = static_cast<sal_Int32>(text.size());
  const auto encoding = Is_Ascii(text) ? RTL_TEXTENCODING_ASCII_US : RTL_TEXTENCODING_UTF8;
  return {text.data(), length, encoding};
}

}  // namespace quorvex::calc
