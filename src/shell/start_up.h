// The stored default limit, and who describes the functions to the host.
#pragma once

#include <optional>
#include <string>

#include "host/export.h"

namespace quorvex {

/// The stored setting as it stands; nothing where there is none.
QUORVEX_API std::optional<std::string> Stored_MaxSD();

/// Sets the default limit to the stored one, or to 100 where none is stored, which is then stored.
/// Fails with type_mismatch or overflow for a stored text that is no number, and changes nothing.
QUORVEX_API void Load_Default_MaxSD();

/// The same, but where none is stored the default limit stays, and is stored as it is.
void Refresh_Default_MaxSD();

/// Stores the default limit. Gives what was in the way, as a sentence for the user: where the
/// setting can't be written, the limit holds as long as the process.
QUORVEX_API std::optional<std::string> Store_Default_MaxSD();

/// For hosts that get the functions described in a way of their own: the timer that would do it is
/// disarmed, and no instance of the class arms it again.
QUORVEX_API void Leave_Registration_To_Host();

}  // namespace quorvex
