// The running product of a list.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "host/host_value.h"

namespace quorvex {

/// What a chain of products gives, `Do_Operation(multiply, product, element)` from "1" on, without
/// formats, as an intermediate value.
///
/// Factors are kept as whole numbers and a power of ten, and no product is written out. While no
/// limit can cut one, they are multiplied with partial products of their own length, so that a long
/// list costs little more than its last products. Where a limit might, each product is rounded.
class Running_Product {
 public:
  /// Multiplies by an element, with so many significant digits as the limit. What is no number
  /// leaves the product as it is, and so does everything but 0 where products can't be formed.
  /// Fails with out_of_memory where an element or a partial product has no room.
  void multiply(std::string_view element, double msd);

  /// The product as plain text. Fails as `multiply` does.
  NumberText text();

 private:
  void cut(double msd);
  void push(NumberText digits);
  void join_last_two();
  void join_all();

  std::vector<NumberText> partial_;  // from left to right ever shorter; no zeros at their ends
  std::int64_t power_of_ten_ = 0;    // of their product
  std::size_t digits_ = 0;           // that the product has at most
  bool negative_ = false;
  bool zero_ = false;
};

}  // namespace quorvex
