// What the formulas of the documentation give.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "frame/class/cls_Quorvex.h"
#include "host/platform.h"

namespace quorvex {

/// While it lives, "." is the decimal separator, "," stands between thousands, "$" before an
/// amount, and the default limit is 100 digits: examples mean the same wherever they are read.
class Example_Settings {
 public:
  Example_Settings();
  ~Example_Settings();
  Example_Settings(const Example_Settings&) = delete;
  Example_Settings& operator=(const Example_Settings&) = delete;

 private:
  std::shared_ptr<Locale_Source> locale_;
  double digits_;
};

/// Calculates a formula with `Example_Settings`. Gives lines as the tool prints them; a call
/// that fails is "error: " and the reason. Throws `Syntax_Error` for what is no formula.
std::string Example_Result(cls_Quorvex& engine, std::string_view formula);

}  // namespace quorvex
