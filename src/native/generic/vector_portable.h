// Four lanes of doubles as any machine computes them. For the inclusion of the portable kernels
// alone.
#pragma once

#include <cstddef>
#include <cstdint>

namespace quorvex::native {
namespace {

struct Lanes {
  static constexpr std::size_t count = 4;
  double lane[count];

  static Lanes Load(const double* from) { return {{from[0], from[1], from[2], from[3]}}; }
  static Lanes All(double value) { return {{value, value, value, value}}; }
  void store(double* to) const {
    for (std::size_t i = 0; i < count; ++i) to[i] = lane[i];
  }
};

inline Lanes operator+(Lanes a, Lanes b) {
  for (std::size_t i = 0; i < Lanes::count; ++i) a.lane[i] += b.lane[i];
  return a;
}

inline Lanes operator-(Lanes a, Lanes b) {
  for (std::size_t i = 0; i < Lanes::count; ++i) a.lane[i] -= b.lane[i];
  return a;
}

inline Lanes operator*(Lanes a, Lanes b) {
  for (std::size_t i = 0; i < Lanes::count; ++i) a.lane[i] *= b.lane[i];
  return a;
}

// a b + c and c - a b, here rounded twice.
inline Lanes Add_Product(Lanes a, Lanes b, Lanes c) {
  return c + a * b;
}
inline Lanes Take_Product(Lanes a, Lanes b, Lanes c) {
  return c - a * b;
}

struct Modulus {
  Lanes p;
  Lanes reciprocal;
};

// To the nearest whole number, by the rounding of a sum.
inline double Nearest(double value) {
  constexpr double magic = 6755399441055744.0;
  return (value + magic) - magic;
}

// The quotient comes from doubles, the remainder from the low 64 bits of whole numbers, which hold
// it entirely.
inline Lanes Multiply_Mod(Lanes a, Lanes b, const Modulus& modulus) {
  for (std::size_t i = 0; i < Lanes::count; ++i) {
    const auto quotient =
        static_cast<std::int64_t>(Nearest(a.lane[i] * b.lane[i] * modulus.reciprocal.lane[i]));
    const auto low = [](auto value) {
      return static_cast<std::uint64_t>(static_cast<std::int64_t>(value));
    };
    const std::uint64_t remainder =
        low(a.lane[i]) * low(b.lane[i]) - low(quotient) * low(modulus.p.lane[i]);
    a.lane[i] = static_cast<double>(static_cast<std::int64_t>(remainder));
  }
  return a;
}

inline Lanes Reduce(Lanes a, const Modulus& modulus) {
  for (std::size_t i = 0; i < Lanes::count; ++i)
    a.lane[i] -= Nearest(a.lane[i] * modulus.reciprocal.lane[i]) * modulus.p.lane[i];
  return a;
}

inline Lanes Add_If_Negative(Lanes a, Lanes b) {
  for (std::size_t i = 0; i < Lanes::count; ++i) a.lane[i] += a.lane[i] < 0 ? b.lane[i] : 0;
  return a;
}

inline void Transpose(Lanes (&rows)[Lanes::count]) {
  for (std::size_t i = 0; i < Lanes::count; ++i) {
    for (std::size_t j = 0; j < i; ++j) {
      const double other = rows[i].lane[j];
      rows[i].lane[j] = rows[j].lane[i];
      rows[j].lane[i] = other;
    }
  }
}

}  // namespace
}  // namespace quorvex::native
