// Results shown with a fixed count of decimal places.
#pragma once

#include <cstdint>
#include <optional>

#include "host/host_value.h"

namespace quorvex {

/// The count that a `format_decimal_place` argument asks for: none for a missing, blank or empty
/// one, 0 for a negative one. Fails with type_mismatch or overflow for what is no 32-bit number.
std::optional<std::int32_t> Fixed_Places(const HostValue& format_decimal_place);

/// Fills the fraction of a text with zeros, or rounds it half up, to `places` digits. The text may
/// be grouped: a carry that runs into a thousands separator fails with type_mismatch, and one that
/// runs over at the left puts a bare "1" in front.
void Set_Fixed_Places(NumberText& text, std::int32_t places);

}  // namespace quorvex
