// Options that all calculating commands share.
#include "cli/common_options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>

#include "cli/session.h"
#include "cli/sizes.h"
#include "host/conversions.h"
#include "host/platform.h"
#include "io/memory_bound.h"
#include "text/options.h"

namespace quorvex {
namespace {

constexpr double longest_timeout = 1e9;

Locale Chosen_Locale(const Common_Options& options) {
  if (options.locale_name) {
    const auto locale = System_Locale(*options.locale_name);
    if (!locale) {
      throw Usage_Error("this system has no locale \"" + *options.locale_name +
                        "\"; `locale -a` lists those it has");
    }
    return *locale;
  }
  Locale locale = Current_Locale();
  // Who turns the one separator into the other means both.
  if (!options.thousands && options.decimal == locale.thousands_separator) {
    locale.thousands_separator = locale.decimal_separator;
  } else if (!options.decimal && options.thousands == locale.decimal_separator) {
    locale.decimal_separator = locale.thousands_separator;
  }
  if (options.decimal) locale.decimal_separator = *options.decimal;
  if (options.thousands) locale.thousands_separator = *options.thousands;
  if (options.currency) locale.currency_symbol = *options.currency;
  if (options.currency_side) {
    locale.currency_side =
        *options.currency_side == "after" ? Currency_Side::after : Currency_Side::before;
  }
  return locale;
}

bool Gives_Parts(const Common_Options& options) {
  return options.decimal || options.thousands || options.currency || options.currency_side;
}

std::string Check_Side(const std::string& text) {
  return text == "before" || text == "after" ? "" : "before or after is needed, not " + text;
}

std::string Check_Digits(const std::string& text) {
  double digits = 0;
  const bool is_good = CLI::detail::lexical_cast(text, digits) && digits >= 1 &&
                       digits <= maximum_digits && digits == std::floor(digits);
  return is_good ? "" : "a whole number from 1 to 2147483648 is needed, not " + text;
}

std::string Check_Timeout(const std::string& text) {
  double seconds = 0;
  const bool is_good =
      CLI::detail::lexical_cast(text, seconds) && seconds >= 0 && seconds <= longest_timeout;
  return is_good ? "" : "a number of seconds is needed, or 0 for no limit, not " + text;
}

}  // namespace

void Add_Common_Options(CLI::App& command, Common_Options& options) {
  const auto add = [&](const char* name, auto& target, const char* value, const char* help) {
    return command.add_option(name, target, help)
        ->type_name(value)
        ->group("Number format and limits");
  };
  add("--locale", options.locale_name, "NAME",
      "Write numbers as this locale of the system does (de_CH)");
  add("--decimal", options.decimal, "CHARACTER", "Decimal separator");
  add("--thousands", options.thousands, "CHARACTER", "Thousands separator");
  add("--currency", options.currency, "TEXT",
      "Currency symbol, with the blank beside it (\"CHF \")");
  add("--currency-side", options.currency_side, "before|after", "Place of the symbol")
      ->check(CLI::Validator(Check_Side, ""));
  add("-d,--digits", options.digits, "N", "Significant digits where a call gives none")
      ->check(CLI::Validator(Check_Digits, ""));
  add("--timeout", options.timeout, "SECONDS",
      "End a calculation that takes longer; 0 for none (60 a call of batch and a formula of a "
      "worksheet, where nothing else is said)")
      ->check(CLI::Validator(Check_Timeout, ""));
  command
      .add_option_function<std::string>(
          "--memory", [&options](const std::string& size) { options.memory = Bytes_Of(size); },
          "End a calculation that needs more memory than this, as 500M or 4G (half of what the "
          "machine has, and 2G at most, where nothing else is said)")
      ->type_name("SIZE")
      ->group("Number format and limits")
      ->check(CLI::Validator(Check_Size, ""));
  command.add_flag("--quiet", options.quiet, "Tell no notes about results");
}

namespace {

// The user's settings, with a limit of this run in the place of the stored one.
class Settings_Of_Run final : public Settings_Store {
 public:
  Settings_Of_Run(std::shared_ptr<Settings_Store> stored, double digits)
      : stored_(std::move(stored)), digits_(Number_To_Text(digits)) {}

  std::string place() override { return stored_->place(); }

  std::optional<std::string> read(std::string_view application, std::string_view section,
                                  std::string_view key) override {
    return key == limit ? digits_ : stored_->read(application, section, key);
  }
  // A limit that the user stores holds from then on.
  void write(std::string_view application, std::string_view section, std::string_view key,
             std::string_view value) override {
    if (key == limit) digits_ = value;
    stored_->write(application, section, key, value);
  }

 private:
  static constexpr std::string_view limit = "MaxSD";

  std::shared_ptr<Settings_Store> stored_;
  std::string digits_;
};

}  // namespace

std::shared_ptr<Call_Guard> Apply(const Common_Options& options, double usual_timeout) {
  if (options.locale_name && Gives_Parts(options))
    throw Usage_Error("--locale names a whole locale: give it, or the parts one by one");
  if (options.locale_name || Gives_Parts(options)) {
    const Locale locale = Chosen_Locale(options);
    if (const auto problem = Locale_Problem(locale)) throw Usage_Error(*problem);
    Current_Platform().locale = Fixed_Locale(locale);
  }
  if (options.digits) {
    auto& settings = Current_Platform().settings;
    settings = std::make_shared<Settings_Of_Run>(settings, *options.digits);
  }
  const double memory = options.memory.value_or(Usual_Memory_Bound());
  Bound_Memory(memory);
  std::optional<Seconds> limit;
  const double timeout = options.timeout.value_or(usual_timeout);
  if (timeout > 0) limit = Seconds(timeout);
  auto guard = std::make_shared<Call_Guard>(limit);
  guard->bound_memory(memory);
  Current_Platform().yielder = guard;
  return guard;
}

}  // namespace quorvex
