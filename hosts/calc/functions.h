// The functions that the office offers: those of the catalogue that have a place in a dialog.
#pragma once

#include <string_view>
#include <vector>

#include "frame/catalogue.h"

namespace quorvex::calc {

/// In the order in which they are generated and called, by index.
inline std::vector<const Method*> Offered_Functions() {
  std::vector<const Method*> offered;
  for (const Method& method : Catalogue()) {
    if (!method.category.empty()) offered.push_back(&method);
  }
  return offered;
}

}  // namespace quorvex::calc
