// What formulas at the prompt can refer to.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "formula/evaluate.h"
#include "sheet/worksheet.h"

namespace quorvex {

/// The cells and names of the worksheet that is open, the names given at the prompt, which come
/// first, and `ans`, the last result.
class Prompt_Names final : public Reference_Source {
 public:
  /// Gives the worksheet that is open when it is asked, null for none.
  explicit Prompt_Names(std::function<const Worksheet*()> open_sheet)
      : open_sheet_(std::move(open_sheet)) {}

  /// A cell without a worksheet and a name that nobody has given are a `Syntax_Error`.
  HostValue cells(const Reference& reference) override;
  HostValue name(const Name_Use& use) override;

  /// Keeps a value, the cells of a range with the values they have now.
  void set(std::string_view name, const HostValue& value);
  void set_last_result(const HostValue& value) { set(last_result, value); }

  static constexpr std::string_view last_result = "ans";

 private:
  const Worksheet* sheet_meant(const std::string& sheet, std::size_t position) const;

  std::function<const Worksheet*()> open_sheet_;
  std::map<std::string, HostValue> values_;  // by capitals
};

/// What a line like "rate = 0.05" defines.
struct Definition {
  std::string_view name;  // empty for any other line
  std::string_view formula;
};

/// A line that begins with "=" is a formula, so "=rate=0.05" compares.
Definition Read_Definition(std::string_view line);

}  // namespace quorvex
