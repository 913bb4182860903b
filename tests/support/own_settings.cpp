// Keeps programs with this source away from the settings of whoever runs them.
#include "host/platform.h"

namespace quorvex {
namespace {

[[maybe_unused]] const auto own_settings = Current_Platform().settings = Settings_In_Memory();

}  // namespace
}  // namespace quorvex
