// Where texts stand among each other by value.
#pragma once

#include <cstddef>
#include <limits>
#include <string_view>
#include <vector>

namespace quorvex {

enum class Sort_Direction { ascending, descending };

/// The ranks of what has no place among the others: text that is no number, and a number that can
/// be added but not compared.
inline constexpr std::size_t no_number_rank = std::numeric_limits<std::size_t>::max();
inline constexpr std::size_t uncompared_rank = no_number_rank - 1;

/// The rank of each text, 0 for what a sort in that direction puts first. Equal numbers have the
/// same rank, whatever their spelling. Each text is read once. Fails with out_of_memory for a
/// number that has no room.
std::vector<std::size_t> Ranks_Of(const std::vector<std::string_view>& texts,
                                  Sort_Direction direction);

}  // namespace quorvex
