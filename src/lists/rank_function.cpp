#include "lists/rank_function.h"

#include <compare>
#include <cstddef>
#include <string>

#include "host/conversions.h"
#include "host/platform.h"
#include "lists/number_block.h"
#include "lists/sort_numbers.h"
#include "text/comparable_number.h"
#include "text/recognition.h"

namespace quorvex {
namespace {

// Whether cells equal one number, which is read once. What can't be compared equals nothing.
class Equality {
 public:
  explicit Equality(std::string_view num) : comparable_(number_.read(num)) {}

  bool holds(const HostValue& cell) {
    return comparable_ && other_.read(Text_Of(cell, scratch_)) && std::is_eq(other_ <=> number_);
  }

 private:
  Comparable_Number number_;
  bool comparable_;
  Comparable_Number other_;
  std::string scratch_;
};

}  // namespace

NumberText Rank_Function(std::string_view num, const HostValue& numlist, Sort_Direction direction,
                         bool tie_compensation) {
  if (!Is_Number_Text(num)) return "NUM!";
  const Number_Block block(numlist);
  const Array& numbers = block.array();
  Equality equality(num);
  double ties = -1;
  double position = 0;
  for (const std::size_t index : Sorted_Indices(numbers, Cell_Path::by_row, direction)) {
    Yield();
    if (equality.holds(numbers.values[index])) {
      ++ties;
    } else if (ties >= 0) {
      break;
    }
    ++position;
  }
  if (ties >= 0) position -= ties;
  if (tie_compensation) position += ties / 2;
  return Number_To_Text(position);
}

}  // namespace quorvex
