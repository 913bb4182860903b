#include "native/multiply.h"

#include <utility>

#include "expects.h"
#include "native/generic/kernels.h"
#include "native/stair.h"

namespace quorvex::native {
namespace {

std::string_view Without_Leading_Zeros(std::string_view text) {
  const std::size_t first = text.find_first_not_of('0');
  return first == std::string_view::npos ? std::string_view{} : text.substr(first);
}

bool Are_Digits(std::string_view text) {
  return text.find_first_not_of("0123456789") == std::string_view::npos;
}

// One of the operands is zero; the other may be anything.
std::size_t Write_Zero(std::string_view a, std::string_view b, char* out) {
  if (!Are_Digits(a) || !Are_Digits(b)) return 0;
  *out = '0';
  return 1;
}

// Short products cost a * b, transforms about a + b: they meet where a * b / (a + b) is the same as
// for equal lengths.
bool Is_Long(const Operands& operands, const Kernels& kernels) {
  const auto a = static_cast<double>(operands.a.size());
  const auto b = static_cast<double>(operands.b.size());
  const std::size_t from = operands.is_square ? kernels.square_from : kernels.transform_from;
  return 2 * a * b >= static_cast<double>(from) * (a + b);
}

std::size_t Multiply_Operands(const Operands& operands, char* out, Instructions kind) {
  const Kernels& kernels = Kernels_Of(kind);
  const std::string_view a = operands.a;
  const std::string_view b = operands.b;
  Expects(!b.empty() && a.size() >= b.size() && a.front() != '0' && b.front() != '0');
  if (a.size() <= tiny_digits && kernels.multiply_tiny != nullptr)
    return kernels.multiply_tiny(a.data(), a.size(), b.data(), b.size(), out);
  if (a.size() <= word_digits) return Multiply_Words(operands, out);
  if (Is_Long(operands, kernels)) {
    return Are_Wave_Lengths(a.size(), b.size()) ? Multiply_By_Waves(operands, out, kernels)
                                                : Multiply_By_Primes(operands, out, kernels);
  }
  if (kernels.multiply_short != nullptr && a.size() + b.size() >= 2 * kernels.short_from)
    return Multiply_Short(operands, out, kernels);
  return Multiply_Limbs(operands, out);
}

}  // namespace

std::size_t Multiply_Texts(std::string_view a, std::string_view b, char* out, std::size_t room,
                           Instructions kind) noexcept {
  Expects(kind <= Best_Instructions());
  if (a.empty() || b.empty() || room == 0) return 0;
  a = Without_Leading_Zeros(a);
  b = Without_Leading_Zeros(b);
  if (a.empty() || b.empty()) return Write_Zero(a, b, out);
  if (a.size() + b.size() > room) return 0;
  if (a.size() < b.size()) std::swap(a, b);
  const bool is_square = a.front() == b.front() && a == b;
  return Multiply_Operands({a, b, is_square}, out, kind);
}

std::size_t Multiply_Texts(std::string_view a, std::string_view b, char* out,
                           std::size_t room) noexcept {
  return Multiply_Texts(a, b, out, room, Instructions_In_Use());
}

}  // namespace quorvex::native
