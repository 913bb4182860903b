// `quorvex batch` as programs meet it.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <string>
#include <vector>

#include "apps/cli/run_tool.h"

namespace quorvex {
namespace {

TEST(BatchCommand, AnswersALineForEachAndNeverStops) {
  const std::string input =
      "\xEF\xBB\xBF"
      "{\"id\":1,\"call\":\"qvxADD\",\"args\":[1,\"2.5\"]}\n"
      "\n"
      "nonsense\r\n"
      "{\"id\":\"a\",\"call\":\"qvxSIGN\",\"args\":[-0.5],\"expect\":{\"value\":-1}}\n"
      "{\"id\":2,\"call\":\"qvxSIGN\"}\n"
      "{\"call\":\"qvxADD\",\"args\":[{\"error\":2042},1]}\n"
      "{\"call\":\"qvxISNUMBER\",\"args\":[\"abc\"]}";
  const std::string output =
      "{\"id\":1,\"value\":\"3.5\"}\n"
      "{\"invalid\":\"not well-formed JSON at byte 2: invalid literal\"}\n"
      "{\"id\":\"a\",\"value\":-1}\n"
      "{\"id\":2,\"failure\":\"Too few arguments: num is missing in "
      "qvxSIGN(num).\",\"number\":13}\n"
      "{\"value\":\"#VALUE!\"}\n"
      "{\"value\":false}\n";
  for (const char* jobs : {"1", "3"}) {
    const Tool_Run run = Run_Tool({"batch", "--jobs", jobs}, input);
    EXPECT_EQ(run.output, output) << jobs;
    EXPECT_EQ(run.errors, "");
    EXPECT_EQ(run.exit_code, 0);
  }
}

TEST(BatchCommand, LongCallsAreEndedAndTheNextOneIsNot) {
  const std::string sevens(4000000, '7');
  const std::string input = R"({"id":1,"call":"qvxADD","args":[")" + sevens + "\",\"" + sevens +
                            "\"]}\n{\"id\":2,\"call\":\"qvxADD\",\"args\":[1,1]}\n";
  const Tool_Run run = Run_Tool({"batch", "--timeout", "0.000001"}, input);
  EXPECT_EQ(run.output.substr(0, 200),
            "{\"id\":1,\"failure\":\"The calculation took longer than 1e-06 s.\",\"number\":18}\n"
            "{\"id\":2,\"value\":\"2\"}\n");
}

TEST(BatchCommand, AnswersLongerThanAllowedAreFailures) {
  const std::string input = R"({"id":1,"call":"qvxADD","args":[")" + std::string(200, '7') +
                            R"(",0],)" + R"("named":{"maximum_significant_digits":300}})" + "\n" +
                            R"({"id":2,"call":"qvxADD","args":[1,1]})" + "\n";
  const Tool_Run run = Run_Tool({"batch", "--max-answer", "0.2K"}, input);
  EXPECT_EQ(run.output,
            "{\"id\":1,\"failure\":\"The answer has 219 bytes, more than --max-answer "
            "allows.\",\"number\":7}\n{\"id\":2,\"value\":\"2\"}\n");
}

TEST(BatchCommand, RefusesBadOptions) {
  for (const std::vector<std::string>& options :
       std::vector<std::vector<std::string>>{{"--jobs", "0"},
                                             {"--jobs", "x"},
                                             {"--max-line", "x"},
                                             {"--decimal", "12"},
                                             {"--locale", "xx"},
                                             {"more"}}) {
    std::vector<std::string> words = {"batch"};
    for (const std::string& option : options) words.push_back(option);
    const Tool_Run run = Run_Tool(words, "{}\n");
    EXPECT_EQ(run.exit_code, 2) << options.front();
    EXPECT_EQ(run.output, "") << options.front();
    EXPECT_EQ(run.errors.find("error: "), 0U) << run.errors;
  }
}

// A request, its answer, and only then the next request.
void Hold_Dialogue(const char* jobs) {
  std::array<int, 2> requests{};
  std::array<int, 2> answers{};
  ASSERT_EQ(::pipe(requests.data()), 0);
  ASSERT_EQ(::pipe(answers.data()), 0);
  const pid_t process = ::fork();
  if (process == 0) {
    ::dup2(requests[0], STDIN_FILENO);
    ::dup2(answers[1], STDOUT_FILENO);
    for (const int end : {requests[0], requests[1], answers[0], answers[1]}) ::close(end);
    ::execl(QUORVEX_TOOL, "quorvex", "batch", "--jobs", jobs, nullptr);
    ::_exit(127);
  }
  ::close(requests[0]);
  ::close(answers[1]);
  for (int i = 0; i < 3; ++i) {
    const std::string number = std::to_string(i);
    const std::string request = R"({"call":"qvxADD","args":[)" + number + ",0]}\n";
    ASSERT_EQ(::write(requests[1], request.data(), request.size()),
              static_cast<ssize_t>(request.size()));
    std::array<char, 100> buffer{};
    const ssize_t got = ::read(answers[0], buffer.data(), buffer.size());
    ASSERT_GT(got, 0);
    EXPECT_EQ(std::string(buffer.data(), static_cast<std::size_t>(got)),
              "{\"value\":\"" + number + "\"}\n");
  }
  ::close(requests[1]);
  int status = -1;
  ::waitpid(process, &status, 0);
  EXPECT_EQ(status, 0);
  ::close(answers[0]);
}

TEST(BatchCommand, AnswersBeforeItWaits) {
  Hold_Dialogue("1");
  Hold_Dialogue("2");
}

}  // namespace
}  // namespace quorvex
