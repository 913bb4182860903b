// What the class leaves to the shell of the add-in, which stands above it and defines these in
// src/shell.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "host/application.h"

namespace quorvex {

/// The version that the user is shown.
inline constexpr std::string_view add_in_version = "3.1";

/// Runs at each creation of the class: loads the stored default limit and, unless that is under way
/// already, arms the timer that describes the functions to the host. Fails with type_mismatch or
/// overflow for a stored limit that is no number.
void Class_Initialize();

/// Keeps the host's application if there is one in `new_app`, then drops it if `clear` is set.
/// Gives the one that is held now, null for none.
std::shared_ptr<Host_Application> Excel_App(const std::shared_ptr<Host_Application>& new_app,
                                            bool clear);

/// Shows the About dialog. Fails as `Class_Initialize` does.
void Show_About();

}  // namespace quorvex
