#include "host/failure_hook.h"

namespace quorvex {

thread_local constinit Failure_Hook failure_hook = nullptr;

}  // namespace quorvex
