#include "sheet/number_looks.h"

#include <string_view>

#include "host/platform.h"

namespace quorvex {

namespace {

void Erase_All(std::string& text, std::string_view part) {
  if (part.empty()) return;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at)) {
    text.erase(at, part.size());
  }
}

}  // namespace

bool Looks_Like_Number(std::string text) {
  const Separators separators = Current_Separators();
  if (text.size() > 256) return text.find_first_not_of("0123456789.,-") == std::string::npos;
  Erase_All(text, Current_Currency().symbol());
  Erase_All(text, separators.thousands());
  Erase_All(text, separators.decimal());
  const std::size_t exponent = text.find('E');
  if (exponent != std::string::npos) text.erase(exponent, 2);
  if (text.starts_with('(') && text.ends_with(')')) text = text.substr(1, text.size() - 2);
  if (text.starts_with('-')) text.erase(0, 1);
  return !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
}

}  // namespace quorvex
