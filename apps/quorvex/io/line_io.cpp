// Lines in and out over file descriptors, fast in bulk and prompt in a dialogue.
#include "io/line_io.h"

#include <algorithm>
#include <cerrno>
#include <new>
#include <system_error>
#include <utility>

#include "host/platform.h"
#include "host/run_time_failure.h"
#include "io/descriptor.h"

namespace quorvex {
namespace {

constexpr std::size_t read_size = std::size_t{1} << 16;
constexpr std::size_t write_size = std::size_t{1} << 16;
// Beyond this the buffer asks whether there is memory before it grows.
constexpr std::size_t modest_size = std::size_t{1} << 24;

}  // namespace

void Line_Writer::line_done() {
  buffer_ += '\n';
  if (buffer_.size() >= write_size) flush();
}

void Line_Writer::write_line(std::string_view line) {
  buffer_ += line;
  line_done();
}

void Line_Writer::flush() {
  const std::string pending = std::exchange(buffer_, std::string());
  std::string_view left = pending;
  while (!left.empty()) {
    const ssize_t written = Write_Some(descriptor_, left.data(), left.size());
    if (written >= 0) {
      left.remove_prefix(static_cast<std::size_t>(written));
    } else if (errno == EPIPE) {
      throw Output_Closed();
    } else if (errno == EAGAIN) {
      Wait_To_Write(descriptor_);
    } else if (errno != EINTR) {
      throw std::system_error(errno, std::generic_category(), "cannot write the output");
    }
  }
}

std::optional<std::string_view> Line_Reader::buffered_line() {
  const auto line_end = buffer_.find('\n', std::max(begin_, scanned_));
  const bool found = line_end != std::string::npos;
  if (!found && (!at_end_ || (begin_ == buffer_.size() && dropping_.empty()))) {
    if (!dropping_.empty()) begin_ = buffer_.size();
    scanned_ = buffer_.size();
    return std::nullopt;
  }
  const std::size_t end = found ? line_end : buffer_.size();
  std::string_view line(buffer_.data() + begin_, end - begin_);
  begin_ = found ? end + 1 : end;
  scanned_ = begin_;
  problem_ = std::exchange(dropping_, {});
  if (line.ends_with('\r')) line.remove_suffix(1);
  if (problem_.empty() && line.size() > longest_) problem_ = longer_line;
  return problem_.empty() ? line : std::string_view();
}

bool Line_Reader::fill() {
  if (at_end_) return false;
  buffer_.erase(0, begin_);
  scanned_ -= begin_;
  begin_ = 0;
  if (buffer_.size() > longest_) drop_line(longer_line);
  try {
    if (buffer_.size() > modest_size) Require_Memory(2.0 * static_cast<double>(buffer_.size()));
    read_piece();
  } catch (const Run_Time_Failure&) {
    drop_line(too_long_line);
  } catch (const std::bad_alloc&) {
    drop_line(too_long_line);
  }
  return !at_end_;
}

void Line_Reader::read_piece() {
  const std::size_t held = buffer_.size();
  buffer_.resize(held + read_size);
  const ssize_t got = Read_Some(descriptor_, buffer_.data() + held, read_size);
  const int error = errno;
  buffer_.resize(held + static_cast<std::size_t>(std::max<ssize_t>(got, 0)));
  at_end_ = got == 0;
  if (got < 0 && error == EAGAIN) {
    Wait_To_Read(descriptor_);
  } else if (got < 0 && error != EINTR) {
    throw std::system_error(error, std::generic_category(), "cannot read the input");
  }
}

void Line_Reader::drop_line(std::string_view problem) {
  buffer_ = std::string();
  scanned_ = 0;
  dropping_ = problem;
}

std::optional<std::string_view> Line_Reader::next_line(Line_Writer& output) {
  for (;;) {
    if (const auto line = buffered_line()) return line;
    if (at_end_) return std::nullopt;
    output.flush();
    fill();
  }
}

}  // namespace quorvex
