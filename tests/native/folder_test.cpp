// Where the engine's library says that it stands, however it was loaded. This program knows nothing
// else of that library, so that the copies it loads are the only ones.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "host/platform.h"
#include "support/environment.h"

namespace quorvex {
namespace {

namespace fs = std::filesystem;

/// Asks a library that was loaded.
#ifdef QUORVEX_SANITIZED
__attribute__((no_sanitize("vptr", "function")))  // that would need the library at hand
#endif
std::string
Folder_Of(void* library) {
  const auto platform =
      reinterpret_cast<Platform& (*)()>(::dlsym(library, "_ZN7quorvex16Process_PlatformEv"));
  return platform().libraries->folder();
}

/// What a copy of the library tells of its folder. A process of its own loads it by that name from
/// within `from`, and asks when it is somewhere else.
std::string Told_Folder(const fs::path& name, const fs::path& from) {
  const Temporary_Folder answers;
  const fs::path answer = answers.path() / "answer";
  const pid_t process = ::fork();
  if (process == 0) {
    fs::current_path(from);
    void* const library = ::dlopen(name.c_str(), RTLD_NOW | RTLD_LOCAL);
    fs::current_path("/");
    if (library != nullptr) std::ofstream(answer) << Folder_Of(library);
    ::_exit(0);
  }
  ::waitpid(process, nullptr, 0);
  std::ostringstream text;
  text << std::ifstream(answer).rdbuf();
  return text.str();
}

TEST(LibraryFolder, IsAbsoluteAndNormalHoweverTheLibraryWasLoaded) {
  const Temporary_Folder temporary;
  const fs::path top = fs::canonical(temporary.path());
  fs::create_directories(top / "versions/2/lib");
  fs::create_directories(top / "other");
  const std::string file = "libcopy.so";
  fs::copy_file(QUORVEX_LIBRARY, top / "versions/2/lib" / file);
  fs::create_directory_symlink("versions/2/lib", top / "current");
  fs::create_symlink("../current/" + file, top / "other" / file);
  const struct {
    fs::path name;
    const char* from;
    const char* folder;
  } cases[] = {
      {top / "versions/2/lib" / file, "/", "versions/2/lib"},
      {"./" + file, "versions/2/lib", "versions/2/lib"},
      {"../2//lib/./" + file, "versions/2", "versions/2/lib"},
      {top / "other/../versions/2/lib" / file, "/", "versions/2/lib"},
      // A link keeps its name, but not where dots lead out of it.
      {"current/" + file, "", "current"},
      {"current/../lib/" + file, "", "versions/2/lib"},
      // Where the library is a link, what belongs to it lies beside the link.
      {"other/" + file, "", "other"},
  };
  for (const auto& c : cases) {
    const fs::path from = *c.from == '/' ? fs::path(c.from) : top / c.from;
    EXPECT_EQ(Told_Folder(c.name, from), top / c.folder) << c.name;
  }
}

}  // namespace
}  // namespace quorvex
