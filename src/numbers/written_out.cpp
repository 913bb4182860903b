#include "numbers/written_out.h"

#include <string>
#include <string_view>

#include "text/expand_exponent.h"
#include "text/primitives.h"
#include "text/quotes.h"
#include "text/recognition.h"

namespace quorvex {
namespace {

// Sums and products are plain already, and hold neither mark.
bool May_Be_Written_Out(std::string_view text) {
  return text.find('E') != std::string_view::npos || text.find('(') != std::string_view::npos;
}

}  // namespace

void Write_Out(NumberText& text) {
  if (!May_Be_Written_Out(text) || !Is_Number_Text(text)) return;
  std::string cleaned(Strip_Quotes(text));
  Remove_Currency_Symbol(cleaned);
  Remove_Thousands_Separators(cleaned);
  if (!May_Be_Written_Out(cleaned)) return;  // the mark stood in the currency symbol
  cleaned = Expand_Exponent(cleaned);
  const bool positive = Is_Positive(cleaned);
  text = Strip_Sign(cleaned);
  // Where only one parenthesis stands, the digit behind it may have gone with the sign.
  if (text.empty() || text == Decimal_Separator()) text = "0";
  if (!positive) text.insert(0, 1, '-');
}

}  // namespace quorvex
