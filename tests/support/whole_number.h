// Whole numbers of any length by GMP, to judge what is exact, and pairs of them.
#pragma once

#include <gmp.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>

#include "support/random_numbers.h"

namespace quorvex {

class Whole_Number {
 public:
  explicit Whole_Number(const std::string& text = "0") {
    mpz_init_set_str(value_, text.c_str(), 10);
  }
  Whole_Number(const Whole_Number& other) { mpz_init_set(value_, other.value_); }
  Whole_Number& operator=(const Whole_Number& other) {
    mpz_set(value_, other.value_);
    return *this;
  }
  ~Whole_Number() { mpz_clear(value_); }

  std::string text() const {
    std::string digits(mpz_sizeinbase(value_, 10) + 2, '\0');
    mpz_get_str(digits.data(), 10, value_);
    return digits.substr(0, digits.find('\0'));
  }
  bool is_zero() const { return mpz_sgn(value_) == 0; }

  /// Never negative.
  static Whole_Number Common_Divisor(const Whole_Number& a, const Whole_Number& b) {
    Whole_Number divisor;
    mpz_gcd(divisor.value_, a.value_, b.value_);
    return divisor;
  }
  /// Down by one or, if told so, by two.
  static Whole_Number Factorial(unsigned long number, bool every_other) {
    Whole_Number factorial;
    (every_other ? mpz_2fac_ui : mpz_fac_ui)(factorial.value_, number);
    return factorial;
  }
  static bool Have_One_Magnitude(const Whole_Number& a, const Whole_Number& b) {
    return mpz_cmpabs(a.value_, b.value_) == 0;
  }
  static Whole_Number Power(const Whole_Number& base, std::size_t exponent) {
    Whole_Number power;
    mpz_pow_ui(power.value_, base.value_, exponent);
    return power;
  }
  static Whole_Number Ten_To(std::size_t exponent) { return Power(Whole_Number("10"), exponent); }
  /// Rounded down.
  static Whole_Number Square_Root(const Whole_Number& square) {
    Whole_Number root;
    mpz_sqrt(root.value_, square.value_);
    return root;
  }
  static Whole_Number Root(const Whole_Number& radicand, unsigned long degree) {
    Whole_Number root;
    mpz_root(root.value_, radicand.value_, degree);
    return root;
  }
  friend Whole_Number operator+(const Whole_Number& a, const Whole_Number& b) {
    Whole_Number sum;
    mpz_add(sum.value_, a.value_, b.value_);
    return sum;
  }
  friend Whole_Number operator-(const Whole_Number& a, const Whole_Number& b) {
    Whole_Number difference;
    mpz_sub(difference.value_, a.value_, b.value_);
    return difference;
  }
  /// Cut towards zero.
  friend Whole_Number operator/(const Whole_Number& a, const Whole_Number& b) {
    Whole_Number quotient;
    mpz_tdiv_q(quotient.value_, a.value_, b.value_);
    return quotient;
  }
  /// The remainder has the sign of the dividend.
  friend Whole_Number operator%(const Whole_Number& a, const Whole_Number& b) {
    Whole_Number rest;
    mpz_tdiv_r(rest.value_, a.value_, b.value_);
    return rest;
  }
  friend Whole_Number operator*(const Whole_Number& a, const Whole_Number& b) {
    Whole_Number product;
    mpz_mul(product.value_, a.value_, b.value_);
    return product;
  }
  friend bool operator==(const Whole_Number& a, const Whole_Number& b) {
    return mpz_cmp(a.value_, b.value_) == 0;
  }
  friend bool operator<(const Whole_Number& a, const Whole_Number& b) {
    return mpz_cmp(a.value_, b.value_) < 0;
  }

 private:
  mpz_t value_;
};

/// The digits of a decimal without its separator, and how many of them stand behind it.
struct Scaled_Digits {
  explicit Scaled_Digits(const std::string& decimal) : digits(decimal) {
    const std::size_t place = decimal.find('.');
    if (place == std::string::npos) return;
    digits.erase(place, 1);
    decimals = digits.size() - place;
  }

  Whole_Number number() const { return Whole_Number(digits); }

  std::string digits;
  std::size_t decimals = 0;
};

inline std::string Product(const std::string& a, const std::string& b) {
  return (Whole_Number(a) * Whole_Number(b)).text();
}

/// A whole number above 0, often beside a power of ten.
inline std::string Random_Whole(Random_Numbers& random, std::size_t most) {
  const std::size_t length = 1 + random.length(most - 1);
  if (random.one_in(6)) return std::string(length, '9');
  if (random.one_in(6)) return "1" + std::string(length - 1, '0').replace(length / 2, 1, "1");
  return std::to_string(1 + random.below(9)) + random.digits(length - 1);
}

/// Two whole numbers above 0 of up to `most` digits: with a common factor, one a multiple of the
/// other, equal, with zeros at their ends, or next to each other.
inline std::pair<std::string, std::string> Random_Pair(Random_Numbers& random, std::size_t most) {
  const std::size_t half = most / 2;
  std::string a = Random_Whole(random, half);
  std::string b = random.one_in(6) ? a : Random_Whole(random, half);
  const std::string factor =
      Random_Whole(random, random.one_in(3) ? half : std::min(half, std::size_t{12}));
  if (!random.one_in(4)) a = Product(a, factor);
  if (!random.one_in(4)) b = Product(b, factor);
  if (random.one_in(4)) a += std::string(random.below(most - a.size() + 1), '0');
  if (random.one_in(4)) b += std::string(random.below(most - b.size() + 1), '0');
  if (random.one_in(8) && a.back() < '9') (b = a).back() = static_cast<char>(a.back() + 1);
  if (random.one_in(2)) std::swap(a, b);
  return {a, b};
}

}  // namespace quorvex
