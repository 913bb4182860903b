#include "lists/number_ranks.h"

#include <algorithm>
#include <array>
#include <compare>
#include <cstdint>

#include "host/platform.h"
#include "text/comparable_number.h"
#include "text/digit_words.h"

namespace quorvex {
namespace {

// A number as far as it decides most comparisons: its sign and size in one, and its first digits.
// All are turned round below zero.
struct Sort_Key {
  std::int64_t size;
  std::uint64_t first_digits;
  std::uint64_t next_digits;
  const Comparable_Number* number;
  std::size_t text;
};

// Beyond all powers of ten that numbers reach.
constexpr std::int64_t far_above_powers = std::int64_t{1} << 62;

std::array<char, 2 * digit_words::size> Leading_Digits(const Comparable_Number& number) {
  std::array<char, 2 * digit_words::size> digits{};
  digits.fill('0');
  const std::size_t first = number.first_digits().copy(digits.data(), digits.size());
  number.more_digits().copy(digits.data() + first, digits.size() - first);
  return digits;
}

Sort_Key Key_Of(const Comparable_Number& number, std::size_t text) {
  if (number.sign() == 0) return {0, 0, 0, &number, text};
  const auto digits = Leading_Digits(number);
  Sort_Key key{far_above_powers + number.power(), digit_words::Load(digits.data()),
               digit_words::Load(digits.data() + digit_words::size), &number, text};
  if (number.sign() < 0) {
    key.size = -key.size;
    key.first_digits = ~key.first_digits;
    key.next_digits = ~key.next_digits;
  }
  return key;
}

std::strong_ordering Compare_Keys(const Sort_Key& a, const Sort_Key& b) {
  if (a.size != b.size) return a.size <=> b.size;
  if (a.first_digits != b.first_digits) return a.first_digits <=> b.first_digits;
  if (a.next_digits != b.next_digits) return a.next_digits <=> b.next_digits;
  return *a.number <=> *b.number;
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
  std::vector<Comparable_Number> numbers(texts.size());
  std::vector<Sort_Key> keys;
  keys.reserve(texts.size());
  for (std::size_t i = 0; i < texts.size(); ++i) {
    if (i % steps_between_yields == 0) Yield();
    if (numbers[i].read(texts[i])) {
      keys.push_back(Key_Of(numbers[i], i));
    } else if (numbers[i].is_number()) {
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
