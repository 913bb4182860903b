// Whether somebody is there to answer.
#pragma once

namespace quorvex {

/// Whether a descriptor is a terminal.
bool Is_Terminal(int descriptor);

/// Whether input and output are a terminal that this process may read from: in the background of a
/// terminal, reading would stop it.
bool Is_Attended();

}  // namespace quorvex
