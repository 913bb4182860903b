#include "host/platform/windows_api.h"
#include "io/input_file.h"

namespace quorvex {

bool Is_Input(const std::filesystem::path& file) {
  BY_HANDLE_FILE_INFORMATION input{};
  BY_HANDLE_FILE_INFORMATION there{};
  if (::GetFileInformationByHandle(::GetStdHandle(STD_INPUT_HANDLE), &input) == 0) return false;
  constexpr DWORD shared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  auto* const handle = ::CreateFileW(file.c_str(), 0, shared, nullptr, OPEN_EXISTING,
                                     FILE_ATTRIBUTE_NORMAL, nullptr);
  if (handle == INVALID_HANDLE_VALUE) return false;
  const bool is_known = ::GetFileInformationByHandle(handle, &there) != 0;
  ::CloseHandle(handle);
  return is_known && input.dwVolumeSerialNumber == there.dwVolumeSerialNumber &&
         input.nFileIndexHigh == there.nFileIndexHigh && input.nFileIndexLow == there.nFileIndexLow;
}

}  // namespace quorvex
