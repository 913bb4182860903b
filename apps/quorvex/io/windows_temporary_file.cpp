#include <system_error>

#include "host/platform/windows_api.h"
#include "io/temporary_file.h"
#include "io/temporary_names.h"

namespace quorvex {
namespace {

namespace fs = std::filesystem;

HANDLE Opened(const fs::path& path, DWORD how) {
  HANDLE const file = ::CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                    nullptr, how, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE)
    throw std::system_error(static_cast<int>(::GetLastError()), std::system_category());
  return file;
}

}  // namespace

// One that somebody has open can't be removed here.
Temporary_File::Temporary_File(const fs::path& target)
    : target_(target), path_(Temporary_Beside(target)), cleanup_(path_) {
  std::error_code ignored;
  for (const fs::path& left : Temporaries_Beside(target)) fs::remove(left, ignored);
  ::CloseHandle(Opened(path_, CREATE_NEW));
}

Temporary_File::~Temporary_File() {
  std::error_code ignored;
  if (!path_.empty()) fs::remove(path_, ignored);
}

void Temporary_File::take_place() {
  HANDLE const file = Opened(path_, OPEN_EXISTING);
  ::FlushFileBuffers(file);
  ::CloseHandle(file);
  fs::rename(path_, target_);
  path_.clear();
}

}  // namespace quorvex
