// The Fourier transform of complex points over vectors of any kind: Lanes comes from the header of
// one kind, which is included first. Everything here belongs to one source file, as in transform.h.
//
// Forward, each step splits remainders by x^n - u^2 into those by x^(n/2) - u and x^(n/2) + u, see
// wave_roots.h; backward, it joins them, times two. Points stand in runs of as many real parts as a
// vector has lanes and then their imaginary parts.
#pragma once

#include "native/generic/wave_length.h"
#include "native/generic/wave_roots.h"

namespace quorvex::native {
namespace {

// Transforms of up to this many points (32 KiB) are gone through level by level, longer ones part
// by part.
inline constexpr std::size_t near_wave_points = 2048;

inline constexpr std::size_t wave_block = Lanes::count * Lanes::count;

struct Complex {
  Lanes re;
  Lanes im;

  static Complex Load(const double* from) {
    return {Lanes::Load(from), Lanes::Load(from + Lanes::count)};
  }
  static Complex All(const double* value) { return {Lanes::All(value[0]), Lanes::All(value[1])}; }
  void store(double* to) const {
    re.store(to);
    im.store(to + Lanes::count);
  }
};

inline Complex operator+(Complex a, Complex b) {
  return {a.re + b.re, a.im + b.im};
}
inline Complex operator-(Complex a, Complex b) {
  return {a.re - b.re, a.im - b.im};
}
inline Complex operator*(Complex a, Complex b) {
  return {Take_Product(a.im, b.im, a.re * b.re), Add_Product(a.im, b.re, a.re * b.im)};
}

// a b with the conjugate of b.
inline Complex Multiply_Back(Complex a, Complex b) {
  return {Add_Product(a.im, b.im, a.re * b.re), Take_Product(a.re, b.im, a.im * b.re)};
}

// a + i b and a - i b.
inline Complex Add_Turned(Complex a, Complex b) {
  return {a.re - b.im, a.im + b.re};
}
inline Complex Take_Turned(Complex a, Complex b) {
  return {a.re + b.im, a.im - b.re};
}

struct Node_Factors {
  Complex square;  ///< v^2
  Complex first;   ///< v
  Complex cube;    ///< v^3

