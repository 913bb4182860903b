#include "lists/mode_options.h"

#include <cstddef>

#include "host/utf8.h"

namespace quorvex {
namespace {

// The text behind so many characters. A letter and its capital may differ in length.
std::string_view Behind(std::string_view text, std::size_t characters) {
  for (; characters > 0; --characters) text.remove_prefix(First_Character_Bytes(text));
  return text;
}

}  // namespace

void Read_Mode_Options(std::string_view text, std::string_view capitals, Mode_Options& options) {
  if (options.list.all_seen()) return;
  Read_Option_String(capitals, options.list);
  options.table = options.table || capitals.find("TABLE") != std::string_view::npos;
  constexpr std::string_view word = "BLANK=";
  const std::size_t place = capitals.find(word);
  if (options.blank || place == std::string_view::npos) return;
  const std::string_view filler =
      Behind(text, Count_Characters(capitals.substr(0, place + word.size())));
  options.blank.emplace(filler.substr(0, filler.find('&')));
}

}  // namespace quorvex
