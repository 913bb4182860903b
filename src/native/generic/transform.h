// The number-theoretic transform over vectors of any kind: Lanes and Modulus come from the header
// of one kind, which is included first. Everything here belongs to one source file, so that no
// code for one kind of machine is ever linked in place of another's.
//
// Forward, each step splits remainders by x^n - w^2 into those by x^(n/2) - w and x^(n/2) + w;
// backward, it joins them, times two. No step puts anything into another order: the products of
// transforms are formed in the order that arises.
//
// Bounds. A product a w of Multiply_Mod, with |w| <= p/2, is exact and at most
// (1/2 + |a w|/p / 2^52) p for |a| <= 4p: rounding misses a w / p by less than |a w|/p / 2^52, and
// the quotient stays within the 2^51 that rounding by a sum can do. So |a| <= 4p gives at most p,
// |a| <= 2p at most 3/4 p. Reduce gives at most p/2 and a trifle.
#pragma once

#include "native/generic/field.h"
#include "native/generic/length.h"
#include "native/generic/twiddles.h"

namespace quorvex::native {
namespace {

inline constexpr std::size_t block_size = Lanes::count * Lanes::count;

// Transforms of up to this many points (32 KiB) are gone through level by level, longer ones part
// by part.
inline constexpr std::size_t near_points = 4096;

inline Modulus Modulus_Of(const Twiddles& tables) {
  return {Lanes::All(tables.prime), Lanes::All(tables.reciprocal)};
}

inline double Single_Product(double a, double b, const Modulus& modulus) {
  alignas(64) double lanes[Lanes::count];
  Multiply_Mod(Lanes::All(a), Lanes::All(b), modulus).store(lanes);
  return lanes[0];
}

// The powers of the root, beyond the ends of the tables too.
class Powers {
 public:
  explicit Powers(const Twiddles& tables) : tables_(tables), modulus(Modulus_Of(tables)) {}

  Lanes single(std::size_t j) const {
    if (j < tabled_singles) return Lanes::All(tables_.singles[j]);
    return Lanes::All(
        Single_Product(tables_.singles[j % tabled_singles], high(j / tabled_singles), modulus));
  }

  // Whether both tables have all that one block needs.
  static bool are_tabled(std::size_t block) {
    return block < tabled_points / block_size && Lanes::count * block < tabled_singles;
  }

  const double* singles() const { return tables_.singles; }
  const double* vectors(std::size_t block) const {
    constexpr std::size_t blocks = tabled_points / block_size;
    return tables_.vectors + (block % blocks) * Lanes::count * (Lanes::count - 1);
  }

  // One w for each part of each level of a block that is beyond the tables.
  void find_singles(Lanes (&w)[Lanes::count - 1], std::size_t block) const {
    for (std::size_t step = 1, k = 0; step < Lanes::count; step *= 2)
      for (std::size_t m = 0; m < step; ++m) w[k++] = single(step * block + m);
  }

  // The vectors of such a block: each level's are multiplied with the root of the block's high
  // bits, which neighbours share.
  void find_vectors(Lanes (&w)[Lanes::count - 1], std::size_t block) {
    const double* from = vectors(block);
    const std::size_t above = block - block % (tabled_points / block_size);
    if (above != factors_of_) {
      factors_of_ = above;
      for (std::size_t s = 0; (std::size_t{1} << s) < Lanes::count; ++s) {
        factors_[s] = single((Lanes::count * above) << s);
      }
    }
    for (std::size_t s = 0, k = 0; k < Lanes::count - 1; ++s) {
      for (std::size_t m = 0; m < std::size_t{1} << s; ++m, ++k) {
        w[k] = Multiply_Mod(Lanes::Load(from + k * Lanes::count), factors_[s], modulus);
      }
    }
  }

 private:
  double high(std::size_t j) const {
    double product = 1;
    for (std::size_t t = 17; j > 0; ++t, j >>= 1U)
      if ((j & 1U) != 0) product = Single_Product(product, tables_.roots[t], modulus);
    return product;
  }

