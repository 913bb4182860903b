// Text of the office (UTF-16) as text of the engine (UTF-8), and back.
#pragma once

#include <rtl/ustring.hxx>

#include <string>
#include <string_view>

#include "host/host_value.h"

namespace quorvex::calc {

bool Is_Ascii(std::string_view text);

std::string To_Utf8(const rtl::OUString& text);

/// Fails with out_of_memory where the office has no room for it.
rtl::OUString To_Utf16(std::string_view text);

}  // namespace quorvex::calc
