// Letters of all scripts, as the system knows them.
#include "host/platform/windows.h"
#include "host/platform/windows_api.h"

namespace quorvex {

namespace {

class System_Case final : public Letter_Case {
 public:
  char32_t capital(char32_t character) override {
    wchar_t units[2];
    const int count = Split(character, units);
    if (count == 0) return character;
    // Capitals must not follow the user's language (a Turkish i has its own).
    wchar_t mapped[2];
    const int got = ::LCMapStringEx(LOCALE_NAME_INVARIANT, LCMAP_UPPERCASE, units, count, mapped, 2,
                                    nullptr, nullptr, 0);
    return got == count ? Joined(mapped, count) : character;
  }

 private:
  static constexpr char32_t first_of_two = 0x10000;

  /// The units that UTF-16 writes a character with; none for what is no character.
  static int Split(char32_t character, wchar_t (&units)[2]) {
    if (character > 0x10FFFF || (character >= 0xD800 && character < 0xE000)) return 0;
    if (character < first_of_two) {
      units[0] = static_cast<wchar_t>(character);
      return 1;
    }
    units[0] = static_cast<wchar_t>(0xD800 + ((character - first_of_two) >> 10));
    units[1] = static_cast<wchar_t>(0xDC00 + ((character - first_of_two) & 0x3FF));
    return 2;
  }

  static char32_t Joined(const wchar_t (&units)[2], int count) {
    if (count == 1) return units[0];
    return first_of_two + ((static_cast<char32_t>(units[0]) - 0xD800) << 10) +
           (static_cast<char32_t>(units[1]) - 0xDC00);
  }
};

}  // namespace

std::shared_ptr<Letter_Case> System_Letters() {
  return std::make_shared<System_Case>();
}

}  // namespace quorvex
