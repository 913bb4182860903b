// Writes the decimals of the four constants as the source that the engine is built with.
//
// It runs when the engine is built and knows nothing of it: fixed-point numbers of 9-digit limbs,
// the limb before the point first, and series of which each term is a short division.
#include <cstddef>
#include <cstdint>
#include <fstream>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr std::int64_t base = 1'000'000'000;
constexpr std::size_t limb_digits = 9;
// What 15,000 terms lose by being cut, times their factors, is a number of eight digits.
constexpr std::size_t guard_limbs = 3;

class Fixed_Point {
 public:
  explicit Fixed_Point(std::size_t decimals)
      : limbs_(1 + decimals / limb_digits + guard_limbs), decimals_(decimals) {}

  /// Adds `factor` times the arc tangent of 1/x or, with `hyperbolic`, its area tangent.
  void add_inverse_tangent(std::int64_t factor, std::int64_t x, bool hyperbolic) {
    std::vector<std::int64_t> power(limbs_.size());
    power.front() = factor < 0 ? -factor : factor;
    divide(power, 0, x);
    std::int64_t sign = factor < 0 ? -1 : 1;
    std::size_t first = 0;
    for (std::int64_t n = 1; first < power.size(); n += 2) {
      add_term(power, first, n * sign, x * x);
      if (!hyperbolic) sign = -sign;
      while (first < power.size() && power[first] == 0) ++first;
    }
    carry();
  }

  /// Adds the sum of 1/n! over all n from 0.
  void add_reciprocal_factorials() {
    std::vector<std::int64_t> term(limbs_.size());
    term.front() = 1;
    std::size_t first = 0;
    for (std::int64_t n = 1; first < term.size(); ++n) {
      for (std::size_t i = first; i < term.size(); ++i) limbs_[i] += term[i];
      divide(term, first, n);
      while (first < term.size() && term[first] == 0) ++first;
    }
    carry();
  }

  void round() {
    std::int64_t half = 5;
    const std::size_t place = decimals_ % limb_digits;
    for (std::size_t i = place + 1; i < limb_digits; ++i) half *= 10;
    limbs_[1 + decimals_ / limb_digits] += half;
    carry();
  }

  /// The decimals, cut.
  std::string decimals() const {
    std::string text;
    for (std::size_t i = 1; i < limbs_.size(); ++i) {
      const std::string digits = std::to_string(limbs_[i]);
      text.append(limb_digits - digits.size(), '0').append(digits);
    }
    text.resize(decimals_);
    return text;
  }

 private:
  static void divide(std::vector<std::int64_t>& limbs, std::size_t first, std::int64_t divisor) {
    std::int64_t rest = 0;
    for (std::size_t i = first; i < limbs.size(); ++i) {
      const std::int64_t value = rest * base + limbs[i];
      limbs[i] = value / divisor;
      rest = value % divisor;
    }
  }

  // Adds power / n and divides the power for the next term: the two divisions don't wait for each
  // other. The sum's limbs are carried at the end of the series.
  void add_term(std::vector<std::int64_t>& power, std::size_t first, std::int64_t n,
                std::int64_t step) {
    const std::int64_t sign = n < 0 ? -1 : 1;
    const std::int64_t divisor = n * sign;
    std::int64_t term_rest = 0;
    std::int64_t power_rest = 0;
    for (std::size_t i = first; i < power.size(); ++i) {
      const std::int64_t term = term_rest * base + power[i];
      limbs_[i] += sign * (term / divisor);
      term_rest = term % divisor;
      const std::int64_t next = power_rest * base + power[i];
      power[i] = next / step;
      power_rest = next % step;
    }
  }

  void carry() {
    std::int64_t carried = 0;
    for (std::size_t i = limbs_.size(); i-- > 0;) {
      std::int64_t limb = limbs_[i] + carried;
      carried = limb / base;
      limb %= base;
      if (limb < 0) {
        limb += base;
        --carried;
      }
      limbs_[i] = limb;
    }
  }

  std::vector<std::int64_t> limbs_;
  std::size_t decimals_;
};

constexpr std::size_t longest_cell_text = 32767;

// pi and e are rounded in their last decimal, the logarithms are cut. Results of full length have
// always ended so, and worksheets compare them.
std::string Pi() {
  constexpr std::int64_t quarters = 4;
  Fixed_Point pi(longest_cell_text - 1);
  pi.add_inverse_tangent(quarters * 44, 57, false);
  pi.add_inverse_tangent(quarters * 7, 239, false);
  pi.add_inverse_tangent(quarters * -12, 682, false);
  pi.add_inverse_tangent(quarters * 24, 12943, false);
  pi.round();
  return pi.decimals();
}

std::string E() {
  Fixed_Point e(longest_cell_text - 1);
  e.add_reciprocal_factorials();
  e.round();
  return e.decimals();
}

std::string Ln2() {
  Fixed_Point ln2(40'050);
  ln2.add_inverse_tangent(18, 26, true);
  ln2.add_inverse_tangent(-2, 4801, true);
  ln2.add_inverse_tangent(8, 8749, true);
  return ln2.decimals();
}

std::string Ln10() {
  Fixed_Point ln10(41'000);
  ln10.add_inverse_tangent(46, 31, true);
  ln10.add_inverse_tangent(34, 49, true);
  ln10.add_inverse_tangent(20, 161, true);
  return ln10.decimals();
}

void Write(std::ostream& out, std::string_view name, const std::string& decimals) {
  constexpr std::size_t line = 90;
  out << "const std::string_view " << name << " =";
  for (std::size_t i = 0; i < decimals.size(); i += line) {
    out << "\n    \"" << decimals.substr(i, line) << '"';
  }
  out << ";\n";
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: generate FILE\n";
    return 2;
  }
  std::ofstream out(argv[1]);
  out << "// Written by the build.\n#include \"elementary/digits/digits.h\"\n\n"
      << "namespace quorvex::digits {\n";
  Write(out, "pi", Pi());
  Write(out, "e", E());
  Write(out, "ln2", Ln2());
  Write(out, "ln10", Ln10());
  out << "}  // namespace quorvex::digits\n";
  out.close();
  if (!out) std::cerr << "can't write " << argv[1] << '\n';
  return out ? 0 : 1;
}
