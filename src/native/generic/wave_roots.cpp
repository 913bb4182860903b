#include "native/generic/wave_roots.h"

#include <array>
#include <bit>
#include <cstdint>
#include <mutex>

#include "native/generic/scratch.h"
#include "native/generic/wave_length.h"

namespace quorvex::native {
namespace {

__extension__ using Signed_Wide = __int128;

// Complex numbers in units of 2^-62, whose products are off by one unit in each part.
constexpr unsigned places = 62;
constexpr std::int64_t one = std::int64_t{1} << places;

struct Fixed {
  std::int64_t re;
  std::int64_t im;
};

Fixed operator*(Fixed a, Fixed b) {
  const Signed_Wide re = Signed_Wide{a.re} * b.re - Signed_Wide{a.im} * b.im;
  const Signed_Wide im = Signed_Wide{a.re} * b.im + Signed_Wide{a.im} * b.re;
  return {static_cast<std::int64_t>(re >> places), static_cast<std::int64_t>(im >> places)};
}

std::int64_t Square_Root(Signed_Wide square) {
  std::int64_t root = 0;
  for (std::int64_t bit = one; bit > 0; bit /= 2) {
    const std::int64_t longer = root + bit;
    if (Signed_Wide{longer} * longer <= square) root = longer;
  }
  return root;
}

// Angles are counted in units of 2^-24 of a turn.
constexpr unsigned angle_bits = 24;
constexpr unsigned part_bits = 8;

// Roots by halving the angle are off by less than four units of the last place, products of all the
// bits of an angle by less than 128, half of 2^-54; rounding to a double adds 2^-54.
class Circle {
 public:
  Circle() {
    Fixed roots[angle_bits];
    roots[angle_bits - 1] = {-one, 0};
    roots[angle_bits - 2] = {0, one};
    for (unsigned k = angle_bits - 2; k-- > 0;) {
      const Fixed twice = roots[k + 1];
      const std::int64_t re = Square_Root((Signed_Wide{one} + twice.re) << (places - 1));
      const auto im = static_cast<std::int64_t>((Signed_Wide{twice.im} << (places - 1)) / re);
      roots[k] = {re, im};
    }
    for (unsigned part = 0; part < parts_.size(); ++part) {
      auto& table = parts_[part];
      table[0] = {one, 0};
      for (std::uint32_t i = 1; i < table.size(); ++i) {
        const Fixed root = roots[part * part_bits + static_cast<unsigned>(std::countr_zero(i))];
        const std::uint32_t rest = i & (i - 1);
        table[i] = rest == 0 ? root : table[rest] * root;
      }
    }
  }

  Fixed at(std::uint32_t angle) const {
    const auto part = [angle, this](unsigned k) {
      return parts_[k][(angle >> (part_bits * k)) % (1U << part_bits)];
    };
    return part(2) * part(1) * part(0);
  }

 private:
  std::array<std::array<Fixed, 1U << part_bits>, angle_bits / part_bits> parts_ = {};
};

// The angle of u(j): an eighth of a turn, halved at each step down, and a quarter more to the
// right.
std::uint32_t Angle_Of(std::size_t node) {
  std::uint32_t angle = (1U << angle_bits) / 8;
  for (auto bit = std::bit_width(node) - 1; bit-- > 0;) {
    angle /= 2;
    if ((node >> static_cast<unsigned>(bit)) % 2 == 1) angle += (1U << angle_bits) / 4;
  }
  return angle;
}

class Tables {
 public:
  bool find(std::size_t lanes, std::size_t points, Wave_Roots& roots) {
    if (nodes_.get() == nullptr) nodes_ = Scratch<double>(10 * most_nodes);
    if (nodes_.get() == nullptr) return false;
    auto& blocks = blocks_[lanes / 8][static_cast<unsigned>(std::countr_zero(points))];
    const std::size_t count = points / (lanes * lanes);
    if (blocks.get() == nullptr) {
      Scratch<double> memory(count * 2 * Block_Factors(lanes) * (lanes + 1));
      if (memory.get() == nullptr) return false;
      fill_blocks(lanes, count, memory.get());
      fill_nodes(count);
      blocks = std::move(memory);
    }
    roots = {nodes_.get(), blocks.get() + count * 2 * Block_Factors(lanes) * lanes, blocks.get()};
    return true;
  }

 private:
  // Blocks of sixteen points are the least.
  static constexpr std::size_t most_nodes = most_wave_points / 16;

  // A factor of a node: v^2, v, v^3, u(4j), u(4j + 2).
  Fixed factor(std::size_t node, std::size_t which) const {
    const std::uint32_t angle = Angle_Of(2 * node);
    if (which == 0) return circle_.at(2 * angle);
    if (which == 1) return circle_.at(angle);
    if (which == 2) return circle_.at(3 * angle);
    return circle_.at(Angle_Of(4 * node + 2 * (which - 3)));
  }

  // A complex vector for `lanes` nodes next to each other.
  void put(double* to, std::size_t node, std::size_t which, std::size_t lanes) const {
    for (std::size_t lane = 0; lane < lanes; ++lane) {
      const Fixed value = factor(node + lane, which);
      to[lane] = static_cast<double>(value.re) / static_cast<double>(one);
      to[lanes + lane] = static_cast<double>(value.im) / static_cast<double>(one);
    }
  }

  void fill_nodes(std::size_t count) {
    for (; nodes_filled_ < count; ++nodes_filled_) {
      for (std::size_t which = 0; which < 5; ++which)
        put(nodes_.get() + 10 * nodes_filled_ + 2 * which, nodes_filled_, which, 1);
    }
  }

  // The columns' come first, for vectors to stand on the boundaries of lines.
  void fill_blocks(std::size_t lanes, std::size_t count, double* to) const {
    const std::size_t factors = Block_Factors(lanes);
    for (std::size_t node = count; node < 2 * count; ++node) {
      for (std::size_t which = 0; which < factors; ++which, to += 2 * lanes)
        put(to, lanes * node, which, lanes);
    }
    for (std::size_t node = count; node < 2 * count; ++node) {
      for (std::size_t which = 0; which < factors; ++which, to += 2) put(to, node, which, 1);
    }
  }

  Circle circle_;
  Scratch<double> nodes_;
  std::size_t nodes_filled_ = 1;
  Scratch<double> blocks_[2][32];
};

}  // namespace

bool Find_Roots(std::size_t lanes, std::size_t points, Wave_Roots& roots) noexcept {
  static std::mutex filling;
  const std::lock_guard<std::mutex> lock(filling);
  static Tables tables;
  return tables.find(lanes, points, roots);
}

}  // namespace quorvex::native
