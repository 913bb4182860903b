// The two prime fields that long products are formed in.
//
// A prime c * 2^32 + 1 has roots of unity of every order up to 2^32, the longest transform. Both
// lie just below 2^50, so that products of two remainders can be formed exactly in pairs of doubles
// (the high half and what rounding lost); the proofs of the bounds use p < 0.999 * 2^50.
#pragma once

#include <cstddef>
#include <cstdint>

#include "native/generic/digit_words.h"

namespace quorvex::native {

struct Prime {
  std::uint64_t value;
  std::uint64_t root;  ///< of order 2^32
};

inline constexpr std::size_t prime_count = 2;
inline constexpr Prime primes[prime_count] = {{1'124'753'150'574'593, 488'094'175'907'409},
                                              {1'124'658'661'294'081, 506'231'708'237'329}};

static constexpr std::uint64_t Multiply_Mod(std::uint64_t a, std::uint64_t b, std::uint64_t p) {
  return static_cast<std::uint64_t>(Wide{a} * b % p);
}

static constexpr std::uint64_t Power_Mod(std::uint64_t base, std::uint64_t exponent,
                                         std::uint64_t p) {
  std::uint64_t power = 1;
  for (; exponent > 0; exponent >>= 1U) {
    if ((exponent & 1U) != 0) power = Multiply_Mod(power, base, p);
    base = Multiply_Mod(base, base, p);
  }
  return power;
}

static constexpr std::uint64_t Inverse_Mod(std::uint64_t a, std::uint64_t p) {
  return Power_Mod(a, p - 2, p);
}

/// The remainder of least absolute value, from -p/2 to p/2.
static constexpr double Balanced(std::uint64_t remainder, std::uint64_t p) {
  return remainder > p / 2 ? -static_cast<double>(p - remainder) : static_cast<double>(remainder);
}

static_assert(Power_Mod(primes[0].root, std::uint64_t{1} << 31U, primes[0].value) ==
              primes[0].value - 1);
static_assert(Power_Mod(primes[1].root, std::uint64_t{1} << 31U, primes[1].value) ==
              primes[1].value - 1);

/// How the digits of operands are cut into points, and the most points that the shorter operand
/// may have. A coefficient of the product is the sum of at most so many products of two points, so
/// it stays below count * (10^digits - 1)^2, which must be below the product of the primes for the
/// remainders to tell it exactly.
struct Cut {
  std::size_t digits;
  std::uint64_t base;
  std::size_t most_points;
};

inline constexpr Cut cuts[] = {{12, 1'000'000'000'000, 1'264'000},
                               {10, 10'000'000'000, 500'000'000}};

static constexpr bool Is_Exact(const Cut& cut) {
  const Wide square = Wide{cut.base - 1} * (cut.base - 1);
  return square <= (Wide{primes[0].value} * primes[1].value - 1) / cut.most_points;
}

// 500,000,000 points of ten digits are more than the 2^31 digits that an operand may have.
static_assert(Is_Exact(cuts[0]) && Is_Exact(cuts[1]));

}  // namespace quorvex::native
