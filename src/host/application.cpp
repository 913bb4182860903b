#include "host/application.h"

namespace quorvex {

// Defined here so that the library holds the one copy of the type's information.
Host_Object::~Host_Object() = default;

}  // namespace quorvex
