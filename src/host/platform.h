// What the engine asks of its surroundings: a small interface each, with a default for this system
// and a place to put another one in its stead (tests, hosts).
#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "host/export.h"

namespace quorvex {

enum class Currency_Side { before = 1, after = 2 };

/// How the user writes numbers. Each separator is one character, which may be several bytes.
struct Locale {
  std::string decimal_separator = ".";
  std::string thousands_separator = ",";
  std::string currency_symbol = "$";
  Currency_Side currency_side = Currency_Side::before;
};

/// A pair of separators. It is no larger than a pointer and may be handed on at will: what it shows
/// stays where it is until the process ends, and alike pairs are kept once.
class QUORVEX_API Separators {
 public:
  Separators(std::string_view decimal, std::string_view thousands);

  const std::string& decimal() const { return kept_->decimal; }
  const std::string& thousands() const { return kept_->thousands; }

 private:
  struct Kept {
    std::string decimal;
    std::string thousands;
    bool operator==(const Kept&) const = default;
  };
  const Kept* kept_;
};

/// A currency symbol and its side, kept in the same way.
class QUORVEX_API Currency {
 public:
  Currency(std::string_view symbol, Currency_Side side);

  const std::string& symbol() const { return kept_->symbol; }
  Currency_Side side() const { return kept_->side; }

 private:
  struct Kept {
    std::string symbol;
    Currency_Side side;
    bool operator==(const Kept&) const = default;
  };
  const Kept* kept_;
};

/// What makes a locale unusable for number text, as a sentence for the user; nothing if it is fine.
/// A separator must be one character with no meaning of its own in a number, and not the other one.
/// A currency symbol may be empty; it must not be taken for a number, a part of one, or an error.
QUORVEX_API std::optional<std::string> Locale_Problem(const Locale& locale);

class QUORVEX_API Locale_Source {
 public:
  virtual ~Locale_Source();
  // As they are now, and together free of problems. Each call of the engine asks anew, for each of
  // the two once at most.
  virtual Separators separators() = 0;
  virtual Currency currency() = 0;

