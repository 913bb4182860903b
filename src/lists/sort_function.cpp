#include "lists/sort_function.h"

#include <utility>

#include "lists/number_block.h"
#include "lists/sort_numbers.h"
#include "lists/sort_result.h"

namespace quorvex {

Array Sort_Function(const HostValue& numlist, const Sort_Options& options) {
  const auto direction =
      options.descending ? Sort_Direction::descending : Sort_Direction::ascending;
  const Number_Block block(numlist);
  const Block_Size size = Size_Of_Block(options.rows, options.columns, block.array());
  Array sorted = options.left_to_right ? Sort_Numbers_By_Row(block.array(), direction)
                                       : Sort_Numbers(block.array(), direction);
  return options.fit_to_array
             ? Fit_Sort_Result(sorted, size, options.blank_text, options.left_to_right)
             : Copy_Sort_Result(std::move(sorted), size, options.blank_text);
}

}  // namespace quorvex
