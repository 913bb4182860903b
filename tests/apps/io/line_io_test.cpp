// Lines over descriptors.
#include "io/line_io.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "support/surroundings.h"

namespace quorvex {
namespace {

class Pipe {
 public:
  Pipe() { EXPECT_EQ(::pipe(ends_.data()), 0); }
  ~Pipe() {
    ::close(ends_[0]);
    close_writer();
  }
  Pipe(const Pipe&) = delete;
  Pipe& operator=(const Pipe&) = delete;

  int reader() const { return ends_[0]; }
  int writer() const { return ends_[1]; }
  void close_writer() {
    if (ends_[1] >= 0) ::close(ends_[1]);
    ends_[1] = -1;
  }

 private:
  std::array<int, 2> ends_{};
};

// What the reader makes of a text that arrives in pieces of that size.
std::vector<std::string> Lines_Of(const std::string& text, std::size_t piece) {
  Pipe pipe;
  std::thread sender([&] {
    for (std::size_t at = 0; at < text.size(); at += piece) {
      const std::string part = text.substr(at, piece);
      EXPECT_EQ(::write(pipe.writer(), part.data(), part.size()),
                static_cast<ssize_t>(part.size()));
    }
    pipe.close_writer();
  });
  Line_Reader reader(pipe.reader());
  Line_Writer nowhere(STDOUT_FILENO);
  std::vector<std::string> lines;
  while (const auto line = reader.next_line(nowhere))
    lines.push_back(!reader.problem().empty() ? "(too long)" : std::string(*line));
  sender.join();
  return lines;
}

TEST(LineReader, SplitsWhateverThePiecesAre) {
  const std::string long_line(300000, 'x');
  const std::string text = "a\n\nb\r\n" + long_line + "\n" + std::string("\0z", 2) + "\nlast";
  const std::vector<std::string> lines = {"a", "", "b", long_line, std::string("\0z", 2), "last"};
  for (const std::size_t piece : {std::size_t{1000}, std::size_t{4096}, text.size()})
    EXPECT_EQ(Lines_Of(text, piece), lines) << piece;
  EXPECT_EQ(Lines_Of("a\nb\n", 1), (std::vector<std::string>{"a", "b"}));
  EXPECT_TRUE(Lines_Of("", 1).empty());
}

TEST(LineReader, DropsALineThatMemoryCantHold) {
  const Memory_Guard small(std::size_t{1} << 25);
  const std::string endless(std::size_t{1} << 26, 'x');
  const auto lines = Lines_Of("before\n" + endless + "\nafter\n" + endless, 1 << 16);
  EXPECT_EQ(lines, (std::vector<std::string>{"before", "(too long)", "after", "(too long)"}));
}

TEST(LineWriter, SaysWhenNobodyReads) {
  Pipe pipe;
  Line_Writer writer(pipe.writer());
  writer.write_line("one");
  EXPECT_NO_THROW(writer.flush());
  Line_Writer nowhere(-1);
  nowhere.write_line("one");
  EXPECT_THROW(nowhere.flush(), std::system_error);
}

// A terminal that another program has left so, or a pipe that two programs share.
TEST(LineIo, WaitsForDescriptorsThatDoNotBlock) {
  Pipe pipe;
  for (const int end : {pipe.reader(), pipe.writer()}) ::fcntl(end, F_SETFL, O_NONBLOCK);
  const std::string line(std::size_t{1} << 20, 'x');  // more than a pipe holds
  std::thread sender([&] {
    Line_Writer writer(pipe.writer());
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    writer.write_line(line);
    writer.flush();
    pipe.close_writer();
  });
  Line_Reader reader(pipe.reader());
  Line_Writer nowhere(STDOUT_FILENO);
  EXPECT_EQ(reader.next_line(nowhere), line);
  sender.join();
  EXPECT_EQ(reader.next_line(nowhere), std::nullopt);
}

}  // namespace
}  // namespace quorvex
