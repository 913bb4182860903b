// Locales: what makes one usable, and those of the system.
#include <gtest/gtest.h>
#include <monetary.h>

#include <clocale>
#include <cstdlib>
#include <fstream>

#include "host/locale_rules.h"
#include "host/platform.h"
#include "support/environment.h"
#include "support/locales.h"
#include "text/clean_up_number.h"

// The C library forgets to free the path of its locales when a folder is named for them.
extern "C" __attribute__((visibility("default"))) const char*
__lsan_default_suppressions() {  // NOLINT(bugprone-reserved-identifier): the sanitizer's name
  return "leak:argz_add_sep\n";
}

namespace quorvex {
namespace {

std::string Described(const Locale& locale) {
  const char* side = locale.currency_side == Currency_Side::before ? "before" : "after";
  return locale.decimal_separator + "|" + locale.thousands_separator + "|" +
         locale.currency_symbol + "|" + side;
}

TEST(LocaleProblem, NamesWhatWouldMisreadNumbers) {
  const struct {
    Locale locale;
    const char* problem;  // a telling piece of the sentence; empty where all is fine
  } cases[] = {
      {Point_Locale(), ""},
      {Comma_Locale(), ""},
      {Narrow_Space_Locale(), ""},
      {Apostrophe_Locale(), ""},
      {{".", " ", "", Currency_Side::after}, ""},
      {{",", ".", "kr.", Currency_Side::before}, ""},
      {{".", ",", "E\u00A3", Currency_Side::before}, ""},
      {{"", ",", "$", {}}, "decimal separator must be exactly one character"},
      {{".", "", "$", {}}, "thousands separator must be exactly one character"},
      {{"..", ",", "$", {}}, "exactly one"},
      {{".", "\u202F\u202F", "$", {}}, "exactly one"},
      {{"\xA0", ",", "$", {}}, "UTF-8"},
      {{",", ",", "$", {}}, "alike"},
      {{" ", ",", "$", {}}, "blank"},
      {{"\u00A0", ",", "$", {}}, "blank"},
      {{"5", ",", "$", {}}, "digit"},
      {{".", "-", "$", {}}, "sign"},
      {{"+", ",", "$", {}}, "sign"},
      {{".", "(", "$", {}}, "parenthesis"},
      {{".", "'", "$", {}}, "quote"},
      {{"\"", ",", "$", {}}, "quote"},
      {{"E", ",", "$", {}}, "exponent"},
      {{".", "#", "$", {}}, "error"},
      {{".", "\n", "$", {}}, "control"},
      {{".", ",", "1", {}}, "made up only"},
      {{".", ",", "E", {}}, "made up only"},
      {{".", ",", " ", {}}, "made up only"},
      {{".", ",", "1,000.5", {}}, "made up only"},
      {{".", "\u2019", "\u2019", {}}, "made up only"},
      {{".", ",", "-$", {}}, "sign"},
      {{".", ",", "#", {}}, "#"},
      {{".", ",", "\xFF", {}}, "UTF-8"},
      {{".", ",", "$\n", {}}, "control"},
  };
  for (const auto& c : cases) {
    const auto problem = Locale_Problem(c.locale);
    EXPECT_EQ(problem.has_value(), *c.problem != '\0') << Described(c.locale);
    EXPECT_NE(problem.value_or("").find(c.problem), std::string::npos) << problem.value_or("");
  }
}

TEST(UsableLocale, FillsFieldByFieldAndNeverGivesAProblem) {
  const struct {
    Locale_Report report;
    const char* locale;
  } cases[] = {
      {{"", "", "", "", {}}, ".|,|$|before"},
      {{".", "", "", "", Currency_Side::after}, ".|,|$|before"},
      {{",", "", "", " kr", Currency_Side::after}, ",|\u00A0| kr|after"},
      {{",", "", ".", "\u20AC", Currency_Side::after}, ",|.|\u20AC|after"},
      {{",", ",", ".", "", {}}, ",|.|$|before"},
      {{",", ",", ",", "", {}}, ",|\u00A0|$|before"},
      {{".", "'", "\u2019", "CHF", Currency_Side::before}, ".|\u2019|CHF|before"},
      {{"..", ".", "", "\u20AC", Currency_Side::after}, ".|,|\u20AC|after"},
      {{".", ",", "", "-", Currency_Side::after}, ".|,|$|before"},
      {{"$", ",", "", "", {}}, "$|,||before"},
      {{"\u00A0", "", "", "", {}}, ".|,|$|before"},
  };
  for (const auto& c : cases) {
    const Locale locale = Usable_Locale(c.report);
    EXPECT_EQ(Described(locale), c.locale);
    EXPECT_EQ(Locale_Problem(locale), std::nullopt) << c.locale;
  }
}

/// Locales of the system, compiled for these tests, so that they don't depend on the machine's.
class SystemLocale : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    compiled_ = std::system("localedef --version >/dev/null 2>&1") == 0;
    if (!compiled_) return;
    folder_ = new Temporary_Folder;
    for (const char* name :
         {"fr_FR", "de_CH", "de_DE", "en_IN", "sv_SE", "pt_PT", "da_DK", "nl_NL"})
      Compile(name, "UTF-8", std::string(name) + ".UTF-8");
    Compile("de_DE", "ISO-8859-15", "de_DE.ISO-8859-15");
  }

  static void TearDownTestSuite() {
    delete folder_;
    folder_ = nullptr;
  }

