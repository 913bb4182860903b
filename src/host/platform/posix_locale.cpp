// The locales of POSIX systems.
#include <iconv.h>
#include <langinfo.h>

#include <clocale>
#include <cstdint>
#include <cstdlib>

#include "host/locale_rules.h"
#include "host/platform/posix.h"

namespace quorvex {

namespace {

/// One category of a locale, together with the characters that its texts are written in.
class Category {
 public:
  Category(int mask, const std::string& name)
      : locale_(newlocale(mask | LC_CTYPE_MASK, name.c_str(), nullptr)) {}
  Category(const Category&) = delete;
  Category& operator=(const Category&) = delete;
  ~Category() {
    if (locale_ != nullptr) freelocale(locale_);
  }

  bool exists() const { return locale_ != nullptr; }

  /// Calls `use` with the conventions and the name of the character set, both good until then.
  template <typename Use>
  void read(Use use) const {
    if (!exists()) return;
    const locale_t before = uselocale(locale_);
    use(*localeconv(), nl_langinfo_l(CODESET, locale_));
    uselocale(before);
  }

 private:
  locale_t locale_;
};

/// Text in UTF-8; empty if it can't be had.
std::string In_Utf8(const char* text, const char* codeset) {
  std::string source = text;
  if (std::string_view(codeset) == "UTF-8") return source;
  auto* const converter = iconv_open("UTF-8", codeset);
  // The failed value is -1 made a pointer.
  if (reinterpret_cast<std::intptr_t>(converter) == -1) return {};
  std::string result(source.size() * 4 + 4, '\0');
  char* in = source.data();
  char* out = result.data();
  std::size_t in_left = source.size();
  std::size_t out_left = result.size();
  const bool converted = iconv(converter, &in, &in_left, &out, &out_left) != std::size_t(-1);
  iconv_close(converter);
  result.resize(converted ? result.size() - out_left : 0);
  return result;
}

void Read_Money(Locale_Report& report, const lconv& money, const char* codeset) {
  report.monetary_thousands_separator = In_Utf8(money.mon_thousands_sep, codeset);
  report.currency_symbol = In_Utf8(money.currency_symbol, codeset);
  if (report.currency_symbol.empty()) return;
  const bool is_before = money.p_cs_precedes != 0;
  report.currency_side = is_before ? Currency_Side::before : Currency_Side::after;
  // The space between symbol and number belongs to the symbol, so that an amount of money as cells
  // show it (CHF 5, 5 €) is a number. Other values set it beside a sign.
  if (money.p_sep_by_space != 1) return;
  report.currency_symbol.insert(is_before ? report.currency_symbol.size() : 0, 1, ' ');
}

Locale Read_Locale(const Category& numbers, const Category& money) {
  Locale_Report report;
  numbers.read([&](const lconv& conventions, const char* codeset) {
    report.decimal_separator = In_Utf8(conventions.decimal_point, codeset);
    report.thousands_separator = In_Utf8(conventions.thousands_sep, codeset);
  });
  money.read([&](const lconv& conventions, const char* codeset) {
    Read_Money(report, conventions, codeset);
  });
  return Usable_Locale(report);
}

/// The name that the environment gives a category. Empty variables count as not set.
std::string Name_Of_Category(const char* variable) {
  for (const char* candidate : {"LC_ALL", variable, "LANG"}) {
    const char* const name = std::getenv(candidate);
    if (name != nullptr && *name != '\0') return name;
  }
  return "C";
}

}  // namespace

Locale Environment_Locale() {
  return Read_Locale(Category(LC_NUMERIC_MASK, Name_Of_Category("LC_NUMERIC")),
                     Category(LC_MONETARY_MASK, Name_Of_Category("LC_MONETARY")));
}

std::optional<Locale> System_Locale(std::string_view name) {
  // An empty name would mean the environment's locale.
  if (name.empty() || name.find('\0') != std::string_view::npos) return std::nullopt;
  for (const char* const ending : {"", ".UTF-8", ".utf8"}) {
    const std::string full = std::string(name) + ending;
    const Category numbers(LC_NUMERIC_MASK, full);
    const Category money(LC_MONETARY_MASK, full);
    if (numbers.exists() && money.exists()) return Read_Locale(numbers, money);
  }
  return std::nullopt;
}

}  // namespace quorvex
