// The settings store: one small file of the user.
#include <fcntl.h>
#include <pwd.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <system_error>
#include <utility>

#include "host/platform/posix.h"
#include "host/platform/posix_file.h"
#include "host/run_time_failure.h"
#include "host/settings_text.h"

namespace quorvex {

namespace {

namespace fs = std::filesystem;

std::string Sentence(const std::string& what, int error) {
  return what + ": " + std::generic_category().message(error) + ".";
}

std::string Unreadable(const fs::path& path) {
  return "The settings file " + path.string() + " can't be read";
}

[[noreturn]] void Fail(const std::string& what, int error) {
  throw Run_Time_Failure(Failure_Number::invalid_call, Sentence(what, error));
}

int Write_All(int file, std::string_view contents) {
  while (!contents.empty()) {
    const ssize_t written = write(file, contents.data(), contents.size());
    if (written < 0 && errno != EINTR) return errno;
    if (written > 0) contents.remove_prefix(static_cast<std::size_t>(written));
  }
  return fsync(file) == 0 ? 0 : errno;
}

/// Puts a new file in the place of the old one in a single step: a reader, and whoever comes after
/// a power cut, finds either of the two, whole.
int Replace_File(const fs::path& path, std::string_view contents) {
  std::string temporary = path.string() + ".XXXXXX";
  const Descriptor file(mkostemp(temporary.data(), O_CLOEXEC));
  if (!file.is_open()) return errno;
  int error = Write_All(file.number(), contents);
  if (error == 0 && rename(temporary.c_str(), path.c_str()) != 0) error = errno;
  if (error != 0) unlink(temporary.c_str());
  return error;
}

/// The user may keep the file elsewhere and link to it: then the link stays.
fs::path Behind_Links(const fs::path& path) {
  std::error_code error;
  fs::path target = fs::weakly_canonical(path, error);
  return error ? path : target;
}

class Settings_File final : public Settings_Store {
 public:
  explicit Settings_File(std::optional<fs::path> path) : path_(std::move(path)) {}

  std::string place() override { return path_ ? path_->string() : std::string(); }

  std::optional<std::string> problem() override {
    if (!path_) return std::nullopt;
    std::string contents;
    const int unread = Read_File(*path_, contents);
    if (unread == ENOENT) return std::nullopt;
    if (unread != 0) return Sentence(Unreadable(*path_), unread);
    // Every file that was written holds a setting.
    if (contents.empty()) return "The settings file " + path_->string() + " is empty.";
    if (Holds_No_Setting(contents)) {
      return "The settings file " + path_->string() +
             " holds no setting: its lines have to be like Quorvex/Options/MaxSD = 100.";
    }
    return std::nullopt;
  }

  std::optional<std::string> read(std::string_view application, std::string_view section,
                                  std::string_view key) override {
    std::string contents;
    if (!path_ || Read_File(*path_, contents) != 0) return std::nullopt;
    return Find_Setting(contents, {application, section, key});
  }

  void write(std::string_view application, std::string_view section, std::string_view key,
             std::string_view value) override {
    if (!path_) {
      throw Run_Time_Failure(Failure_Number::invalid_call,
                             "Settings can't be stored: the user has no home folder.");
    }
    std::error_code error;
    fs::create_directories(path_->parent_path(), error);
    if (error)
      Fail("The folder " + path_->parent_path().string() + " can't be made", error.value());
    const fs::path target = Behind_Links(*path_);
    // Two writers at once must not undo each other's settings. The lock is on the folder, since the
    // file is replaced; a file system that has no locks still gets whole files.
    const Descriptor folder(open(target.parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder.is_open()) flock(folder.number(), LOCK_EX);
    rewrite(target, {application, section, key}, value);
    if (folder.is_open()) fsync(folder.number());
  }

 private:
  static void rewrite(const fs::path& target, const Setting_Name& name, std::string_view value) {
    std::string contents;
    const int unread = Read_File(target, contents);
    // What can't be read must not be overwritten.
    if (unread != 0 && unread != ENOENT) Fail(Unreadable(target), unread);
    const int unwritten = Replace_File(target, With_Setting(contents, name, value));
    if (unwritten != 0)
      Fail("The settings file " + target.string() + " can't be written", unwritten);
  }

  std::optional<fs::path> path_;
};

fs::path Folder_Of_Variable(const char* variable) {
  const char* const value = std::getenv(variable);
  return value == nullptr ? fs::path() : fs::path(value);
}

fs::path Home_Folder() {
  fs::path home = Folder_Of_Variable("HOME");
  if (!home.empty()) return home;
  const passwd* const user = getpwuid(geteuid());
  return user == nullptr || user->pw_dir == nullptr ? fs::path() : fs::path(user->pw_dir);
}

}  // namespace

std::optional<fs::path> Settings_Path() {
  fs::path folder = Folder_Of_Variable("XDG_CONFIG_HOME");
  // A relative folder there is to be ignored, and one for a home would move with each command.
  if (!folder.is_absolute()) folder = Home_Folder() / ".config";
  if (!folder.is_absolute()) return std::nullopt;
  return folder / "quorvex" / "settings";
}

std::shared_ptr<Settings_Store> File_Settings(std::optional<fs::path> path) {
  return std::make_shared<Settings_File>(std::move(path));
}

}  // namespace quorvex