  /// Both.
  Locale current();
};

/// A per-user store of texts under three-level keys. What can't be read isn't there; what can't be
/// written fails with invalid_call, and what was there stays.
class QUORVEX_API Settings_Store {
 public:
  virtual ~Settings_Store();
  /// Where the user finds the settings, for messages; empty for nowhere.
  virtual std::string place() { return {}; }
  /// Why nothing can be read, as a sentence for the user; nothing if all is well, and where no
  /// setting was ever written.
  virtual std::optional<std::string> problem() { return std::nullopt; }
  virtual std::optional<std::string> read(std::string_view application, std::string_view section,
                                          std::string_view key) = 0;
  virtual void write(std::string_view application, std::string_view section, std::string_view key,
                     std::string_view value) = 0;
};

/// A one-shot deferred call on the host's thread. It can be armed anew, from its own call too;
/// arming an armed timer moves it. Destroying it cancels it.
class QUORVEX_API Timer {
 public:
  virtual ~Timer();
  virtual void arm(std::chrono::milliseconds delay) = 0;
  virtual void cancel() = 0;
};

class QUORVEX_API Timer_Service {
 public:
  virtual ~Timer_Service();
  virtual std::unique_ptr<Timer> make(std::function<void()> call) = 0;
  /// Runs what is due; the host calls it when its thread is idle.
  virtual void run_due() = 0;
};

enum class Message_Icon { none, information, question, warning, error };
enum class Message_Buttons { ok, yes_no };
enum class Message_Answer { ok, yes, no };

class QUORVEX_API Message_Box {
 public:
  virtual ~Message_Box();
  virtual Message_Answer show(std::string_view title, std::string_view text, Message_Icon icon,
                              Message_Buttons buttons) = 0;
};

/// Called inside every loop whose length the input decides. A host that wants the calculation to
/// end throws `Run_Time_Failure` with `interrupted` from here.
class QUORVEX_API Yielder {
 public:
  virtual ~Yielder();
  virtual void yield() = 0;
};

/// The letters of all scripts.
class QUORVEX_API Letter_Case {
 public:
  virtual ~Letter_Case();
  /// The capital of a letter; every other character as it is.
  virtual char32_t capital(char32_t character) = 0;
};

/// How much more memory the process can be given.
class QUORVEX_API Memory_Gauge {
 public:
  virtual ~Memory_Gauge();
  virtual std::size_t available_bytes() = 0;
};

/// Loads libraries that stand beside this one.
class QUORVEX_API Library_Loader {
 public:
  virtual ~Library_Loader();
  /// The address of a symbol in the library of that plain file name; null if there is none such.
  /// Both names are constants of the program: the loader may keep where they stand.
  virtual void* symbol(const char* library, const char* name) = 0;
  /// The folder that this library was loaded from, absolute, without `.` and `..` and without a
  /// separator behind it; empty where that can't be told.
  virtual std::string folder() { return {}; }
};

/// The time of the user's day.
class QUORVEX_API Clock {
 public:
  virtual ~Clock();
  /// The part of the day that has passed, from 0 up to 1: noon is 0.5.
  virtual double time_of_day() = 0;
};

class Host_Application;

/// Finds the spreadsheet that runs on this system.
class QUORVEX_API Application_Source {
 public:
  virtual ~Application_Source();
  /// Fails with no_application where none runs, and with numbers of its own while it can't answer.
  virtual std::shared_ptr<Host_Application> running() = 0;
};

struct Platform {
  std::shared_ptr<Locale_Source> locale;
  std::shared_ptr<Settings_Store> settings;
  std::shared_ptr<Timer_Service> timers;
  std::shared_ptr<Message_Box> message_box;
  std::shared_ptr<Yielder> yielder;
  std::shared_ptr<Memory_Gauge> memory;
  std::shared_ptr<Letter_Case> letters;
  std::shared_ptr<Library_Loader> libraries;
  std::shared_ptr<Clock> clock;
  std::shared_ptr<Application_Source> applications;
};

/// Makes the platform of the process when it is first called. For `Current_Platform` only.
QUORVEX_API Platform& Process_Platform();

/// The platform in use. Its members may be replaced; none may be null.
inline Platform& Current_Platform() {
  // Every call of the engine comes here several times, so the library is asked only once.
  static Platform& platform = Process_Platform();
  return platform;
}

/// The defaults of this system. `src/host/platform/` holds one implementation for each.
Platform Default_Platform();

/// A source that always gives this locale.
QUORVEX_API std::shared_ptr<Locale_Source> Fixed_Locale(const Locale& locale);

/// A store that lasts as long as it is held, for programs that leave the user's settings alone.
QUORVEX_API std::shared_ptr<Settings_Store> Settings_In_Memory();

/// A source that finds no spreadsheet.
std::shared_ptr<Application_Source> No_Application();

/// The system's locale of that name (fr_FR, de_CH.UTF-8); nothing if the system has none such.
QUORVEX_API std::optional<Locale> System_Locale(std::string_view name);

/// As the call that runs on this thread has found them; outside of a call, as they are now.
QUORVEX_API Separators Current_Separators();
QUORVEX_API Currency Current_Currency();
QUORVEX_API Locale Current_Locale();

inline void Yield() {
  Current_Platform().yielder->yield();
}

/// How many digits a loop may treat between two calls of `Yield`.
inline constexpr std::size_t digits_between_yields = std::size_t{1} << 20;

/// The same for cells, list elements and comparisons: few enough for a break to be noticed, and too
/// many for the asking to show.
inline constexpr std::size_t steps_between_yields = 64;

/// Fails with out_of_memory where `bytes` more can't be had. A system that promises memory which it
/// doesn't have would end the whole process when the memory is touched, so a text whose size a few
/// characters of input decide is asked for here first.
QUORVEX_API void Require_Memory(double bytes);

/// How many texts of the length of an operand or a result a call may hold at the same time.
inline constexpr double texts_at_once = 4;

}  // namespace quorvex
