// The reference of all functions, as a page.
#pragma once

#include <string>

#include "frame/class/cls_Quorvex.h"

namespace quorvex {

/// The page in Markdown: what holds for all functions, then a section for each, its example
/// calculated here and now.
std::string Function_Page(cls_Quorvex& engine);

}  // namespace quorvex
