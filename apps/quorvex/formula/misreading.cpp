#include "formula/misreading.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "formula/number_problem.h"
#include "host/platform.h"

namespace quorvex {

namespace {

constexpr std::string_view digits = "0123456789";

bool Is_Digit(char c) {
  return c >= '0' && c <= '9';
}

// Most text that is a number, and can't be taken for another.
bool Is_Plain_Number(std::string_view text) {
  return text.find_first_not_of(digits) == std::string_view::npos;
}

std::string Without(std::string text, std::string_view part) {
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at))
    text.erase(at, part.size());
  return text;
}

// Of all groups only the last one counts three digits wherever people group digits.
bool Has_Odd_Group(std::string_view text, std::string_view thousands) {
  const std::size_t at = thousands.empty() ? std::string_view::npos : text.rfind(thousands);
  if (at == std::string_view::npos || at == 0) return false;
  const std::string_view group = text.substr(at + thousands.size());
  const std::size_t length = std::min(group.find_first_not_of(digits), group.size());
  constexpr std::size_t thousand = 3;
  return Is_Digit(text[at - 1]) && length > 0 && length != thousand;
}

// What to say behind the text; empty for text that is read as it looks.
std::string Misreading(const std::string& text) {
  const std::size_t e = text.find('E');
  if (e != std::string::npos && e > 0) {
    const bool has_sign = e + 1 < text.size() && (text[e + 1] == '+' || text[e + 1] == '-');
    if (!has_sign) return ": the character behind E is taken for its sign; write 1E+5, not 1E5.";
    const std::string before = text.substr(text.starts_with('-') ? 1 : 0, 2);
    if (before.size() == 2 && Is_Digit(before[1]))
      return ": the part before E needs one digit before its separator; write 1.2E+6, not 12E+5.";
  }
  if (text.starts_with('(') && !text.ends_with(')') && text.find(')') == std::string::npos)
    return ": a parenthesis that is never closed costs the last digit.";
  const Separators separators = Current_Separators();
  if (!Has_Odd_Group(text, separators.thousands())) return {};
  return " is read as " + Without(text, separators.thousands()) + ": \"" + separators.thousands() +
         "\" stands between thousands here; with --decimal " + separators.thousands() +
         " it is the decimal separator.";
}

// Calls `look` with each text among the values, until that gives true.
template <typename Look>
bool Any_Text(const HostValue& value, const Look& look) {
  if (value.is_text()) return look(value);
  if (value.kind() == HostValue::Kind::list) {
    return std::ranges::any_of(value.list(),
                               [&](const HostValue& each) { return Any_Text(each, look); });
  }
  if (value.kind() == HostValue::Kind::range) {
    bool is_found = false;
    value.range().visit_used([&](const HostValue& each) {
      is_found = each.is_text() && look(each);
      return !is_found;
    });
    return is_found;
  }
  if (value.kind() != HostValue::Kind::array) return false;
  return std::ranges::any_of(value.array().values, [&](const HostValue& each) {
    Yield();
    return each.is_text() && look(each);
  });
}

// Options of functions of lists stand among the values, as in "format:MSD=50".
bool May_Be_Meant_As_Number(std::string_view text) {
  return text.find_first_of(digits) != std::string_view::npos &&
         text.find(':') == std::string_view::npos && !Is_Plain_Number(text) &&
         text.find_first_of(digits) <= text.find_first_of(
                                           "ABCDEFGHIJKLMNOPQRSTUVWXYZ"
                                           "abcdefghijklmnopqrstuvwxyz");
}

}  // namespace

void Add_Note(std::string note, std::vector<std::string>& notes) {
  if (std::ranges::find(notes, note) == notes.end()) notes.push_back(std::move(note));
}

void Add_Misreading(cls_Quorvex& engine, const std::string& place, const HostValue& value,
                    std::vector<std::string>& notes) {
  Any_Text(value, [&](const HostValue& each) {
    if (Is_Plain_Number(each.text())) return false;
    const std::string misreading = Misreading(each.text());
    if (misreading.empty() || !engine.qvxISNUMBER(each)) return false;
    Add_Note(place + Shortly(each.text()) + misreading, notes);
    return true;
  });
}

void Add_Passed_Over(cls_Quorvex& engine, const std::string& name, const HostValue& list,
                     std::vector<std::string>& notes) {
  std::string first;
  std::size_t others = 0;
  Any_Text(list, [&](const HostValue& each) {
    if (!May_Be_Meant_As_Number(each.text())) return false;
    const std::string problem = Number_Problem(engine, each);
    if (!problem.empty() && !first.empty()) ++others;
    if (first.empty()) first = problem;
    return false;
  });
  if (first.empty()) return;
  const std::string count =
      others > 0 ? " with " + std::to_string(others) + " more such text" + (others > 1 ? "s" : "")
                 : "";
  Add_Note(name + " passes over a text" + count + ": " + first, notes);
}

}  // namespace quorvex
