// The running product of a list.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "host/host_value.h"
#include "text/operand.h"

namespace quorvex {

/// What a chain of products gives, `Do_Operation(multiply, product, element)` from "1" on, without
/// formats, as an intermediate value.
///
/// While no limit can cut a product, factors are kept as whole numbers and multiplied with partial
/// products of their own length, so that a long list costs little more than its last products. From
/// the first product that a limit might cut on, it is the chain itself.
class Running_Product {
 public:
  /// Multiplies by an element, with so many significant digits as the limit. What is no number
  /// leaves the product as it is, and so does everything but 0 where products can't be formed.
  /// Fails with out_of_memory where a partial product has no room.
  void multiply(std::string_view element, double msd);

  /// The product as plain text. Fails as `multiply` does.
  NumberText text();

 private:
  bool multiply_partial(const Operand& element, double msd);
  void multiply_in_chain(std::string_view element, double msd);
  void push(NumberText digits);
  void join_last_two();
  NumberText exact_text();

  std::vector<NumberText> partial_;  // from left to right ever shorter; no zeros at their ends
  std::int64_t power_of_ten_ = 0;    // of their product
  std::size_t digits_ = 0;           // that the product has at most
  bool negative_ = false;
  bool zero_ = false;
  bool in_chain_ = false;
  HostValue chain_;  // the product as text, once it is a chain
};

}  // namespace quorvex