  static Node_Factors All(const double* from) {
    return {Complex::All(from), Complex::All(from + 2), Complex::All(from + 4)};
  }
};

inline void Split_Four(Complex& a, Complex& b, Complex& c, Complex& d, const Node_Factors& w) {
  const Complex second = c * w.square;
  const Complex first = b * w.first;
  const Complex third = d * w.cube;
  const Complex even_sum = a + second;
  const Complex even_rest = a - second;
  const Complex odd_sum = first + third;
  const Complex odd_rest = first - third;
  a = even_sum + odd_sum;
  b = even_sum - odd_sum;
  c = Add_Turned(even_rest, odd_rest);
  d = Take_Turned(even_rest, odd_rest);
}

inline void Join_Four(Complex& a, Complex& b, Complex& c, Complex& d, const Node_Factors& w) {
  const Complex even_sum = a + b;
  const Complex odd_sum = a - b;
  const Complex even_rest = c + d;
  const Complex odd_turned = c - d;
  a = even_sum + even_rest;
  b = Multiply_Back(Take_Turned(odd_sum, odd_turned), w.first);
  c = Multiply_Back(even_sum - even_rest, w.square);
  d = Multiply_Back(Add_Turned(odd_sum, odd_turned), w.cube);
}

inline void Split_Two(Complex& a, Complex& b, const Complex& w) {
  const Complex right = b * w;
  b = a - right;
  a = a + right;
}

inline void Join_Two(Complex& a, Complex& b, const Complex& w) {
  const Complex difference = a - b;
  a = a + b;
  b = Multiply_Back(difference, w);
}

// What splits rows down to single ones: eight rows are four parts of two, of which the second and
// the fourth have i times the factor of the one before them.
struct Row_Factors {
  Node_Factors node;
  Complex left;
  Complex right;
};

// With factors that are the same for all lanes of a row, step 1, or differ.
template <std::size_t step>
Row_Factors Load_Factors(const double* from) {
  const auto get = [from](std::size_t k) {
    if constexpr (step == 1) return Complex::All(from + 2 * k);
    if constexpr (step != 1) return Complex::Load(from + 2 * step * k);
  };
  Row_Factors w = {{get(0), get(1), get(2)}, {}, {}};
  if constexpr (Lanes::count == 8) {
    w.left = get(3);
    w.right = get(4);
  }
  return w;
}

inline void Split_Rows(Complex (&x)[Lanes::count], const Row_Factors& w) {
  if constexpr (Lanes::count == 4) {
    Split_Four(x[0], x[1], x[2], x[3], w.node);
  } else {
    Split_Four(x[0], x[2], x[4], x[6], w.node);
    Split_Four(x[1], x[3], x[5], x[7], w.node);
    for (std::size_t k = 0; k < 8; k += 4) {
      const Complex factor = k == 0 ? w.left : w.right;
      const Complex even = x[k + 1] * factor;
      const Complex odd = x[k + 3] * factor;
      x[k + 1] = x[k] - even;
      x[k] = x[k] + even;
      x[k + 3] = Take_Turned(x[k + 2], odd);
      x[k + 2] = Add_Turned(x[k + 2], odd);
    }
  }
}

inline void Join_Rows(Complex (&x)[Lanes::count], const Row_Factors& w) {
  if constexpr (Lanes::count == 4) {
    Join_Four(x[0], x[1], x[2], x[3], w.node);
  } else {
    for (std::size_t k = 0; k < 8; k += 4) {
      const Complex factor = k == 0 ? w.left : w.right;
      const Complex even = x[k] - x[k + 1];
      const Complex odd = x[k + 2] - x[k + 3];
      x[k] = x[k] + x[k + 1];
      x[k + 1] = Multiply_Back(even, factor);
      x[k + 2] = x[k + 2] + x[k + 3];
      // -i times the product
      const Complex turned = Multiply_Back(odd, factor);
      x[k + 3] = {turned.im, Lanes::All(0) - turned.re};
    }
    Join_Four(x[0], x[2], x[4], x[6], w.node);
    Join_Four(x[1], x[3], x[5], x[7], w.node);
  }
}

inline void Transpose(Complex (&x)[Lanes::count]) {
  Lanes part[Lanes::count];
  for (std::size_t i = 0; i < Lanes::count; ++i) part[i] = x[i].re;
  Transpose(part);
  for (std::size_t i = 0; i < Lanes::count; ++i) x[i].re = part[i];
  for (std::size_t i = 0; i < Lanes::count; ++i) part[i] = x[i].im;
  Transpose(part);
  for (std::size_t i = 0; i < Lanes::count; ++i) x[i].im = part[i];
}

// Vectors of as many parts of `size` points in all; a point takes two doubles.
template <std::size_t count>
void Load_Parts(Complex (&parts)[count], const double* x, std::size_t size) {
  for (std::size_t k = 0; k < count; ++k) parts[k] = Complex::Load(x + 2 * k * (size / count));
}

template <std::size_t count>
void Store_Parts(const Complex (&parts)[count], double* x, std::size_t size) {
  for (std::size_t k = 0; k < count; ++k) parts[k].store(x + 2 * k * (size / count));
}

struct Block_Roots {
  const double* rows;
  const double* columns;
};

// A block of lanes * lanes points: between rows, then turned, between rows again. It stays turned.
inline void Split_Block(Complex (&rows)[Lanes::count], const double* x, const Block_Roots& roots) {
  Load_Parts(rows, x, wave_block);
  Split_Rows(rows, Load_Factors<1>(roots.rows));
  Transpose(rows);
  Split_Rows(rows, Load_Factors<Lanes::count>(roots.columns));
}

inline void Join_Block(Complex (&rows)[Lanes::count], double* x, const Block_Roots& roots) {
  Join_Rows(rows, Load_Factors<Lanes::count>(roots.columns));
  Transpose(rows);
  Join_Rows(rows, Load_Factors<1>(roots.rows));
  Store_Parts(rows, x, wave_block);
}

// The passes over the parts of a node, of `size` points in all.
template <std::size_t count>
void Split_At_Once(Complex (&parts)[count], const Row_Factors& w) {
  if constexpr (count == 2) Split_Two(parts[0], parts[1], w.node.square);
  if constexpr (count == 4) Split_Four(parts[0], parts[1], parts[2], parts[3], w.node);
  if constexpr (count == 8) Split_Rows(parts, w);
}

template <std::size_t count>
void Join_At_Once(Complex (&parts)[count], const Row_Factors& w) {
  if constexpr (count == 2) Join_Two(parts[0], parts[1], w.node.square);
  if constexpr (count == 4) Join_Four(parts[0], parts[1], parts[2], parts[3], w.node);
  if constexpr (count == 8) Join_Rows(parts, w);
}

template <std::size_t count>
void Split_Parts(double* x, std::size_t size, const double* factors) {
  const Row_Factors w = Load_Factors<1>(factors);
  for (std::size_t i = 0; i < 2 * size / count; i += 2 * Lanes::count) {
    Complex parts[count];
    Load_Parts(parts, x + i, size);
    Split_At_Once(parts, w);
    Store_Parts(parts, x + i, size);
  }
}

template <std::size_t count>
void Join_Parts(double* x, std::size_t size, const double* factors) {
  const Row_Factors w = Load_Factors<1>(factors);
  for (std::size_t i = 0; i < 2 * size / count; i += 2 * Lanes::count) {
    Complex parts[count];
    Load_Parts(parts, x + i, size);
    Join_At_Once(parts, w);
    Store_Parts(parts, x + i, size);
  }
}

// Into how many parts a node is split at once, until only blocks are left: as many as there are
// lanes where that leaves no single level.
inline std::size_t Parts_Of(std::size_t size) {
  const std::size_t blocks = size / wave_block;
  if (blocks == 2) return 2;
  return blocks == 4 || blocks == 16 ? 4 : Lanes::count;
}

inline void Split_Node(double* x, std::size_t size, const double* factors) {
  switch (Parts_Of(size)) {
    case 2:
      return Split_Parts<2>(x, size, factors);
    case 4:
      return Split_Parts<4>(x, size, factors);
    default:
      return Split_Parts<Lanes::count>(x, size, factors);
  }
}

inline void Join_Node(double* x, std::size_t size, const double* factors) {
  switch (Parts_Of(size)) {
    case 2:
      return Join_Parts<2>(x, size, factors);
    case 4:
      return Join_Parts<4>(x, size, factors);
    default:
      return Join_Parts<Lanes::count>(x, size, factors);
  }
}

inline const double* Factors_Of(const Wave_Roots& roots, std::size_t node) {
  return roots.nodes + 10 * node;
}

// One piece: where its blocks stand among the tables.
class Wave {
 public:
  Wave(const Wave_Roots& roots, std::size_t points) : roots_(roots), blocks_(points / wave_block) {}

