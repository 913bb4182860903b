// How the class is known to the system. These never change: whoever has bound to them stays bound.
#pragma once

#include <string_view>

namespace quorvex::windows {

inline constexpr std::string_view library_name = "Quorvex";
inline constexpr std::string_view class_name = "cls_Quorvex";
inline constexpr std::string_view interface_name = "_cls_Quorvex";
inline constexpr std::string_view prog_id = "Quorvex.cls_Quorvex";
inline constexpr std::string_view versioned_prog_id = "Quorvex.cls_Quorvex.1";
inline constexpr std::string_view class_title = "Quorvex: decimal numbers of any length";

/// Of the type library.
inline constexpr int major_version = 3;
inline constexpr int minor_version = 1;

inline constexpr std::string_view library_id = "6845844e-013e-4b5b-9aaa-6dc0a2fb6c59";
inline constexpr std::string_view class_id = "fcaa3c97-e451-454d-b3f6-bfe97d768a1b";
inline constexpr std::string_view interface_id = "f9b6bd71-3aea-4763-8d91-651c3cb143e6";
inline constexpr std::string_view options_record_id = "1edc1a14-7ecd-480f-99e3-d64b9152ef8d";
inline constexpr std::string_view quotient_record_id = "61f9668e-e818-41ef-8f26-f2c394360860";

}  // namespace quorvex::windows
