#include "lists/number_ranks.h"

#include <algorithm>
#include <array>
#include <compare>
#include <cstdint>
#include <optional>

#include "host/platform.h"
#include "text/compare_numbers.h"
#include "text/digit_words.h"
#include "text/operand.h"
#include "text/recognition.h"

namespace quorvex {
namespace {

constexpr std::size_t steps_between_yields = 64;

// A number as far as it decides most comparisons: how many integer digits it has, and its first
// digits. Both are turned round below zero.
struct Sort_Key {
  std::int64_t size;
  std::uint64_t first_digits;
  std::uint64_t next_digits;
  const Operand* number;
  std::size_t text;
};

// The digits from the first one of the integer part, or from the separator, on.
std::array<char, 2 * digit_words::size> Leading_Digits(std::string_view integer,
                                                       std::string_view fraction) {
  std::array<char, 2 * digit_words::size> digits{};
  digits.fill('0');
  const std::size_t whole = integer.copy(digits.data(), digits.size());
  fraction.copy(digits.data() + whole, digits.size() - whole);
  return digits;
}

Sort_Key Key_Of(const Operand& number, std::size_t text) {
  std::string_view integer = number.parts().integer;
  integer.remove_prefix(std::min(integer.find_first_not_of('0'), integer.size()));
  const auto digits = Leading_Digits(integer, number.parts().fraction);
  Sort_Key key{static_cast<std::int64_t>(integer.size()), digit_words::Load(digits.data()),
               digit_words::Load(digits.data() + digit_words::size), &number, text};
  if (!number.positive() && !Is_Zero(number.parts())) {
    key.size = -1 - key.size;
    key.first_digits = ~key.first_digits;
    key.next_digits = ~key.next_digits;
  }
  return key;
}

std::strong_ordering Compare_Keys(const Sort_Key& a, const Sort_Key& b) {
  if (a.size != b.size) return a.size <=> b.size;
  if (a.first_digits != b.first_digits) return a.first_digits <=> b.first_digits;
  if (a.next_digits != b.next_digits) return a.next_digits <=> b.next_digits;
  return Compare_Values(*a.number, *b.number);
}

void Sort_Keys(std::vector<Sort_Key>& keys) {
  std::size_t steps = 0;
  std::ranges::sort(keys, [&](const Sort_Key& a, const Sort_Key& b) {
    if (++steps % steps_between_yields == 0) Yield();
    return std::is_lt(Compare_Keys(a, b));
  });
}

}  // namespace

std::vector<std::size_t> Ranks_Of(const std::vector<std::string_view>& texts,
                                  Sort_Direction direction) {
  std::vector<std::size_t> ranks(texts.size(), no_number_rank);
  std::vector<std::optional<Operand>> numbers(texts.size());
  std::vector<Sort_Key> keys;
  keys.reserve(texts.size());
  for (std::size_t i = 0; i < texts.size(); ++i) {
    if (i % steps_between_yields == 0) Yield();
    if (Read_For_Comparison(texts[i], numbers[i])) {
      keys.push_back(Key_Of(*numbers[i], i));
    } else if (Is_Number_Text(texts[i])) {
      ranks[i] = uncompared_rank;
    }
  }
  Sort_Keys(keys);
  std::size_t rank = 0;
  for (std::size_t i = 0; i < keys.size(); ++i) {
    if (i > 0 && std::is_neq(Compare_Keys(keys[i - 1], keys[i]))) ++rank;
    ranks[keys[i].text] = rank;
  }
  if (direction == Sort_Direction::ascending) return ranks;
  for (const Sort_Key& key : keys) ranks[key.text] = rank - ranks[key.text];
  return ranks;
}

}  // namespace quorvex
