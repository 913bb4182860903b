#include "cli/prompt_names.h"

#include <algorithm>

#include "formula/elements.h"
#include "formula/formula.h"
#include "formula/lexer.h"
#include "formula/literals.h"
#include "host/conversions.h"

namespace quorvex {

const Worksheet* Prompt_Names::sheet_meant(const std::string& sheet, std::size_t position) const {
  const Worksheet* open = open_sheet_();
  if (open == nullptr)
    throw Syntax_Error("no worksheet is open; \"sheet FILE\" opens one", position);
  if (!sheet.empty() && To_Capitals(sheet) != To_Capitals(open->name()))
    throw Syntax_Error("there is no worksheet \"" + sheet + "\"", position);
  return open;
}

HostValue Prompt_Names::cells(const Reference& reference) {
  return Range_Of(*sheet_meant(reference.sheet, reference.position), reference.area);
}

HostValue Prompt_Names::name(const Name_Use& use) {
  const auto own = values_.find(To_Capitals(use.name));
  if (use.sheet.empty() && own != values_.end()) return own->second;
  if (!use.sheet.empty() || open_sheet_() != nullptr) {
    const Defined_Name* name = sheet_meant(use.sheet, use.position)->find_name(use.name);
    if (name != nullptr) return name->calculation->value;
  }
  throw Syntax_Error("there is no name \"" + use.name + "\"; " + use.name +
                         " = 5 would give one, and text stands in double quotes",
                     use.position);
}

void Prompt_Names::set(std::string_view name, const HostValue& value) {
  HostValue kept = Single(Is_Block(value) ? HostValue() : value);
  if (Is_Block(value)) kept = Each(value, [](const HostValue& each) { return each; });
  values_.insert_or_assign(To_Capitals(name), std::move(kept));
}

Definition Read_Definition(std::string_view line) {
  const std::string_view name = line.substr(0, Word_Length(line));
  const std::size_t equals = std::min(line.find_first_not_of(" \t", name.size()), line.size());
  const bool defines = line.substr(equals).starts_with('=') && Is_Valid_Name(name) &&
                       !Same_Word(name, Prompt_Names::last_result);
  if (!defines || line.substr(equals).starts_with("==")) return {};
  return {name, line.substr(equals + 1)};
}

}  // namespace quorvex
