// Four lanes of doubles as any machine computes them: in pairs, for which almost every machine has
// registers. For the inclusion of the portable kernels alone.
#pragma once

#if defined(__aarch64__)
#include <arm_neon.h>
#endif

#include <cstddef>
#include <cstdint>

namespace quorvex::native {
namespace {

using Pair = double __attribute__((vector_size(16)));
using Words = std::int64_t __attribute__((vector_size(16)));

struct Lanes {
  static constexpr std::size_t count = 4;
  Pair low;
  Pair high;

  static Lanes Load(const double* from) { return {Pair{from[0], from[1]}, Pair{from[2], from[3]}}; }
  static Lanes All(double value) { return {Pair{value, value}, Pair{value, value}}; }
  void store(double* to) const {
    to[0] = low[0];
    to[1] = low[1];
    to[2] = high[0];
    to[3] = high[1];
  }
};

inline Lanes operator+(Lanes a, Lanes b) {
  return {a.low + b.low, a.high + b.high};
}

inline Lanes operator-(Lanes a, Lanes b) {
  return {a.low - b.low, a.high - b.high};
}

inline Lanes operator*(Lanes a, Lanes b) {
  return {a.low * b.low, a.high * b.high};
}

// a b + c and c - a b, rounded once where every machine of the kind can, else twice.
#if defined(__aarch64__)
inline constexpr bool rounds_once = true;
inline Pair Add_Product(Pair a, Pair b, Pair c) {
  return vfmaq_f64(c, a, b);
}
inline Pair Take_Product(Pair a, Pair b, Pair c) {
  return vfmsq_f64(c, a, b);
}
#else
inline constexpr bool rounds_once = false;
inline Pair Add_Product(Pair a, Pair b, Pair c) {
  return c + a * b;
}
inline Pair Take_Product(Pair a, Pair b, Pair c) {
  return c - a * b;
}
#endif

inline Lanes Add_Product(Lanes a, Lanes b, Lanes c) {
  return {Add_Product(a.low, b.low, c.low), Add_Product(a.high, b.high, c.high)};
}
inline Lanes Take_Product(Lanes a, Lanes b, Lanes c) {
  return {Take_Product(a.low, b.low, c.low), Take_Product(a.high, b.high, c.high)};
}

struct Modulus {
  Lanes p;
  Lanes reciprocal;
};

// The whole number nearest to a product that is below 2^51 in size, by the rounding of a sum.
inline Lanes Nearest_Of(Lanes a, Lanes b) {
  const Lanes magic = Lanes::All(6755399441055744.0);
  return Add_Product(a, b, magic) - magic;
}

inline Lanes Reduce(Lanes a, const Modulus& modulus) {
  return Take_Product(Nearest_Of(a, modulus.reciprocal), modulus.p, a);
}

// The quotient comes from doubles. Where products are rounded once, so does the remainder,
// elsewhere from the low 64 bits of whole numbers, which hold it entirely; the quotient has been
// rounded once more there, so that the remainder can pass the bound by a fifth, and is reduced.
inline Lanes Multiply_Mod(Lanes a, Lanes b, const Modulus& modulus) {
  const Lanes product = a * b;
  const Lanes quotient = Nearest_Of(product, modulus.reciprocal);
  if constexpr (rounds_once) {
    const Lanes lost = Add_Product(a, b, Lanes::All(0) - product);
    return Take_Product(quotient, modulus.p, product) + lost;
  }
  const auto remainder = [](double x, double y, double q, double p) {
    const auto low = [](double value) {
      return static_cast<std::uint64_t>(static_cast<std::int64_t>(value));
    };
    return static_cast<double>(static_cast<std::int64_t>(low(x) * low(y) - low(q) * low(p)));
  };
  const auto remainders = [&remainder](Pair x, Pair y, Pair q, Pair p) {
    return Pair{remainder(x[0], y[0], q[0], p[0]), remainder(x[1], y[1], q[1], p[1])};
  };
  return Reduce({remainders(a.low, b.low, quotient.low, modulus.p.low),
                 remainders(a.high, b.high, quotient.high, modulus.p.high)},
                modulus);
}

// The lanes of `value` where `a` is negative, zero elsewhere.
inline Lanes If_Negative(Lanes a, Lanes value) {
  const auto pair = [](Pair sign, Pair number) {
    return reinterpret_cast<Pair>((sign < Pair{0, 0}) & reinterpret_cast<Words>(number));
  };
  return {pair(a.low, value.low), pair(a.high, value.high)};
}

inline Lanes Add_If_Negative(Lanes a, Lanes b) {
  return a + If_Negative(a, b);
}

// Each lane's neighbour below: the last lane of `before`, then all but the last of `lanes`.
inline Lanes From_Below(Lanes before, Lanes lanes) {
  return {Pair{before.high[1], lanes.low[0]}, Pair{lanes.low[1], lanes.high[0]}};
}

// Neighbours of two runs of lanes, the second of each times a factor, added.
inline Lanes Join_Neighbours(Lanes a, Lanes b, Lanes factor) {
  const Lanes even = {Pair{a.low[0], a.high[0]}, Pair{b.low[0], b.high[0]}};
  const Lanes odd = {Pair{a.low[1], a.high[1]}, Pair{b.low[1], b.high[1]}};
  return even + odd * factor;
}

inline void Transpose_Pairs(Pair& a, Pair& b) {
  const Pair first = {a[0], b[0]};
  b = Pair{a[1], b[1]};
  a = first;
}

inline void Transpose(Lanes (&rows)[Lanes::count]) {
  Transpose_Pairs(rows[0].low, rows[1].low);
  Transpose_Pairs(rows[0].high, rows[1].high);
  Transpose_Pairs(rows[2].low, rows[3].low);
  Transpose_Pairs(rows[2].high, rows[3].high);
  for (std::size_t i = 0; i < 2; ++i) {
    const Pair corner = rows[i].high;
    rows[i].high = rows[i + 2].low;
    rows[i + 2].low = corner;
  }
}

}  // namespace
}  // namespace quorvex::native
