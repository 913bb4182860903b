// The process before it does anything.
#pragma once

namespace quorvex {

/// Has text be UTF-8 in and out, and a reader that goes away be an error like any other.
void Prepare_Process();

}  // namespace quorvex
