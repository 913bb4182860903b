// Forms before the user's eyes.
#pragma once

#include "host/export.h"

namespace quorvex {

/// Loads the dialog that sets the default limit, unless it is open, and shows it.
QUORVEX_API void Show_MaxSD();

}  // namespace quorvex
