#include "io/temporary_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

#include "io/temporary_names.h"

namespace quorvex {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void Fail() {
  throw std::system_error(errno, std::generic_category());
}

// Who writes one holds its lock, which goes with the process however that ends.
void Remove_Left_Ones(const fs::path& target) {
  for (const fs::path& left : Temporaries_Beside(target)) {
    const int file = ::open(left.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW);
    if (file < 0) continue;
    if (::flock(file, LOCK_EX | LOCK_NB) == 0) ::unlink(left.c_str());
    ::close(file);
  }
}

// Makes the file and locks it; less than 0 if another run, which saw it unlocked, took it away.
int Make_Locked(const fs::path& path) {
  const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
  if (file < 0) Fail();
  struct stat status {};
  const bool is_ours = (::flock(file, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK) &&
                       ::fstat(file, &status) == 0 && status.st_nlink > 0;
  if (is_ours) return file;
  ::close(file);
  return -1;
}

// The new name is on the disk once its folder is; some systems sync no folders, which is no fault.
void Sync_Folder(const fs::path& file) {
  const fs::path folder = file.has_parent_path() ? file.parent_path() : fs::path(".");
  const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return;
  ::fsync(descriptor);
  ::close(descriptor);
}

}  // namespace

Temporary_File::Temporary_File(const fs::path& target)
    : target_(target), path_(Temporary_Beside(target)), cleanup_(path_) {
  Remove_Left_Ones(target);
  for (int tries = 0; lock_ < 0 && tries < 100; ++tries) lock_ = Make_Locked(path_);
  if (lock_ < 0) Fail();
}

Temporary_File::~Temporary_File() {
  std::error_code ignored;
  if (!path_.empty()) fs::remove(path_, ignored);
  ::close(lock_);
}

void Temporary_File::take_place() {
  if (::fsync(lock_) != 0 && errno != EINVAL) Fail();
  struct stat old {};
  if (::stat(target_.c_str(), &old) == 0) ::fchmod(lock_, old.st_mode & 07777U);
  if (::rename(path_.c_str(), target_.c_str()) != 0) Fail();
  path_.clear();
  Sync_Folder(target_);
}

}  // namespace quorvex
