// The loops of the batch run, in one process and in several.
#include "batch/serve.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <csignal>
#include <fstream>
#include <string>

#include "apps/cli/run_tool.h"

namespace quorvex {
namespace {

// Serves a text from file to file.
std::string Served(const std::string& input, unsigned processes, const Answer_Function& answer) {
  const Temporary_Folder folder;
  const int in = ::open(folder.write("in", input).c_str(), O_RDONLY);
  const auto target = folder.path() / "out";
  const int out = ::open(target.c_str(), O_WRONLY | O_CREAT, 0600);
  if (processes == 1) {
    Serve(in, out, answer);
  } else {
    Serve_In_Parallel(in, out, processes, answer);
  }
  ::close(in);
  ::close(out);
  return File_Text(target);
}

std::string Numbered_Lines(int count, const std::string& before) {
  std::string text;
  for (int i = 0; i < count; ++i) text += before + std::to_string(i) + "\n";
  return text;
}

TEST(Serve, AnswersInOrderWithAnyNumberOfProcesses) {
  // Every 97th answer is late, and each is of another length.
  const Answer_Function answer = [](std::string& out, std::string_view line) {
    const int number = std::stoi(std::string(line));
    if (number % 97 == 0) ::usleep(3000);
    out += "answer " + std::string(line);
  };
  const std::string input = "\n" + Numbered_Lines(5000, "") + " \t\r\n";
  const std::string expected = Numbered_Lines(5000, "answer ");
  for (const unsigned processes : {1U, 2U, 7U})
    EXPECT_EQ(Served(input, processes, answer), expected);
}

TEST(Serve, LongLinesDoNotBlock) {
  const Answer_Function echo = [](std::string& out, std::string_view line) { out += line; };
  std::string input;
  for (int i = 0; i < 30; ++i)
    input += std::string(1000000, static_cast<char>('a' + i % 26)) + "\n";
  EXPECT_TRUE(Served(input, 3, echo) == input);
}

TEST(Serve, ADyingProcessTakesNothingAlong) {
  const Answer_Function answer = [](std::string& out, std::string_view line) {
    if (line.find("die") != std::string_view::npos) std::raise(SIGKILL);
    if (line.find("leave") != std::string_view::npos) ::_exit(3);
    out += line;
  };
  std::string input;
  std::string expected;
  for (int i = 0; i < 3000; ++i) {
    const std::string id = std::to_string(i);
    const char* deed = i % 500 == 250 ? "die" : i % 500 == 400 ? "leave" : "live";
    const std::string line = "{\"id\":" + id + R"(,"call":")" + deed + "\"}\n";
    const std::string death = "{\"id\":" + id + R"(,"failure":"The process that calculated this )";
    input += line;
    if (i % 500 == 250) {
      expected += death + "was ended by signal 9.\",\"number\":5}\n";
    } else if (i % 500 == 400) {
      expected += death + "ended with code 3.\",\"number\":5}\n";
    } else {
      expected += line;
    }
  }
  EXPECT_EQ(Served(input, 2, answer), expected);
}

}  // namespace
}  // namespace quorvex
