#include "lists/list_result.h"

#include <string>
#include <utility>

#include "host/conversions.h"
#include "host/utf8.h"
#include "text/expand_exponent.h"
#include "text/format_result.h"
#include "text/primitives.h"
#include "text/quotes.h"
#include "text/recognition.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

// Formatting moves digits as single bytes. Text that is no number may hold longer characters: a
// stand-in takes the place of each while bytes are moved, which keeps their order.
class Long_Characters {
 public:
  /// Takes them out of the text.
  explicit Long_Characters(std::string& text) {
    if (!Has_Any(text)) return;
    std::string short_text;
    for (std::string_view rest = text; !rest.empty();) {
      const std::string_view character = rest.substr(0, First_Character_Bytes(rest));
      rest.remove_prefix(character.size());
      const bool stays = character.size() == 1 && character.front() != stand_in;
      short_text += stays ? character.front() : stand_in;
      if (!stays) taken_ += character;
    }
    text = std::move(short_text);
  }

  /// Puts them back.
  void restore(std::string& text) const {
    if (taken_.empty()) return;
    std::string restored;
    std::string_view rest = taken_;
    for (const char character : text) {
      if (character != stand_in) {
        restored += character;
        continue;
      }
      const std::size_t bytes = First_Character_Bytes(rest);
      restored += rest.substr(0, bytes);
      rest.remove_prefix(bytes);
    }
    text = std::move(restored);
  }

 private:
  static constexpr char stand_in = '\x1a';

  static bool Has_Any(std::string_view text) {
    unsigned char bits = 0;
    for (const char character : text) bits |= static_cast<unsigned char>(character);
    return bits >= 0x80;
  }

  std::string taken_;
};

// Sums and products are plain already, and hold neither mark.
bool May_Be_Written_Out(std::string_view text) {
  return text.find('E') != std::string_view::npos || text.find('(') != std::string_view::npos;
}

void Write_Out(NumberText& text) {
  if (!May_Be_Written_Out(text) || !Is_Number_Text(text)) return;
  std::string cleaned(Strip_Quotes(text));
  Remove_Currency_Symbol(cleaned);
  Remove_Thousands_Separators(cleaned);
  if (!May_Be_Written_Out(cleaned)) return;  // the mark stood in the currency symbol
  cleaned = Expand_Exponent(cleaned);
  const bool positive = Is_Positive(cleaned);
  text = Strip_Sign(cleaned);
  if (!positive) text.insert(0, 1, '-');
}

}  // namespace

NumberText Finish_List(NumberText running, const List_Options& options) {
  const HostValue negative = options.negative ? 2 : 1;
  const HostValue thousands = options.thousands;
  const HostValue currency = options.currency;
  const HostValue exponent = options.exponent;
  const HostValue msd = options.msd;
  const type_Restrictionator resolved =
      Restrictionator({negative, thousands, currency, exponent, msd});

  Write_Out(running);
  const bool positive = Is_Positive(running);
  if (running.starts_with('-')) running.erase(0, 1);
  const double position = Decimal_Position_Of(running);
  Remove_Decimal_Separator(running);
  // A thousands separator among zeros at the left is known as such only while it is whole.
  if (!running.empty() && !Has_Token_Mark(running)) Strip_Leading_Zeros(running);
  const Long_Characters long_characters(running);
  NumberText result = Format_Result(std::move(running), position, positive, resolved, false);
  long_characters.restore(result);
  return result;
}

}  // namespace quorvex
