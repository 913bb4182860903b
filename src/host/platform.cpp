// The platform in use, and what is the same on every system.
#include "host/platform.h"

#include <algorithm>
#include <cstdio>
#include <forward_list>
#include <map>
#include <mutex>
#include <tuple>
#include <utility>

#include "host/run_time_failure.h"

namespace quorvex {

// Defined here so that the library holds the one copy of each type's information.
Locale_Source::~Locale_Source() = default;
Settings_Store::~Settings_Store() = default;
Timer::~Timer() = default;
Timer_Service::~Timer_Service() = default;
Message_Box::~Message_Box() = default;
Yielder::~Yielder() = default;
Letter_Case::~Letter_Case() = default;
Memory_Gauge::~Memory_Gauge() = default;
Library_Loader::~Library_Loader() = default;
Clock::~Clock() = default;
Application_Source::~Application_Source() = default;

namespace {

class Constant_Locale final : public Locale_Source {
 public:
  explicit Constant_Locale(const Locale& locale)
      : separators_(locale.decimal_separator, locale.thousands_separator),
        currency_(locale.currency_symbol, locale.currency_side) {}
  Separators separators() override { return separators_; }
  Currency currency() override { return currency_; }

 private:
  Separators separators_;
  Currency currency_;
};

class Memory_Settings final : public Settings_Store {
 public:
  std::optional<std::string> read(std::string_view application, std::string_view section,
                                  std::string_view key) override {
    const std::scoped_lock lock(guard_);
    const auto found = settings_.find(Name(application, section, key));
    return found == settings_.end() ? std::nullopt : std::optional(found->second);
  }
  void write(std::string_view application, std::string_view section, std::string_view key,
             std::string_view value) override {
    const std::scoped_lock lock(guard_);
    settings_[Name(application, section, key)] = value;
  }

 private:
  using Name = std::tuple<std::string, std::string, std::string>;

  std::mutex guard_;
  std::map<Name, std::string> settings_;
};

class Absent_Application final : public Application_Source {
 public:
  std::shared_ptr<Host_Application> running() override {
    throw Run_Time_Failure(Failure_Number::no_application, "No spreadsheet is running.");
  }
};

/// Keeps a value for the life of the process, alike ones once. There are few: a locale for each way
/// in which the user has had numbers written.
template <typename Value>
const Value* Keep(Value value) {
  static std::mutex keeping;
  // Never destroyed: what runs at the end of the process may still need it.
  static auto* const values = new std::forward_list<Value>();
  const std::scoped_lock lock(keeping);
  const auto found = std::ranges::find(*values, value);
  return found != values->end() ? &*found : &values->emplace_front(std::move(value));
}

std::string Size_Text(double bytes) {
  constexpr double megabyte = 1048576;
  char text[64];
  std::snprintf(text, sizeof text, bytes < 1024 * megabyte ? "%.0f MB" : "%.3g GB",
                bytes < 1024 * megabyte ? bytes / megabyte : bytes / megabyte / 1024);
  return text;
}

}  // namespace

Separators::Separators(std::string_view decimal, std::string_view thousands)
    : kept_(Keep(Kept{std::string(decimal), std::string(thousands)})) {}

Currency::Currency(std::string_view symbol, Currency_Side side)
    : kept_(Keep(Kept{std::string(symbol), side})) {}

Locale Locale_Source::current() {
  const Separators separators = this->separators();
  const Currency currency = this->currency();
  return {separators.decimal(), separators.thousands(), currency.symbol(), currency.side()};
}

Platform& Process_Platform() {
  // Never destroyed: what runs at the end of the process may still need it.
  static auto* const platform = new Platform(Default_Platform());
  return *platform;
}

std::shared_ptr<Locale_Source> Fixed_Locale(const Locale& locale) {
  return std::make_shared<Constant_Locale>(locale);
}

std::shared_ptr<Settings_Store> Settings_In_Memory() {
  return std::make_shared<Memory_Settings>();
}

std::shared_ptr<Application_Source> No_Application() {
  return std::make_shared<Absent_Application>();
}

void Require_Memory(double bytes) {
  // So little isn't worth the time that asking takes.
  constexpr double always_granted = 64.0 * 1048576;
  if (bytes < always_granted) return;
  const auto available = static_cast<double>(Current_Platform().memory->available_bytes());
  if (bytes <= available) return;
  throw Run_Time_Failure(Failure_Number::out_of_memory, "There is not enough memory: this needs " +
                                                            Size_Text(bytes) + ", and " +
                                                            Size_Text(available) + " are free.");
}

}  // namespace quorvex
