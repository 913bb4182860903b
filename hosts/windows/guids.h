// The identities as COM compares them.
#pragma once

#include <guiddef.h>

#include <array>
#include <cstdint>
#include <string_view>

#include "identity.h"

namespace quorvex::windows {

constexpr std::uint32_t Hex(std::string_view digits) {
  std::uint32_t number = 0;
  for (const char digit : digits) {
    const int value = digit >= 'a' ? digit - 'a' + 10 : digit - '0';
    number = number * 16 + static_cast<std::uint32_t>(value);
  }
  return number;
}

/// From the form 6845844e-013e-4b5b-9aaa-6dc0a2fb6c59.
constexpr GUID Guid(std::string_view text) {
  GUID guid{Hex(text.substr(0, 8)),
            static_cast<unsigned short>(Hex(text.substr(9, 4))),
            static_cast<unsigned short>(Hex(text.substr(14, 4))),
            {}};
  constexpr std::array<std::size_t, 8> places = {19, 21, 24, 26, 28, 30, 32, 34};
  for (std::size_t i = 0; i < places.size(); ++i)
    guid.Data4[i] = static_cast<unsigned char>(Hex(text.substr(places[i], 2)));
  return guid;
}

inline constexpr GUID library_guid = Guid(library_id);
inline constexpr GUID class_guid = Guid(class_id);
inline constexpr GUID interface_guid = Guid(interface_id);
inline constexpr GUID options_record_guid = Guid(options_record_id);
inline constexpr GUID quotient_record_guid = Guid(quotient_record_id);

}  // namespace quorvex::windows
