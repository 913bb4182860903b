// The object that callers hold.
#pragma once

#include "com.h"

namespace quorvex::windows {

/// Makes one and gives the interface that is asked for. Where the engine can't start, as by a
/// stored limit that is no number, its number comes back as the status.
HRESULT Make_Server(REFIID wanted, void** object) noexcept;

}  // namespace quorvex::windows
