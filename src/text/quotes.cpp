#include "text/quotes.h"

#include "host/run_time_failure.h"

namespace quorvex {
namespace {

bool Begins_With_Quote(std::string_view text) {
  return text.starts_with('\'') || text.starts_with('"');
}

// A text of one quote mark is both its first and its last character, and becomes empty.
void Strip_Pair(std::string_view& text, char quote) {
  if (!text.starts_with(quote) || !text.ends_with(quote)) return;
  text.remove_prefix(1);
  if (!text.empty()) text.remove_suffix(1);
}

}  // namespace

std::string_view Strip_Quotes(std::string_view text) {
  while (Begins_With_Quote(text)) {
    const std::size_t before = text.size();
    Strip_Pair(text, '\'');
    Strip_Pair(text, '"');
    if (text.size() == before) break;
  }
  return text;
}

std::string_view Strip_All_Quotes(std::string_view text) {
  text = Strip_Quotes(text);
  if (Begins_With_Quote(text)) {
    throw Run_Time_Failure(Failure_Number::too_complex,
                           "A quote mark at the start of a number has no partner at its end.");
  }
  return text;
}

}  // namespace quorvex