  // A node that is not near has been split once before.
  void split(double* x, std::size_t size, std::size_t node) const {
    if (size <= near_wave_points) return split_near(x, size, node);
    const std::size_t parts = Parts_Of(size);
    const std::size_t part = size / parts;
    for (std::size_t k = 0; k < parts; ++k) {
      double* const at = x + 2 * k * part;
      if (part > near_wave_points) Split_Node(at, part, factors(parts * node + k));
      split(at, part, parts * node + k);
    }
  }

  // x = x y, with y split before; null for the square of x.
  void multiply(double* x, const double* y, std::size_t size, std::size_t node) const {
    if (size <= near_wave_points) return multiply_near(x, y, size, node);
    const std::size_t parts = Parts_Of(size);
    const std::size_t part = size / parts;
    for (std::size_t k = 0; k < parts; ++k) {
      const std::size_t at = 2 * k * part;
      if (part > near_wave_points) Split_Node(x + at, part, factors(parts * node + k));
      multiply(x + at, y == nullptr ? nullptr : y + at, part, parts * node + k);
    }
    Join_Node(x, size, factors(node));
  }

 private:
  const double* factors(std::size_t node) const { return Factors_Of(roots_, node); }

  Block_Roots block_roots(std::size_t size, std::size_t node, std::size_t at) const {
    const std::size_t block = node * (size / wave_block) - blocks_ + at / wave_block;
    constexpr std::size_t doubles = 2 * Block_Factors(Lanes::count);
    return {roots_.rows + block * doubles, roots_.columns + block * doubles * Lanes::count};
  }

