// Text as Windows takes and gives it.
#include "host/platform/windows_text.h"

#include <new>

#include "host/platform/windows_api.h"

namespace quorvex {

namespace {

/// The system counts texts in 31 bits: no more of one can be held than if memory had run out.
int Length_Of(std::size_t size) {
  if (size > 0x7FFFFFFF) throw std::bad_alloc();
  return static_cast<int>(size);
}

}  // namespace

std::wstring Wide_Text(std::string_view text) {
  if (text.empty()) return {};
  const int size = Length_Of(text.size());
  std::wstring wide(text.size(), L'\0');  // no character takes more units than it takes bytes
  const int used = ::MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), size);
  wide.resize(static_cast<std::size_t>(used));
  return wide;
}

std::string Narrow_Text(std::wstring_view text) {
  if (text.empty()) return {};
  const int size = Length_Of(text.size());
  const int needed =
      ::WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
  if (needed <= 0) throw std::bad_alloc();  // three bytes for a unit can be too many
  std::string narrow(static_cast<std::size_t>(needed), '\0');
  ::WideCharToMultiByte(CP_UTF8, 0, text.data(), size, narrow.data(), needed, nullptr, nullptr);
  return narrow;
}

std::string System_Message(unsigned long error) {
  wchar_t buffer[512];
  const DWORD flags =
      FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK;
  const DWORD length = ::FormatMessageW(flags, nullptr, error, 0, buffer, 512, nullptr);
  std::string message = Narrow_Text({buffer, length});
  while (message.ends_with(' ') || message.ends_with('.')) message.pop_back();
  if (message.empty()) message = "error " + std::to_string(error);
  return message + ".";
}

}  // namespace quorvex
