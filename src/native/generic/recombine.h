// From the remainders of a product's coefficients by two primes to the points of the product. Has
// no part of its own in any kind of instructions but Lanes, which is included first.
#pragma once

#include "native/generic/field.h"

namespace quorvex::native {
namespace {

// From balanced remainders, up to 6p in size, by the two primes to c1 and t from 0 to p, where the
// coefficient is c1 + p1 t.
inline void Join_Remainders(double* c1, double* c2, std::size_t count) {
  constexpr std::uint64_t p1 = primes[0].value;
  constexpr std::uint64_t p2 = primes[1].value;
  constexpr double inverse = Balanced(Inverse_Mod(p1 % p2, p2), p2);
  const Modulus first{Lanes::All(double{p1}), Lanes::All(1 / double{p1})};
  const Modulus second{Lanes::All(double{p2}), Lanes::All(1 / double{p2})};
  for (std::size_t i = 0; i < count; i += Lanes::count) {
    const Lanes a = Add_If_Negative(Reduce(Lanes::Load(c1 + i), first), first.p);
    const Lanes b = Reduce(Lanes::Load(c2 + i), second);
    const Lanes t = Multiply_Mod(b - a, Lanes::All(inverse), second);
    a.store(c1 + i);
    Add_If_Negative(t, second.p).store(c2 + i);
  }
}

// Division of coefficients below 2^(63 + shift) by the base, by its reciprocal
// 2^(64 + shift) / base. The quotient found is at most two too small.
template <std::uint64_t base, unsigned shift>
inline std::uint64_t Divide_Coefficient(Wide coefficient, std::uint64_t& rest) {
  constexpr auto reciprocal = static_cast<std::uint64_t>((Wide{1} << (64 + shift)) / base);
  const auto high = static_cast<std::uint64_t>(coefficient >> shift);
  auto quotient = static_cast<std::uint64_t>((Wide{high} * reciprocal) >> 64U);
  rest = static_cast<std::uint64_t>(coefficient) - quotient * base;
  for (int i = 0; i < 2; ++i) {
    const bool is_short = rest >= base;
    quotient += is_short ? 1 : 0;
    rest -= is_short ? base : 0;
  }
  return quotient;
}

// The points stand in c1 afterwards. What is carried stays below 2^62: coefficients are below
// 2^100 for points of twelve digits and 2^96 for ten.
template <std::uint64_t base, unsigned shift>
inline void Carry_Points(double* c1, const double* c2, std::size_t count) {
  std::uint64_t carry = 0;
  for (std::size_t i = 0; i < count; ++i) {
    const Wide coefficient = Wide{static_cast<std::uint64_t>(c2[i])} * primes[0].value +
                             static_cast<std::uint64_t>(c1[i]);
    std::uint64_t rest = 0;
    const std::uint64_t quotient = Divide_Coefficient<base, shift>(coefficient, rest);
    rest += carry;
    const std::uint64_t more = rest / base;
    carry = quotient + more;
    c1[i] = static_cast<double>(rest - more * base);
  }
}

// Remainders in both arrays become points in the first.
inline void Recombine(double* c1, double* c2, std::size_t count, const Cut& cut) {
  const std::size_t whole = (count + Lanes::count - 1) / Lanes::count * Lanes::count;
  Join_Remainders(c1, c2, whole);
  if (cut.digits == cuts[0].digits) {
    Carry_Points<cuts[0].base, 38>(c1, c2, count);
  } else {
    Carry_Points<cuts[1].base, 33>(c1, c2, count);
  }
}

}  // namespace
}  // namespace quorvex::native
