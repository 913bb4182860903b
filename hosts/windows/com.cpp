#include "com.h"

#include <string>

#include "host/platform/windows_text.h"

namespace quorvex::windows {

BSTR Make_Bstr(std::string_view text) {
  const std::wstring wide = Wide_Text(text);
  BSTR made = ::SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
  if (made == nullptr) throw std::bad_alloc();
  return made;
}

std::string From_Bstr(BSTR text) {
  return text == nullptr ? std::string() : Narrow_Text({text, ::SysStringLen(text)});
}

}  // namespace quorvex::windows
