// Random number text, biased to where digit arithmetic goes wrong.
#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <random>
#include <string>
#include <string_view>

namespace quorvex {

class Random_Numbers {
 public:
  explicit Random_Numbers(unsigned seed) : random_(seed) {}

  std::size_t below(std::size_t limit) { return random_() % limit; }
  bool one_in(std::size_t count) { return below(count) == 0; }
  char one_of(std::string_view characters) { return characters[below(characters.size())]; }

  /// Lengths around those of machine words and powers of two, and small ones.
  std::size_t length(std::size_t most) {
    if (one_in(2)) return std::min(below(20), most);
    const std::size_t power = std::size_t{1} << below(13);
    return std::min(power + below(4) - std::min<std::size_t>(power, 2), most);
  }

  /// Runs of one digit, of nines and zeros, and of any digits.
  std::string digits(std::size_t length) {
    constexpr std::string_view sets[] = {"0", "9", "09", "0123456789", "5", "49", "1"};
    std::string text;
    while (text.size() < length) {
      const std::string_view set = sets[below(std::size(sets))];
      const std::size_t run = 1 + below(one_in(3) ? 10 : length);
      for (std::size_t i = 0; i < run && text.size() < length; ++i) text += one_of(set);
    }
    return text;
  }

  /// Digits with or without a fraction and a minus: at least one digit, "." for the separator.
  std::string number(std::size_t most) {
    std::string text = digits(1 + length(most));
    if (one_in(2)) text += "." + digits(1 + length(most));
    if (one_in(2)) text.insert(0, 1, '-');
    return text;
  }

  /// Digits above 0 with or without a fraction: of all sizes, and next to 1 and to powers of two.
  std::string positive() {
    const std::string few = digits(1 + below(40)) + "7";
    switch (below(6)) {
      case 0:
        return "1." + std::string(below(40), '0') + few;
      case 1:
        return "0." + std::string(1 + below(40), '9') + few;
      case 2:
        return "0." + std::string(below(60), '0') + few;
      case 3:
        return std::to_string((1ULL << (1 + below(50))) - 1) + "." + std::string(30, '9');
      case 4:
        return few + std::string(below(60), '0');
      default:
        return few + "." + digits(1 + below(30));
    }
  }

  /// A limit of significant digits, seldom a large one.
  std::size_t limit(std::size_t least, std::size_t most) {
    return least + below(one_in(8) ? most - least + 1 : 56);
  }

  /// A number whose sum or difference with `other` is a corner: equal, opposite, or such that a
  /// carry runs through all digits.
  std::string neighbour(const std::string& other) {
    std::string text = other;
    for (char& character : text) {
      if (character >= '0' && character <= '9' && complement_) {
        character = static_cast<char>('9' - character + '0');
      }
    }
    complement_ = !complement_;
    if (one_in(2)) {
      if (text.front() == '-') {
        text.erase(0, 1);
      } else {
        text.insert(0, 1, '-');
      }
    }
    char& last = text.back();
    if (one_in(2) && last >= '0' && last < '9') ++last;
    return text;
  }

  /// Marks of all kinds, of which few make up a number, and so few that no exponent asks for much.
  std::string marks() {
    std::string text;
    for (std::size_t count = below(9); count > 0; --count) {
      text += one_of(text.find('E') == std::string::npos ? "0593.,$-()'\"E+# a" : "05.,$-()'+E");
    }
    return text;
  }

 private:
  std::mt19937 random_;
  bool complement_ = false;
};

}  // namespace quorvex
