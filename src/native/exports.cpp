// The one routine that the library exports.
#include <cstddef>
#include <string_view>

#include "native/multiply.h"

#if defined(_WIN32)
#define QUORVEX_NATIVE_EXPORT __declspec(dllexport)
#else
#define QUORVEX_NATIVE_EXPORT __attribute__((visibility("default")))
#endif

namespace {

// Ten characters are looked at sooner than a routine for any length is called.
bool Is_Right(const char* code) {
  constexpr char right_code[] = "7305918264";
  for (std::size_t i = 0; i < sizeof right_code; ++i)
    if (code[i] != right_code[i]) return false;
  return true;
}

}  // namespace

/// Writes the product of two texts of digits to the front of `product`, a text of spaces twice as
/// long as the longer operand, and leaves the spaces behind it. A wrong access code, an operand
/// that holds anything but digits, and too little memory leave all of the spaces. Returns 1 if the
/// product was written, otherwise 0.
extern "C" QUORVEX_NATIVE_EXPORT int Multiply(const char* op1, const char* op2, char* product,
                                              const char* accessCode) {
  if (op1 == nullptr || op2 == nullptr || product == nullptr || accessCode == nullptr) return 0;
  if (!Is_Right(accessCode)) return 0;
  const std::string_view a(op1);
  const std::string_view b = op2 == op1 ? a : std::string_view(op2);
  const std::size_t room = 2 * (a.size() > b.size() ? a.size() : b.size());
  return quorvex::native::Multiply_Texts(a, b, product, room) > 0 ? 1 : 0;
}
