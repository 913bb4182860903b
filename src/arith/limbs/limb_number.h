// Numbers of any size in limbs, and what chains of operations do with them.
#pragma once

#include <algorithm>
#include <array>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "arith/limbs/limbs.h"
#include "expects.h"
#include "host/host_value.h"
#include "text/decimal.h"

namespace quorvex::limbs {

/// Limbs, within the object if they are few: a copy is then no more than theirs.
class Store {
 public:
  Store() = default;
  Store(const Store& other) { *this = other; }
  Store(Store&& other) noexcept { *this = std::move(other); }
  ~Store() = default;
  Store& operator=(const Store& other) {
    if (this != &other) fill(other.data(), other.count_);
    return *this;
  }
  Store& operator=(Store&& other) noexcept {
    if (other.count_ > few_.size()) [[unlikely]] {
      count_ = other.count_;
      many_.swap(other.many_);
    } else if (this != &other) {
      fill(other.few_.data(), other.count_);
    }
    return *this;
  }

  std::size_t size() const { return count_; }
  const Limb* data() const { return count_ > few_.size() ? many_.data() : few_.data(); }

  void fill(const Limb* limbs, std::size_t count) {
    Expects(!owns(limbs));
    count_ = count;
    if (count > few_.size()) [[unlikely]] {
      many_.assign(limbs, limbs + count);
      return;
    }
    Copy(limbs, count, few_.data());
  }

 private:
  bool owns(const Limb* limb) const {
    const auto lies_in = [&](const Limb* first, std::size_t room) {
      return !std::less<>()(limb, first) && std::less<>()(limb, first + room);
    };
    return lies_in(few_.data(), few_.size()) || lies_in(many_.data(), many_.size());
  }

  std::size_t count_ = 0;
  std::array<Limb, 60> few_;  // more than a thousand digits
  std::vector<Limb> many_;
};

/// A number by its limbs, of which neither the first nor the last is 0; 0 has none. Limbs stand as
/// in every other number, so that sums need no shifts.
struct Number {
  Store store;
  std::int64_t low = 0;  // the first limb counts the base to this power
  bool negative = false;

  std::size_t count() const { return store.size(); }
  const Limb* data() const { return store.data(); }
  bool is_zero() const { return count() == 0; }
  /// The power of the base above the last limb.
  std::int64_t top() const { return low + static_cast<std::int64_t>(count()); }
};

/// Reads number text as formatting leaves it; nothing for any other.
std::optional<Number> Read_Canonical(std::string_view text);

/// The text that formatting leaves of a number.
NumberText Text_Of(const Number& number);

/// The number of plain digits, and the digits of a number without zeros at either end ("0" for 0).
Number Number_Of(const Decimal& decimal);
Decimal Decimal_Of(const Number& number);

/// All digits of the limbs of a number that is not 0, from the first that is not "0" on.
NumberText Digits_Of(const Number& number);

/// The power of ten of the leading digit of a number that is not 0.
std::int64_t Leading_Power(const Number& number);

/// The length of the number's text without the separator, its sign among it.
std::int64_t Plain_Length(const Number& number);

/// The greatest whole number that is not above.
Number Floor(const Number& number);

std::strong_ordering Compare_Magnitudes(const Number& a, const Number& b);

/// True only if two magnitudes above 0 differ by a unit or more of the last of so many digits of
/// the greater one. False for some that do.
bool Differ_Within(const Number& a, const Number& b, double digit_count);

/// `count` limbs with room for one more, their first at the power `low` of the base.
struct Raw_Number {
  Limb* limbs;
  std::size_t count;
  std::int64_t low;
  bool negative;
};

/// The number without the zeros around it.
void Trim(const Raw_Number& raw, Number& result);

/// Rounds to so many significant digits, half up by the first dropped digit alone.
void Round(Raw_Number& raw, std::size_t digits_kept, Number& result);

// Operations. The result may be one of the operands.

/// a + b, with a sign for b that stands in for its own.
void Add(const Number& a, const Number& b, bool b_is_negative, std::size_t digits, Number& result);

/// a b. Long numbers are multiplied by the library of products, which must be there.
void Multiply(const Number& a, const Number& b, std::size_t digits, Number& result);

/// The cube. Its square and itself are rounded to `guarded` digits before it is rounded to fewer.
void Cube(const Number& number, std::size_t guarded, std::size_t digits, Number& result);

}  // namespace quorvex::limbs
