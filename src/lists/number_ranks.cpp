#include "lists/number_ranks.h"

#include <algorithm>
#include <bit>
#include <compare>
#include <cstdint>
#include <deque>
#include <utility>

#include "arith/limbs/limbs.h"
#include "host/platform.h"
#include "text/comparable_number.h"

namespace quorvex {
namespace {

void Yield_At(std::size_t step) {
  if (step % steps_between_yields == 0) Yield();
}

struct Number {
  Digits_And_Power value;
  std::size_t place;  // among the texts
};

// Reads texts to numbers that compare.
class Reader {
 public:
  explicit Reader(std::size_t most) : readers_(1) { numbers_.reserve(most); }

  // False if the text is no number that compares. The text must outlive this.
  bool read(std::string_view text, std::size_t place) {
    if (!readers_.back().read(text)) return false;
    numbers_.push_back({readers_.back().value(), place});
    // What has written digits anew must stay.
    if (!readers_.back().is_plain()) readers_.emplace_back();
    return true;
  }

  // True if the text that has just been refused is a number all the same.
  bool refused_a_number() const { return readers_.back().is_number(); }

  const std::vector<Number>& numbers() const { return numbers_; }

 private:
  std::deque<Comparable_Number> readers_;
  std::vector<Number> numbers_;
};

limbs::Limb Leading_Digits(const Digits_And_Power& number) {
  const auto first = number.first.substr(0, limbs::digits);
  const auto more = number.more.substr(0, limbs::digits - first.size());
  return (limbs::Read(first) * limbs::Ten_To(more.size()) + limbs::Read(more)) *
         limbs::Ten_To(limbs::digits - first.size() - more.size());
}

// A word that grows with the numbers: the sign and the power of ten as one count, and as many of
// the first digits as have room behind it. It tells most numbers apart, and all others are equal by
// it.
class Leading_Words {
 public:
  explicit Leading_Words(const std::vector<Number>& numbers) {
    std::int64_t greatest = least_ - 1;
    for (const Number& number : numbers) {
      if (number.value.sign == 0) continue;
      const bool is_first = greatest < least_;
      least_ = is_first ? number.value.power : std::min(least_, number.value.power);
      greatest = is_first ? number.value.power : std::max(greatest, number.value.power);
    }
    sizes_ = greatest - least_ + 1;
    count_bits_ =
        std::max(static_cast<int>(std::bit_width(static_cast<std::uint64_t>(2 * sizes_))), 1);
  }

  std::uint64_t of(const Digits_And_Power& number) const {
    constexpr int unused_bits = std::countl_zero(limbs::base - 1);
    std::int64_t size = 0;
    limbs::Limb digits = 0;
    if (number.sign != 0) {
      size = number.power - least_ + 1;
      digits = Leading_Digits(number);
    }
    if (number.sign < 0) {
      size = -size;
      digits = limbs::base - 1 - digits;
    }
    return static_cast<std::uint64_t>(sizes_ + size) << (64 - count_bits_) |
           digits << unused_bits >> count_bits_;
  }

 private:
  std::int64_t least_ = 0;  // power
  std::int64_t sizes_ = 0;  // of numbers above 0, and as many below
  int count_bits_ = 1;
};

struct Sort_Key {
  std::uint64_t leading;
  const Number* number;
};

std::strong_ordering operator<=>(const Sort_Key& a, const Sort_Key& b) {
  if (a.leading != b.leading) return a.leading <=> b.leading;
  return a.number->value <=> b.number->value;
}

std::vector<Sort_Key> Keys_Of(const std::vector<Number>& numbers) {
  const Leading_Words words(numbers);
  std::vector<Sort_Key> keys;
  keys.reserve(numbers.size());
  for (const Number& number : numbers) keys.push_back({words.of(number.value), &number});
  return keys;
}

// Lays the keys into about as many drawers as there are keys, by their leading words, and gives
// where each drawer ends. Among all the keys it is a sort already where words are spread evenly.
std::vector<std::size_t> Lay_Into_Drawers(std::vector<Sort_Key>& keys) {
  const auto [least, greatest] = std::ranges::minmax(keys, {}, &Sort_Key::leading);
  const std::uint64_t range = greatest.leading - least.leading;
  const int shift = std::max(
      static_cast<int>(std::bit_width(range)) - static_cast<int>(std::bit_width(keys.size())), 0);
  const auto drawer_of = [&, lowest = least.leading](const Sort_Key& key) {
    return static_cast<std::size_t>((key.leading - lowest) >> shift);
  };
  std::vector<std::size_t> ends(static_cast<std::size_t>(range >> shift) + 2);
  for (const Sort_Key& key : keys) ++ends[drawer_of(key) + 1];
  for (std::size_t drawer = 1; drawer < ends.size(); ++drawer) ends[drawer] += ends[drawer - 1];
  std::vector<Sort_Key> laid(keys.size());
  for (const Sort_Key& key : keys) laid[ends[drawer_of(key)]++] = key;
  keys = std::move(laid);
  ends.pop_back();
  return ends;
}

void Sort_Keys(std::vector<Sort_Key>& keys) {
  if (keys.empty()) return;
  std::size_t steps = 0;
  const auto is_before = [&](const Sort_Key& a, const Sort_Key& b) {
    Yield_At(++steps);
    return std::is_lt(a <=> b);
  };
  const std::vector<std::size_t> ends = Lay_Into_Drawers(keys);
  auto begin = keys.begin();
  for (const std::size_t end_place : ends) {
    const auto end = keys.begin() + static_cast<std::ptrdiff_t>(end_place);
    if (end - begin > 1) std::sort(begin, end, is_before);
    begin = end;
  }
}

}  // namespace

std::vector<std::size_t> Ranks_Of(const std::vector<std::string_view>& texts,
                                  Sort_Direction direction) {
  std::vector<std::size_t> ranks(texts.size(), no_number_rank);
  Reader reader(texts.size());
  for (std::size_t place = 0; place < texts.size(); ++place) {
    Yield_At(place);
    if (!reader.read(texts[place], place) && reader.refused_a_number()) {
      ranks[place] = uncompared_rank;
    }
  }
  std::vector<Sort_Key> keys = Keys_Of(reader.numbers());
  Sort_Keys(keys);
  std::size_t rank = 0;
  for (std::size_t i = 0; i < keys.size(); ++i) {
    if (i > 0 && std::is_neq(keys[i - 1] <=> keys[i])) ++rank;
    ranks[keys[i].number->place] = rank;
  }
  if (direction == Sort_Direction::ascending) return ranks;
  for (const Sort_Key& key : keys) ranks[key.number->place] = rank - ranks[key.number->place];
  return ranks;
}

}  // namespace quorvex