  void SetUp() override {
    if (!compiled_) GTEST_SKIP() << "localedef is missing, so there are no locales to test with.";
    locpath_ = std::make_unique<Variable_Guard>("LOCPATH", folder_->path().string());
  }

  /// Compiles what numbers need; the order of words would take most of the time.
  static void Compile(const std::string& name, const std::string& codeset, const std::string& as) {
    const std::string path = (folder_->path() / as).string();
    std::ofstream source(path + ".source");
    source << "comment_char %\nescape_char /\nLC_CTYPE\ncopy \"i18n\"\nEND LC_CTYPE\n";
    for (const char* category : {"LC_NUMERIC", "LC_MONETARY"})
      source << category << "\ncopy \"" << name << "\"\nEND " << category << "\n";
    source.close();
    const std::string command = "localedef -c --quiet --no-archive -i '" + path + ".source' -f " +
                                codeset + " '" + path + "' >/dev/null 2>&1";
    // It reports the categories left out as a failure; a locale that isn't there fails its test.
    static_cast<void>(!std::system(command.c_str()));
  }

  static Temporary_Folder* folder_;
  static bool compiled_;
  std::unique_ptr<Variable_Guard> locpath_;
};

Temporary_Folder* SystemLocale::folder_ = nullptr;
bool SystemLocale::compiled_ = false;

TEST_F(SystemLocale, GivesSeparatorsAndCurrencyInUtf8) {
  const struct {
    const char* name;
    const char* locale;
  } cases[] = {
      {"fr_FR", ",|\u202F| \u20AC|after"},
      {"fr_FR.UTF-8", ",|\u202F| \u20AC|after"},
      {"de_CH", ".|\u2019|CHF |before"},
      {"nl_NL", ",|.|\u20AC |before"},
      {"de_DE", ",|.| \u20AC|after"},
      {"de_DE.ISO-8859-15", ",|.| \u20AC|after"},
      {"en_IN", ".|,|\u20B9|before"},
      {"sv_SE", ",|\u202F| kr|after"},
      {"pt_PT", ",|.| \u20AC|after"},
      {"da_DK", ",|.|kr.|before"},
      {"C", ".|,|$|before"},
  };
  for (const auto& c : cases) {
    const auto locale = System_Locale(c.name);
    ASSERT_TRUE(locale) << c.name;
    EXPECT_EQ(Described(*locale), c.locale) << c.name;
    EXPECT_EQ(Locale_Problem(*locale), std::nullopt) << c.name;
  }
  for (const std::string_view name :
       {std::string_view(""), std::string_view("xx_XX"), std::string_view("../de_DE"),
        std::string_view("de_DE\0", 6)}) {
    EXPECT_FALSE(System_Locale(name)) << name;
  }
}

/// What the system writes for a sum of money, in UTF-8.
std::string Amount(const char* locale, double sum) {
  const locale_t conventions =
      newlocale(LC_CTYPE_MASK | LC_NUMERIC_MASK | LC_MONETARY_MASK, locale, nullptr);
  char text[64] = "";
  strfmon_l(text, sizeof text, conventions, "%n", sum);
  freelocale(conventions);
  return text;
}

TEST_F(SystemLocale, ReadsTheAmountsOfMoneyThatTheSystemWrites) {
  for (const char* const name : {"fr_FR.UTF-8", "de_CH.UTF-8", "de_DE.UTF-8", "en_IN.UTF-8",
                                 "sv_SE.UTF-8", "pt_PT.UTF-8", "nl_NL.UTF-8"}) {
    const Locale_Guard guard(System_Locale(name).value());
    const std::string amount = Amount(name, 1234.5);
    EXPECT_NE(amount.find(Current_Locale().currency_symbol), std::string::npos) << amount;
    EXPECT_EQ(Clean_Up_Number(amount, true, true).NumClean,
              "1234" + Current_Locale().decimal_separator + "5")
        << amount;
  }
}

TEST_F(SystemLocale, OfTheEnvironmentIsTakenCategoryByCategory) {
  const struct {
    const char* all;
    const char* numeric;
    const char* monetary;
    const char* language;
    const char* locale;
  } cases[] = {
      {nullptr, nullptr, nullptr, nullptr, ".|,|$|before"},
      {nullptr, nullptr, nullptr, "C.UTF-8", ".|,|$|before"},
      {nullptr, nullptr, nullptr, "fr_FR.UTF-8", ",|\u202F| \u20AC|after"},
      {nullptr, "de_CH.UTF-8", nullptr, "fr_FR.UTF-8", ".|\u2019| \u20AC|after"},
      {nullptr, nullptr, "de_CH.UTF-8", "de_DE.ISO-8859-15", ",|.|CHF |before"},
      {"de_DE.UTF-8", "de_CH.UTF-8", "C", "C", ",|.| \u20AC|after"},
      {"", "", "", "de_DE.UTF-8", ",|.| \u20AC|after"},
      {nullptr, "xx_XX", nullptr, "de_DE.UTF-8", ".|,| \u20AC|after"},
  };
  const auto given = [](const char* value) {
    return value == nullptr ? std::nullopt : std::optional<std::string>(value);
  };
  for (const auto& c : cases) {
    const Variable_Guard all("LC_ALL", given(c.all));
    const Variable_Guard numeric("LC_NUMERIC", given(c.numeric));
    const Variable_Guard monetary("LC_MONETARY", given(c.monetary));
    const Variable_Guard language("LANG", given(c.language));
    EXPECT_EQ(Described(Default_Platform().locale->current()), c.locale);
  }
}

}  // namespace
}  // namespace quorvex
