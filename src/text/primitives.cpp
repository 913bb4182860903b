#include "text/primitives.h"

#include <utility>

#include "host/conversions.h"
#include "host/utf8.h"
#include "text/digit_runs.h"

namespace quorvex {
namespace {

// Takes every occurrence of `part` out, in one pass.
void Remove_All(std::string& text, std::string_view part) {
  if (part.empty()) return;
  if (text.find(part) == std::string::npos) return;
  if (part.size() == 1) {
    std::erase(text, part.front());
    return;
  }
  std::size_t kept = 0;
  for (std::size_t place = 0; place < text.size();) {
    if (text[place] == part.front() && text.compare(place, part.size(), part) == 0) {
      place += part.size();
    } else {
      text[kept++] = text[place++];
    }
  }
  text.resize(kept);
}

}  // namespace

type_Currency_Symbol Get_Currency_Symbol() {
  const Currency currency = Current_Currency();
  return {currency.symbol(), static_cast<std::int16_t>(currency.side())};
}

bool Is_Positive(std::string_view text) {
  return text.empty() || (text.front() != '-' && text.front() != '(');
}

bool Is_Positive(const HostValue& value) {
  if (Is_Single_Cell(value)) return Is_Positive(Cell_Of(value));
  return value.is_text() ? Is_Positive(value.text()) : To_Number(value) >= 0;
}

std::string_view Strip_Sign(std::string_view text) {
  if (text.starts_with('-')) return text.substr(1);
  if (!text.starts_with('(')) return text;
  text.remove_prefix(1);
  text.remove_suffix(Last_Character_Bytes(text));
  return text;
}

void Strip_Leading_Zeros(std::string& text) {
  if (text == "0" || (!text.empty() && text.front() >= '1' && text.front() <= '9')) return;
  const std::string& thousands = Thousands_Separator();
  std::size_t dropped = 0;
  for (bool found = true; found;) {
    const std::size_t before = dropped;
    dropped += Count_Leading_Zeros(std::string_view(text).substr(dropped));
    if (std::string_view(text).substr(dropped).starts_with(thousands)) dropped += thousands.size();
    found = dropped != before;
  }
  text.erase(0, dropped);
  if (text.empty() || text.starts_with(Decimal_Separator())) text.insert(0, 1, '0');
}

void Strip_Trailing_Zeros(std::string& text) {
  const std::string& separator = Decimal_Separator();
  const std::size_t place = text.find(separator);
  if (place == std::string::npos) return;
  if (place == 0) text.insert(0, 1, '0');
  text.resize(text.size() - Count_Trailing_Zeros(text));
  if (text.ends_with(separator)) text.resize(text.size() - separator.size());
}

void Remove_Decimal_Separator(std::string& text) {
  const std::string& separator = Decimal_Separator();
  const std::size_t place = text.find(separator);
  if (place != std::string::npos) text.erase(place, separator.size());
}

bool Has_Two_Separators(std::string_view text) {
  const std::string& separator = Decimal_Separator();
  const std::size_t first = text.find(separator);
  return first != std::string_view::npos &&
         text.find(separator, first + separator.size()) != std::string_view::npos;
}

std::string_view Integer_Part_Text(std::string_view text) {
  const std::size_t separator = text.find(Decimal_Separator());
  return separator == 0 ? "0" : text.substr(0, separator);
}

void Remove_Currency_Symbol(std::string& text) {
  Remove_All(text, Current_Currency().symbol());
}

void Remove_Thousands_Separators(std::string& text) {
  Remove_All(text, Thousands_Separator());
}

std::string Insert_Thousands_Separators(std::string_view text) {
  constexpr std::size_t group = 3;
  if (text.size() <= group) return std::string(text);
  const std::string& separator = Thousands_Separator();
  const std::size_t separators = (text.size() - 1) / group;
  std::string grouped;
  grouped.reserve(text.size() + separators * separator.size());
  grouped += text.substr(0, text.size() - separators * group);
  for (std::size_t place = grouped.size(); place < text.size(); place += group) {
    grouped += separator;
    grouped += text.substr(place, group);
  }
  return grouped;
}

double Decimal_Position_Of(std::string_view text) {
  const std::string& separator = Decimal_Separator();
  const std::size_t place = text.find(separator);
  if (place == std::string_view::npos) return 0;
  return static_cast<double>(Count_Characters(text.substr(place + separator.size())) + 1);
}

}  // namespace quorvex
