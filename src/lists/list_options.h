// The option string that a list carries among its elements.
#pragma once

#include <string_view>

#include "text/options.h"

namespace quorvex {

/// What the option strings of a list have said so far. Their words may stand anywhere behind the
/// prefix, in any order and with anything between them; each acts at its first appearance, in
/// whichever string, and none can be taken back.
struct List_Options {
  double msd = maximum_digits;  // MSD=n; a list has no part in the user's default limit
  bool has_msd = false;
  bool negative = false;
  bool thousands = false;
  bool currency = false;
  bool exponent = false;

  /// True when no word is left that could act. What else a string may say is then passed over too.
  bool all_seen() const { return has_msd && negative && thousands && currency && exponent; }
};

/// True for text in capitals that begins with FORMAT: and so is an option string.
bool Is_Option_String(std::string_view capitals);

/// Reads an option string in capitals. MSD= takes the digits right behind it. Fails with
/// type_mismatch where there are none, and with overflow where they are too many for a number.
void Read_Option_String(std::string_view capitals, List_Options& options);

}  // namespace quorvex