  void split_near(double* x, std::size_t size, std::size_t node) const {
    split_levels(x, size, node);
    for (std::size_t at = 0; at < size; at += wave_block) {
      Complex rows[Lanes::count];
      Split_Block(rows, x + 2 * at, block_roots(size, node, at));
      Store_Parts(rows, x + 2 * at, wave_block);
    }
  }

  void multiply_near(double* x, const double* y, std::size_t size, std::size_t node) const {
    split_levels(x, size, node);
    for (std::size_t at = 0; at < size; at += wave_block) {
      const Block_Roots roots = block_roots(size, node, at);
      Complex rows[Lanes::count];
      Split_Block(rows, x + 2 * at, roots);
      for (std::size_t i = 0; i < Lanes::count; ++i) {
        const std::size_t row = 2 * (at + i * Lanes::count);
        rows[i] = rows[i] * (y == nullptr ? rows[i] : Complex::Load(y + row));
      }
      Join_Block(rows, x + 2 * at, roots);
    }
    join_levels(x, size, node);
  }

  void split_levels(double* x, std::size_t size, std::size_t node) const {
    for (std::size_t part = size; part > wave_block; part /= Parts_Of(part)) {
      for (std::size_t at = 0; at < size; at += part)
        Split_Node(x + 2 * at, part, factors((node * size + at) / part));
    }
  }

  // From the least parts on: one further than those that have been joined.
  void join_levels(double* x, std::size_t size, std::size_t node) const {
    for (std::size_t joined = wave_block; joined < size;) {
      std::size_t part = size;
      while (part / Parts_Of(part) > joined) part /= Parts_Of(part);
      for (std::size_t at = 0; at < size; at += part)
        Join_Node(x + 2 * at, part, factors((node * size + at) / part));
      joined = part;
    }
  }

  const Wave_Roots& roots_;
  std::size_t blocks_;
};

// Kernels: the pieces of one length, whose roots are in order.
inline void Split_Waves(double* x, const Wave_Length& length, const Wave_Roots* roots) {
  const Wave_Pieces pieces = Pieces_Of(length);
  for (std::size_t k = 0; k < pieces.count; ++k) {
    const Wave_Piece& piece = pieces.piece[k];
    Wave(roots[k], piece.size).split(x + 2 * piece.start, piece.size, 1);
  }
}

// The products stand in x, times the sizes of their pieces.
inline void Multiply_Waves(double* x, const double* y, const Wave_Length& length,
                           const Wave_Roots* roots) {
  const Wave_Pieces pieces = Pieces_Of(length);
  for (std::size_t k = 0; k < pieces.count; ++k) {
    const Wave_Piece& piece = pieces.piece[k];
    const std::size_t at = 2 * piece.start;
    Wave(roots[k], piece.size).multiply(x + at, y == nullptr ? nullptr : y + at, piece.size, 1);
  }
}

}  // namespace
}  // namespace quorvex::native
