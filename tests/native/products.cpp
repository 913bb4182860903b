#include "products.h"

#include <algorithm>
#include <random>

namespace quorvex::native {

std::string Hard_Digits(std::size_t count, unsigned pattern, unsigned seed) {
  std::mt19937 random(seed);
  const auto below = [&random](unsigned bound) { return static_cast<unsigned>(random() % bound); };
  const auto digit = [&below] { return static_cast<char>('0' + below(10)); };
  std::string text(count, '0');
  switch (pattern % digit_patterns) {
    case 0:
      std::generate(text.begin(), text.end(), digit);
      break;
    case 1:
      text.assign(count, '9');
      break;
    case 2:
      break;
    case 3:
      for (std::size_t i = below(40); i < count; i += 1 + below(40)) text[i] = digit();
      break;
    case 4:
      for (std::size_t i = 0; i < count; i += 2) text[i] = '9';
      break;
    case 5:
      for (std::size_t i = 0; i < count;) {
        const char run = below(2) == 0 ? '0' : '9';
        for (std::size_t length = 1 + below(50); length > 0 && i < count; --length) text[i++] = run;
      }
      break;
    case 6:
      text.back() = '1';
      break;
    default:
      text.assign(count, '9');
      text.back() = '8';
  }
  if (text.front() == '0') text.front() = static_cast<char>('1' + below(9) * (pattern % 2));
  return text;
}

std::string Product_By_Hand(std::string_view a, std::string_view b) {
  std::vector<unsigned> columns(a.size() + b.size(), 0);
  for (std::size_t i = 0; i < a.size(); ++i) {
    for (std::size_t j = 0; j < b.size(); ++j)
      columns[i + j + 1] += static_cast<unsigned>((a[i] - '0') * (b[j] - '0'));
  }
  std::string product(columns.size(), '0');
  unsigned carry = 0;
  for (std::size_t k = columns.size(); k-- > 0;) {
    carry += columns[k];
    product[k] = static_cast<char>('0' + carry % 10);
    carry /= 10;
  }
  const std::size_t first = product.find_first_not_of('0');
  return first == std::string::npos ? "0" : product.substr(first);
}

std::string Product_Of(std::string_view a, std::string_view b, Instructions kind) {
  constexpr std::size_t guard = 80;
  const std::size_t room = 2 * std::max(a.size(), b.size());
  std::string text(guard + room + guard, ' ');
  const std::size_t count = Multiply_Texts(a, b, text.data() + guard, room, kind);
  if (count > room) return "too long a count";
  std::string product = text.substr(guard, count);
  text.replace(guard, count, count, ' ');
  if (text.find_first_not_of(' ') != std::string::npos) return "bytes changed beside the product";
  return product;
}

std::vector<Instructions> Kinds_Here() {
  std::vector<Instructions> kinds;
  for (const auto kind : {Instructions::portable, Instructions::avx2, Instructions::avx512})
    if (kind <= Best_Instructions()) kinds.push_back(kind);
  return kinds;
}

}  // namespace quorvex::native
