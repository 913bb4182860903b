// Describing the functions to the host.
#pragma once

namespace quorvex {

/// The timer's event: attaches to the host that runs and describes each function to it, so that its
/// function dialog lists them. While the host isn't ready the timer is armed again, 20 times at its
/// first interval and then every 5 seconds, up to 42 times in the life of the process. Where the
/// add-in isn't installed, all ends there, and no later instance of the class tries again. Shows
/// nothing and fails never.
void Register_Functions();

}  // namespace quorvex
