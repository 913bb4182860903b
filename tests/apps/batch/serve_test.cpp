// The loops of the batch run, in one process and in several.
#include "batch/serve.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <csignal>
#include <fstream>
#include <string>

#include "apps/cli/run_tool.h"

namespace quorvex {
namespace {

// Serves a text from file to file.
std::string Served(const std::string& input, unsigned processes, const Answer_Function& answer,
                   const Batch_Bounds& bounds = {}) {
  const Temporary_Folder folder;
  const int in = ::open(folder.write("in", input).c_str(), O_RDONLY);
  const auto target = folder.path() / "out";
  const int out = ::open(target.c_str(), O_WRONLY | O_CREAT, 0600);
  if (processes == 1) {
    Serve(in, out, answer, bounds);
  } else {
    Serve_In_Parallel(in, out, processes, answer, bounds);
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

// A number that this process and those it starts share.
std::atomic<int>& Shared_Number() {
  static void* const memory = ::mmap(nullptr, sizeof(std::atomic<int>), PROT_READ | PROT_WRITE,
                                     MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  return *static_cast<std::atomic<int>*>(memory);
}

TEST(Serve, HoldsBoundedAnswersBehindASlowOne) {
  constexpr int count = 400;
  constexpr int length = 100000;
  std::atomic<int>& begun = Shared_Number();
  begun = 0;
  std::atomic<int>* const shared = &begun;
  // The first answer waits until no other call has begun for a while, and says how many had.
  const Answer_Function answer = [shared](std::string& out, std::string_view line) {
    if (line != "0") {
      ++*shared;
      out += std::string(length, 'x');
      return;
    }
    for (int before = -1; before != *shared;) {
      before = *shared;
      ::usleep(300000);
    }
    out += std::to_string(*shared);
  };
  Batch_Bounds bounds;
  bounds.held = std::size_t{20} * length;
  const std::string output = Served(Numbered_Lines(count, ""), 3, answer, bounds);
  EXPECT_EQ(output.size(), output.find('\n') + 1 + std::size_t{count - 1} * (length + 1));
  // What the processes and their pipes hold comes on top.
  EXPECT_GT(std::stoi(output), 5);
  EXPECT_LT(std::stoi(output), 60);
}

TEST(Serve, LongerLinesThanAllowedAreInvalidAndTheNextOnesAreNot) {
  const Answer_Function echo = [](std::string& out, std::string_view line) { out += line; };
  Batch_Bounds bounds;
  bounds.longest_line = 10;
  const std::string invalid = "{\"invalid\":\"the line is longer than --max-line allows\"}\n";
  for (const unsigned processes : {1U, 2U}) {
    EXPECT_EQ(Served("1234567890\r\n12345678901\n\n1\n", processes, echo, bounds),
              "1234567890\n" + invalid + "1\n");
    for (const char* end : {"", "\n2\n"}) {
      EXPECT_EQ(Served("1\n" + std::string(1000000, 'x') + end, processes, echo, bounds),
                "1\n" + invalid + (*end == '\0' ? "" : "2\n"));
    }
  }
}

// Every process that the run has started holds the writing end of a pipe.
TEST(Serve, NoProcessOutlivesTheRun) {
  for (const int signal : {SIGTERM, SIGINT, SIGKILL}) {
    std::array<int, 2> lives{};
    ASSERT_EQ(::pipe(lives.data()), 0);
    const pid_t run = ::fork();
    if (run == 0) {
      ::close(lives[0]);
      // Who starts the tests in the background may have it ignored.
      std::signal(signal, SIG_DFL);
      Served(Numbered_Lines(2, ""), 2, [&](std::string&, std::string_view) {
        const char sign = 'x';
        while (::write(lives[1], &sign, 1) == 1) ::sleep(60);
      });
      ::_exit(0);
    }
    ::close(lives[1]);
    char byte = 0;
    for (int process = 0; process < 2; ++process) ASSERT_EQ(::read(lives[0], &byte, 1), 1);
    ::kill(run, signal);
    ::waitpid(run, nullptr, 0);
    pollfd end{lives[0], POLLIN, 0};
    EXPECT_EQ(::poll(&end, 1, 10000), 1) << "a process lives on after signal " << signal;
    ::close(lives[0]);
  }
}

}  // namespace
}  // namespace quorvex