  const Twiddles& tables_;
  std::size_t factors_of_ = 0;
  Lanes factors_[3] = {};

 public:
  const Modulus modulus;
};

// Where the rows of a block take part m of the level of `parts` parts from: one w of the table, a
// vector of the table, or what was found beyond the tables.
struct Tabled_Singles {
  const double* table;
  std::size_t block;
  Lanes get(std::size_t parts, std::size_t m) const { return Lanes::All(table[parts * block + m]); }
};

struct Tabled_Vectors {
  const double* table;
  Lanes get(std::size_t parts, std::size_t m) const {
    return Lanes::Load(table + (parts - 1 + m) * Lanes::count);
  }
};

struct Found_Lanes {
  Lanes w[Lanes::count - 1];
  Lanes get(std::size_t parts, std::size_t m) const { return w[parts - 1 + m]; }
};

// Splits parts of 2 * half rows down to single ones. Rows that the second level multiplies need no
// reduction before. Inputs of up to 2.4p: they reach 3.3p, the others 1.4p, then 2.3p; the outputs
// are at most 3p. Inputs of up to 3p: 3.9p, 1.4p, 2.4p; the outputs are at most 3.2p.
template <std::size_t half = Lanes::count / 2, typename Source>
inline void Split_Rows(Lanes (&x)[Lanes::count], const Source& w, const Modulus& modulus) {
  constexpr std::size_t parts = Lanes::count / (2 * half);
#pragma GCC unroll 4
  for (std::size_t i = 0; i < Lanes::count / 2; ++i) {
    const std::size_t at = i / half * (2 * half) + i % half;
    const Lanes left = parts == 1 && at < Lanes::count / 4 ? Reduce(x[at], modulus) : x[at];
    const Lanes right = Multiply_Mod(x[at + half], w.get(parts, i / half), modulus);
    x[at] = left + right;
    x[at + half] = left - right;
  }
  if constexpr (half > 1) Split_Rows<half / 2>(x, w, modulus);
}

// Joins single rows: inputs of up to p, outputs too. Sums are reduced from the second level on, so
// that no difference passes 4p.
template <std::size_t half = 1, typename Source>
inline void Join_Rows(Lanes (&x)[Lanes::count], const Source& w, const Modulus& modulus) {
  constexpr std::size_t parts = Lanes::count / (2 * half);
#pragma GCC unroll 4
  for (std::size_t i = 0; i < Lanes::count / 2; ++i) {
    const std::size_t at = i / half * (2 * half) + i % half;
    const Lanes difference = x[at] - x[at + half];
    const Lanes sum = x[at] + x[at + half];
    x[at] = half == 1 ? sum : Reduce(sum, modulus);
    x[at + half] = Multiply_Mod(difference, w.get(parts, i / half), modulus);
  }
  if constexpr (half < Lanes::count / 2) Join_Rows<2 * half>(x, w, modulus);
}

inline void Load_Rows(Lanes (&rows)[Lanes::count], const double* x) {
  for (std::size_t i = 0; i < Lanes::count; ++i) rows[i] = Lanes::Load(x + i * Lanes::count);
}

inline void Store_Rows(const Lanes (&rows)[Lanes::count], double* x) {
  for (std::size_t i = 0; i < Lanes::count; ++i) rows[i].store(x + i * Lanes::count);
}

// A block of lanes * lanes points: between rows, then turned, between rows again. It stays turned.
template <typename Singles, typename Vectors>
inline void Split_Block(double* x, const Singles& singles, const Vectors& vectors,
                        const Modulus& modulus) {
  Lanes rows[Lanes::count];
  Load_Rows(rows, x);
  Split_Rows(rows, singles, modulus);
  Transpose(rows);
  Split_Rows(rows, vectors, modulus);
  Store_Rows(rows, x);
}

template <typename Singles, typename Vectors>
inline void Join_Block(double* x, const Singles& singles, const Vectors& vectors,
                       const Modulus& modulus) {
  Lanes rows[Lanes::count];
  Load_Rows(rows, x);
  Join_Rows(rows, vectors, modulus);
  Transpose(rows);
  Join_Rows(rows, singles, modulus);
  Store_Rows(rows, x);
}

inline void Split_Block(double* x, std::size_t index, Powers& powers) {
  if (Powers::are_tabled(index)) {
    return Split_Block(x, Tabled_Singles{powers.singles(), index},
                       Tabled_Vectors{powers.vectors(index)}, powers.modulus);
  }
  Found_Lanes singles;
  Found_Lanes vectors;
  powers.find_singles(singles.w, index);
  powers.find_vectors(vectors.w, index);
  Split_Block(x, singles, vectors, powers.modulus);
}

inline void Join_Block(double* x, std::size_t index, Powers& powers) {
  if (Powers::are_tabled(index)) {
    return Join_Block(x, Tabled_Singles{powers.singles(), index},
                      Tabled_Vectors{powers.vectors(index)}, powers.modulus);
  }
  Found_Lanes singles;
  Found_Lanes vectors;
  powers.find_singles(singles.w, index);
  powers.find_vectors(vectors.w, index);
  Join_Block(x, singles, vectors, powers.modulus);
}

// Inputs of up to 3p, outputs of up to 1.4p.
inline void Split_In_Two(double* x, std::size_t size, std::size_t index, const Powers& powers) {
  const Lanes w = powers.single(index);
  const std::size_t half = size / 2;
  for (std::size_t i = 0; i < half; i += Lanes::count) {
    const Lanes left = Reduce(Lanes::Load(x + i), powers.modulus);
    const Lanes right = Multiply_Mod(Lanes::Load(x + half + i), w, powers.modulus);
    (left + right).store(x + i);
    (left - right).store(x + half + i);
  }
}

// Inputs of up to p, outputs too.
inline void Join_Two(double* x, std::size_t size, std::size_t index, const Powers& powers) {
  const Lanes w = powers.single(index);
  const std::size_t half = size / 2;
  for (std::size_t i = 0; i < half; i += Lanes::count) {
    const Lanes left = Lanes::Load(x + i);
    const Lanes right = Lanes::Load(x + half + i);
    Reduce(left + right, powers.modulus).store(x + i);
    Multiply_Mod(left - right, w, powers.modulus).store(x + half + i);
  }
}

// Two levels at once. Inputs of up to 2.9p: at the first level a is at most 1.4p, b 3.8p, and the
// outputs are at most 2.4p.
inline void Split_In_Four(double* x, std::size_t size, std::size_t index, const Powers& powers) {
  const Modulus modulus = powers.modulus;
  const Lanes w1 = powers.single(index);
  const Lanes w2 = powers.single(2 * index);
  const Lanes w3 = powers.single(2 * index + 1);
  const std::size_t quarter = size / 4;
  for (std::size_t i = 0; i < quarter; i += Lanes::count) {
    const Lanes a = Reduce(Lanes::Load(x + i), modulus);
    const Lanes b = Lanes::Load(x + quarter + i);
    const Lanes c = Multiply_Mod(Lanes::Load(x + 2 * quarter + i), w1, modulus);
    const Lanes d = Multiply_Mod(Lanes::Load(x + 3 * quarter + i), w1, modulus);
    const Lanes e = Multiply_Mod(b + d, w2, modulus);
    const Lanes f = Multiply_Mod(b - d, w3, modulus);
    (a + c + e).store(x + i);
    (a + c - e).store(x + quarter + i);
    (a - c + f).store(x + 2 * quarter + i);
    (a - c - f).store(x + 3 * quarter + i);
  }
}

// The first node of all splits by 1, 1 and i. Inputs of up to 3p, outputs of up to 2p.
inline void Split_First_In_Four(double* x, std::size_t size, const Powers& powers) {
  const Modulus modulus = powers.modulus;
  const Lanes w3 = powers.single(1);
  const std::size_t quarter = size / 4;
  for (std::size_t i = 0; i < quarter; i += Lanes::count) {
    const Lanes a = Reduce(Lanes::Load(x + i), modulus);
    const Lanes b = Reduce(Lanes::Load(x + quarter + i), modulus);
    const Lanes c = Reduce(Lanes::Load(x + 2 * quarter + i), modulus);
    const Lanes d = Reduce(Lanes::Load(x + 3 * quarter + i), modulus);
    const Lanes e = b + d;
    const Lanes f = Multiply_Mod(b - d, w3, modulus);
    (a + c + e).store(x + i);
    (a + c - e).store(x + quarter + i);
    (a - c + f).store(x + 2 * quarter + i);
    (a - c - f).store(x + 3 * quarter + i);
  }
}

// Inputs of up to p, outputs too: sums of two are at most 2p, of four 4p, differences that are
// multiplied 4p at most.
inline void Join_Four(double* x, std::size_t size, std::size_t index, const Powers& powers) {
  const Modulus modulus = powers.modulus;
  const Lanes w1 = powers.single(index);
  const Lanes w2 = powers.single(2 * index);
  const Lanes w3 = powers.single(2 * index + 1);
  const std::size_t quarter = size / 4;
  for (std::size_t i = 0; i < quarter; i += Lanes::count) {
    const Lanes a = Lanes::Load(x + i);
    const Lanes b = Lanes::Load(x + quarter + i);
    const Lanes c = Lanes::Load(x + 2 * quarter + i);
    const Lanes d = Lanes::Load(x + 3 * quarter + i);
    const Lanes e = Multiply_Mod(a - b, w2, modulus);
    const Lanes f = Multiply_Mod(c - d, w3, modulus);
    Reduce(a + b + (c + d), modulus).store(x + i);
    Reduce(e + f, modulus).store(x + quarter + i);
    Multiply_Mod(a + b - (c + d), w1, modulus).store(x + 2 * quarter + i);
    Multiply_Mod(e - f, w1, modulus).store(x + 3 * quarter + i);
  }
}

inline void Split_Near(double* x, std::size_t size, std::size_t index, Powers& powers) {
  std::size_t part = size;
  std::size_t parts = 1;
  for (; part >= 4 * block_size; part /= 4, parts *= 4) {
    for (std::size_t k = 0; k < parts; ++k)
      Split_In_Four(x + k * part, part, index * parts + k, powers);
  }
  if (part > block_size) {
    for (std::size_t k = 0; k < parts; ++k)
      Split_In_Two(x + k * part, part, index * parts + k, powers);
    parts *= 2;
  }
  for (std::size_t k = 0; k < parts; ++k)
    Split_Block(x + k * block_size, index * parts + k, powers);
}

inline void Join_Near(double* x, std::size_t size, std::size_t index, Powers& powers) {
  std::size_t part = block_size;
  std::size_t parts = size / block_size;
  for (std::size_t k = 0; k < parts; ++k) Join_Block(x + k * block_size, index * parts + k, powers);
  bool is_odd = false;
  for (std::size_t rest = parts; rest > 1; rest /= 2) is_odd = !is_odd;
  if (is_odd) {
    part *= 2;
    parts /= 2;
    for (std::size_t k = 0; k < parts; ++k) Join_Two(x + k * part, part, index * parts + k, powers);
  }
  while (part < size) {
    part *= 4;
    parts /= 4;
    for (std::size_t k = 0; k < parts; ++k)
      Join_Four(x + k * part, part, index * parts + k, powers);
  }
}

inline void Split_All(double* x, std::size_t size, std::size_t index, Powers& powers) {
  if (size <= near_points) return Split_Near(x, size, index, powers);
  if (index == 0) {
    Split_First_In_Four(x, size, powers);
  } else {
    Split_In_Four(x, size, index, powers);
  }
  for (std::size_t k = 0; k < 4; ++k)
    Split_All(x + k * (size / 4), size / 4, 4 * index + k, powers);
}

inline void Join_All(double* x, std::size_t size, std::size_t index, Powers& powers) {
  if (size <= near_points) return Join_Near(x, size, index, powers);
  for (std::size_t k = 0; k < 4; ++k) Join_All(x + k * (size / 4), size / 4, 4 * index + k, powers);
  Join_Four(x, size, index, powers);
}

}  // namespace
}  // namespace quorvex::native
