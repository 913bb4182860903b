// The values that a host hands to the engine and takes back.
#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "host/export.h"

namespace quorvex {

/// A number held as decimal text, in UTF-8.
using NumberText = std::string;

class HostValue;

/// Error values of the host, by its codes.
enum class Error_Code : int {
  null = 2000,
  division_by_zero = 2007,
  value = 2015,
  reference = 2023,
  name = 2029,
  number = 2036,
  not_available = 2042,
};

/// A two-dimensional array, its values row by row.
struct Array {
  std::size_t rows = 0;
  std::size_t columns = 0;
  int lower_row = 1;
  int lower_column = 1;
  std::vector<HostValue> values;
};

/// A one-dimensional array of values: what a variable list of arguments arrives as.
using List = std::vector<HostValue>;

/// A reference to cells of the host, which can be read as an array. A range of one cell reads as
/// that cell. Rows and columns count from 1.
class QUORVEX_API Range {
 public:
  Range() = default;
  Range(const Range&) = delete;
  Range& operator=(const Range&) = delete;
  virtual ~Range();

  virtual std::size_t rows() const = 0;
  virtual std::size_t columns() const = 0;
  virtual HostValue cell(std::size_t row, std::size_t column) const = 0;

  /// Calls `visit` with the cells that aren't blank, row by row, until it returns false; with blank
  /// ones, too, where they can't be told. This looks at every cell: a host whose ranges name far
  /// more cells than are used knows better.
  virtual void visit_used(const std::function<bool(const HostValue&)>& visit) const;
};

/// A tagged value. Missing (an argument left out) and empty (a blank cell) differ.
class QUORVEX_API HostValue {
 public:
  enum class Kind { missing, empty, number, text, boolean, error, array, list, range };

  HostValue() noexcept = default;
  HostValue(const HostValue& other) { copy(other); }
  HostValue(HostValue&& other) noexcept = default;
  HostValue& operator=(const HostValue& other) {
    if (this != &other) copy(other);
    return *this;
  }
  HostValue& operator=(HostValue&& other) noexcept = default;
  ~HostValue() = default;
  HostValue(double number) noexcept : data_(number) {}
  HostValue(bool boolean) noexcept : data_(boolean) {}
  HostValue(std::string text) noexcept : data_(std::move(text)) {}
  HostValue(std::string_view text) : data_(std::string(text)) {}
  HostValue(const char* text) : data_(std::string(text)) {}
  HostValue(Error_Code error) noexcept : data_(error) {}
  HostValue(Array array);
  HostValue(List list);
  HostValue(std::shared_ptr<const Range> range) noexcept : data_(std::move(range)) {}
  /// A number up to 2^53, within which each has a 64-bit float of its own; beyond that the text of
  /// its digits, so that none is lost.
  template <std::integral Integer>
  requires(!std::same_as<Integer, bool> && !std::same_as<Integer, char>) HostValue(Integer number) {
    if constexpr (!Fits_A_Float<Integer>) {
      constexpr std::int64_t last = std::int64_t{1} << 53;
      if (std::cmp_greater(number, last) || std::cmp_less(number, -last)) {
        data_ = std::to_string(number);
        return;
      }
    }
    data_ = static_cast<double>(number);
  }

  /// The value of a blank cell.
  static HostValue Empty() noexcept;

  Kind kind() const noexcept { return static_cast<Kind>(data_.index()); }
  bool is_missing() const noexcept { return kind() == Kind::missing; }
  bool is_empty() const noexcept { return kind() == Kind::empty; }
  bool is_text() const noexcept { return kind() == Kind::text; }

  // Each of these may be called for its own kind only (std::bad_variant_access otherwise).
  double number() const { return std::get<double>(data_); }
  const std::string& text() const { return std::get<std::string>(data_); }
  bool boolean() const { return std::get<bool>(data_); }
  Error_Code error() const { return std::get<Error_Code>(data_); }
  const Array& array() const { return *std::get<std::shared_ptr<const Array>>(data_); }
  const List& list() const { return *std::get<std::shared_ptr<const List>>(data_); }
  const Range& range() const { return *std::get<std::shared_ptr<const Range>>(data_); }

  /// The text itself, to be changed; for values of kind text only.
  std::string& mutable_text() { return std::get<std::string>(data_); }

 private:
  template <typename Integer>
  static constexpr bool Fits_A_Float = std::numeric_limits<Integer>::digits <= 53;

  // A text is copied before it takes the place of what was there: a variant whose value can't be
  // made has none afterwards, which is no kind. Nothing else that is copied asks for memory.
  void copy(const HostValue& other) {
    if (other.is_text()) {
      data_ = std::string(other.text());
    } else {
      data_ = other.data_;
    }
  }

  struct Blank {};
  explicit HostValue(Blank blank) noexcept : data_(blank) {}

  // In the order of `Kind`.
  std::variant<std::monostate, Blank, double, std::string, bool, Error_Code,
               std::shared_ptr<const Array>, std::shared_ptr<const List>,
               std::shared_ptr<const Range>>
      data_;
};

/// An argument that was left out.
inline const HostValue Missing;

/// True if the value is a range of exactly one cell, which reads as that cell everywhere.
QUORVEX_API bool Is_Single_Cell(const HostValue& value);

}  // namespace quorvex
