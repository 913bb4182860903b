// Letters of all scripts, as the C library knows them.
#include <clocale>
#include <cwctype>

#include "host/platform/posix.h"

namespace quorvex {

namespace {

class C_Library_Letters final : public Letter_Case {
 public:
  C_Library_Letters() {
    // Capitals must not follow the user's language (a Turkish i has its own), so the neutral
    // locale comes first, and the user's only where a system lacks that.
    for (const char* name : {"C.UTF-8", "C.utf8", "en_US.UTF-8", ""})
      if (locale_ == nullptr) locale_ = newlocale(LC_CTYPE_MASK, name, nullptr);
  }
  C_Library_Letters(const C_Library_Letters&) = delete;
  C_Library_Letters& operator=(const C_Library_Letters&) = delete;
  ~C_Library_Letters() override {
    if (locale_ != nullptr) freelocale(locale_);
  }

  char32_t capital(char32_t character) override {
    if (locale_ == nullptr) return character;
    return static_cast<char32_t>(towupper_l(static_cast<wint_t>(character), locale_));
  }

 private:
  locale_t locale_ = nullptr;
};

}  // namespace

std::shared_ptr<Letter_Case> System_Letters() {
  return std::make_shared<C_Library_Letters>();
}

}  // namespace quorvex
