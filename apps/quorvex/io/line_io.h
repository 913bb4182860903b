// Lines in and out over file descriptors, fast in bulk and prompt in a dialogue.
#pragma once

#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace quorvex {

/// The reader of our output has gone, as `head` does: nobody is left to be told about it.
class Output_Closed : public std::runtime_error {
 public:
  Output_Closed() : std::runtime_error("nobody reads the output any more") {}
};

/// What is said of a line that the memory can't hold, and of one that passes a bound.
inline constexpr std::string_view too_long_line = "the line is too long for the memory there is";
inline constexpr std::string_view longer_line = "the line is longer than --max-line allows";

/// Collects output and writes it in large pieces. Throws `Output_Closed`, or `std::system_error`
/// for any other failure to write.
class Line_Writer {
 public:
  explicit Line_Writer(int descriptor) : descriptor_(descriptor) {}

  /// Where to append. Call `line_done` after each line.
  std::string& buffer() { return buffer_; }
  void line_done();
  void write_line(std::string_view line);
  void flush();

 private:
  int descriptor_;
  std::string buffer_;
};

/// Splits what a descriptor gives into lines of any length. A last line without a line end counts;
/// the line end, and a carriage return before it, belong to no line.
class Line_Reader {
 public:
  static constexpr std::size_t no_bound = static_cast<std::size_t>(-1);

  /// Lines of more than `longest` bytes are not held.
  explicit Line_Reader(int descriptor, std::size_t longest = no_bound)
      : descriptor_(descriptor), longest_(longest) {}

  /// The next line if one is here already, without reading. It is valid until the next call. A line
  /// that isn't held comes as an empty one, and `problem` tells why.
  std::optional<std::string_view> buffered_line();

  /// Reads once, waiting for input if none is there; false at the end of it, after which
  /// `buffered_line` still gives the last line if that has no line end. Throws `std::system_error`.
  bool fill();

  /// What is wrong with the last line; empty if nothing is.
  std::string_view problem() const { return problem_; }

  /// The next line, or nothing at the end of the input. What `output` holds is flushed before the
  /// program could wait: an answer never sits here while its reader waits for it.
  std::optional<std::string_view> next_line(Line_Writer& output);

 private:
  void read_piece();
  void drop_line(std::string_view problem);

  int descriptor_;
  std::size_t longest_;
  std::string buffer_;
  std::size_t begin_ = 0;    // of the next line
  std::size_t scanned_ = 0;  // no line end between begin_ and here
  bool at_end_ = false;
  std::string_view dropping_;  // why the rest of this line is passed over, if it is
  std::string_view problem_;
};

}  // namespace quorvex
