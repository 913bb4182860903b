// The page for programs that use `quorvex batch`: its calls, its client and its filter.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "apps/cli/run_tool.h"
#include "batch/answer.h"
#include "cli/help/example_result.h"

namespace quorvex {
namespace {

std::vector<std::string> Blocks_Of(const std::string& language) {
  std::istringstream lines(File_Text(std::string(QUORVEX_SOURCE) + "/docs/batch.md"));
  std::vector<std::string> blocks;
  bool inside = false;
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with("```")) {
      inside = line == "```" + language;
      if (inside) blocks.emplace_back();
    } else if (inside) {
      blocks.back() += line + "\n";
    }
  }
  return blocks;
}

TEST(BatchPage, AnswersAreWhatTheyAreSaidToBe) {
  constexpr std::string_view indent = "    ";
  const Example_Settings settings;
  Answerer answerer;
  std::size_t calls = 0;
  for (const std::string& block : Blocks_Of("json")) {
    std::istringstream lines(block);
    std::string call;
    std::string answer;
    while (std::getline(lines, call) && std::getline(lines, answer)) {
      std::string given(indent);
      answerer.append_answer(given, call);
      EXPECT_EQ(given, answer) << call;
      ++calls;
    }
  }
  EXPECT_GE(calls, 8U);
}

// The exit code of the shell, which finds the tool by its name.
int Run_In(const std::filesystem::path& folder, const std::string& command) {
  const std::string tools = std::filesystem::path(QUORVEX_TOOL).parent_path().string();
  const std::string line = "cd '" + folder.string() + "' && PATH=\"" + tools +
                           ":$PATH\" LC_ALL=C " + "XDG_CONFIG_HOME=\"$PWD/config\" sh -e -c '" +
                           command + "' > out 2> errors";
  return std::system(line.c_str());
}

bool Is_There(const std::string& program) {
  return std::system(("command -v " + program + " > /dev/null 2>&1").c_str()) == 0;
}

TEST(BatchPage, ClientInPythonPrintsWhatIsSaid) {
  if (!Is_There("python3")) GTEST_SKIP() << "no python3";
  const auto clients = Blocks_Of("python");
  const auto printed = Blocks_Of("text");
  ASSERT_FALSE(clients.empty() || printed.empty());
  const Temporary_Folder folder;
  folder.write("client.py", clients.front());
  EXPECT_EQ(Run_In(folder.path(), "python3 client.py"), 0) << File_Text(folder.path() / "errors");
  EXPECT_EQ(File_Text(folder.path() / "out"), printed.front());
}

TEST(BatchPage, FilterUnderParallelAnswersAllInOrder) {
  if (!Is_There("parallel")) GTEST_SKIP() << "no parallel";
  const auto commands = Blocks_Of("sh");
  ASSERT_FALSE(commands.empty());
  const Temporary_Folder folder;
  std::string calls;
  for (int call = 0; call < 5000; ++call) {
    calls += "{\"id\":" + std::to_string(call) + ",\"call\":\"qvxMULTIPLY\",\"args\":[" +
             std::to_string(call) + ",\"12345678901234567890\"]}\n";
  }
  folder.write("calls.jsonl", calls);
  EXPECT_EQ(Run_In(folder.path(), commands.front()), 0) << File_Text(folder.path() / "errors");
  EXPECT_EQ(File_Text(folder.path() / "answers.jsonl"), Run_Tool({"batch"}, calls).output);
}

}  // namespace
}  // namespace quorvex
