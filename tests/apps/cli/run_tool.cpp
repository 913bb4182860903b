// Runs the tool as a process of its own.
#include "apps/cli/run_tool.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <stdexcept>

namespace quorvex {
namespace {

// Files, not pipes, carry the texts: none of them can then fill up and block.
int Open_For(const std::filesystem::path& file, int flags) {
  const int descriptor = ::open(file.c_str(), flags, 0600);
  if (descriptor < 0) throw std::runtime_error("cannot open " + file.string());
  return descriptor;
}

[[noreturn]] void Become_Tool(const std::vector<std::string>& arguments,
                              const std::filesystem::path& folder,
                              const std::vector<std::string>& environment) {
  ::dup2(Open_For(folder / "in", O_RDONLY), STDIN_FILENO);
  ::dup2(Open_For(folder / "out", O_WRONLY | O_CREAT), STDOUT_FILENO);
  ::dup2(Open_For(folder / "err", O_WRONLY | O_CREAT), STDERR_FILENO);
  std::vector<std::string> words = {QUORVEX_TOOL};
  words.insert(words.end(), arguments.begin(), arguments.end());
  std::vector<char*> argv;
  argv.reserve(words.size() + 1);
  for (std::string& word : words) argv.push_back(word.data());
  argv.push_back(nullptr);
  ::setenv("LC_ALL", "C", 1);
  ::setenv("XDG_CONFIG_HOME", (folder / "config").c_str(), 1);
  for (const std::string& setting : environment) {
    const auto equals = setting.find('=');
    ::setenv(setting.substr(0, equals).c_str(), setting.substr(equals + 1).c_str(), 1);
  }
  ::execv(QUORVEX_TOOL, argv.data());
  ::_exit(127);
}

}  // namespace

Tool_Run Run_Tool(const std::vector<std::string>& arguments, std::string_view input,
                  const std::vector<std::string>& environment) {
  const Temporary_Folder folder;
  folder.write("in", input);
  const pid_t process = ::fork();
  if (process == 0) Become_Tool(arguments, folder.path(), environment);
  int status = 0;
  ::waitpid(process, &status, 0);
  Tool_Run run;
  run.output = File_Text(folder.path() / "out");
  run.errors = File_Text(folder.path() / "err");
  run.exit_code = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
  return run;
}

}  // namespace quorvex
