// The spreadsheet around the library.
#pragma once

#include <memory>

#include "com.h"
#include "host/application.h"
#include "host/platform.h"

namespace quorvex::windows {

/// The spreadsheet's application object, every member looked up by its name when it is needed.
std::shared_ptr<Host_Application> Application_Of(Com_Pointer<IDispatch> object);

/// The spreadsheet that the system knows to be running.
std::shared_ptr<Application_Source> Running_Application();

}  // namespace quorvex::windows
