// What Windows answers to the engine's questions.
#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <new>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "host/platform/windows.h"
#include "host/platform/windows_api.h"
#include "host/platform/windows_text.h"
#include "host/run_time_failure.h"
#include "support/failures.h"

namespace quorvex {
namespace {

using std::chrono::milliseconds;

std::string Described(const Locale& locale) {
  const char* side = locale.currency_side == Currency_Side::before ? "before" : "after";
  return locale.decimal_separator + "|" + locale.thousands_separator + "|" +
         locale.currency_symbol + "|" + side;
}

/// What the user has chosen, put back at the end of the scope.
class Choice {
 public:
  Choice(LCTYPE what, const std::wstring& value) : what_(what) {
    wchar_t before[80] = L"";
    ::GetLocaleInfoW(LOCALE_USER_DEFAULT, what, before, 80);
    before_ = before;
    ::SetLocaleInfoW(LOCALE_USER_DEFAULT, what, value.c_str());
  }
  Choice(const Choice&) = delete;
  Choice& operator=(const Choice&) = delete;
  ~Choice() { ::SetLocaleInfoW(LOCALE_USER_DEFAULT, what_, before_.c_str()); }

 private:
  LCTYPE what_;
  std::wstring before_;
};

TEST(User_Locale, FollowsWhatTheUserHasChosen) {
  // These are what the calls for wide texts say. Those for texts in the user's code page say the
  // same for all that the page has; a symbol that it lacks comes as a question mark, the narrow
  // blank of the third case as a blank or a question mark, and the first character of several is a
  // byte.
  const struct {
    const wchar_t* decimal;
    const wchar_t* thousands;
    const wchar_t* money_decimal;
    const wchar_t* symbol;
    const wchar_t* order;     // $1, 1$, $ 1, 1 $
    const wchar_t* decimals;  // of an amount of money
    const char* locale;
  } cases[] = {
      {L".", L",", L".", L"$", L"0", L"2", ".|,|$|before"},
      {L",", L".", L",", L"\u20AC", L"3", L"2", ",|.| \u20AC|after"},
      {L",", L"\u202F", L",", L"\u20AC", L"1", L"2", ",|\u202F|\u20AC|after"},
      {L".", L"\u2019", L".", L"CHF", L"2", L"2", ".|\u2019|CHF |before"},
      // Money may have a separator of its own, and no decimals.
      {L",", L".", L"-", L"kr.", L"2", L"3", ",|.|kr. |before"},
      {L".", L",", L".", L"\u00A5", L"0", L"0", ".|,|\u00A5|before"},
      // Of several characters the first counts, and what can't be used gives way to that of money.
      {L",;", L".'", L",", L"\u20AC", L"0", L"2", ",|.|\u20AC|before"},
      {L".", L"", L".", L"$", L"0", L"2", ".| |$|before"},
      {L",", L",", L",", L"$", L"0", L"2", ",| |$|before"},
      {L".", L",", L".", L"1", L"0", L"2", ".|,|$|before"},
  };
  const auto source = User_Locale();
  for (const auto& c : cases) {
    const Choice choices[] = {{LOCALE_SDECIMAL, c.decimal},
                              {LOCALE_STHOUSAND, c.thousands},
                              {LOCALE_SMONDECIMALSEP, c.money_decimal},
                              {LOCALE_SMONTHOUSANDSEP, L" "},
                              {LOCALE_SCURRENCY, c.symbol},
                              {LOCALE_ICURRENCY, c.order},
                              {LOCALE_ICURRDIGITS, c.decimals}};
    EXPECT_EQ(Described(source->current()), c.locale);
  }
}

TEST(System_Locale, KnowsNamesAsTheyAreWrittenElsewhere) {
  for (const char* name : {"de_DE", "de-DE", "de_DE.UTF-8", "de_DE@euro"}) {
    const auto locale = System_Locale(name);
    ASSERT_TRUE(locale) << name;
    EXPECT_EQ(Described(*locale), ",|.| \u20AC|after") << name;
  }
  EXPECT_EQ(Described(System_Locale("en_US").value()), ".|,|$|before");
  EXPECT_EQ(Described(System_Locale("C").value()), Described(Locale()));
  for (const std::string name : {"", "xx_YY", "de DE", "../de", "\xFF", "nonsense"})
    EXPECT_FALSE(System_Locale(name)) << name;
}

constexpr const wchar_t* own_key = L"Software\\VB and VBA Program Settings\\Quorvex Test";

class Settings : public testing::Test {
 protected:
  void TearDown() override { ::RegDeleteTreeW(HKEY_CURRENT_USER, own_key); }

  std::optional<std::string> read(std::string_view section, std::string_view key) {
    return store_->read("Quorvex Test", section, key);
  }
  void write(std::string_view section, std::string_view key, std::string_view value) {
    store_->write("Quorvex Test", section, key, value);
  }

  std::shared_ptr<Settings_Store> store_ = Registry_Settings();
};

TEST_F(Settings, AreReadAsTheyWereWritten) {
  EXPECT_EQ(read("Options", "MaxSD"), std::nullopt);
  for (const std::string& value :
       {std::string("100"), std::string(), std::string(" two  blanks "),
        std::string("\u20AC\u2019"), std::string("\r\n"), std::string(5000, 'x')}) {
    write("Options", "MaxSD", value);
    EXPECT_EQ(read("Options", "MaxSD"), value);
  }
  write("Other", "MaxSD", "7");
  write("Options", "Other", "8");
  EXPECT_EQ(read("options", "maxsd"), std::string(5000, 'x'));
  EXPECT_EQ(read("Other", "MaxSD"), "7");
  EXPECT_EQ(read("Options", "Other"), "8");
  EXPECT_EQ(store_->problem(), std::nullopt);
  EXPECT_NE(store_->place().find("Quorvex\\Options"), std::string::npos);
}

TEST_F(Settings, OtherValuesAreNotThereAndBadNamesFail) {
  write("Options", "MaxSD", "100");
  const DWORD number = 100;
  ASSERT_EQ(::RegSetKeyValueW(HKEY_CURRENT_USER, (std::wstring(own_key) + L"\\Options").c_str(),
                              L"MaxSD", REG_DWORD, &number, sizeof number),
            ERROR_SUCCESS);
  EXPECT_EQ(read("Options", "MaxSD"), std::nullopt);
  for (const std::string& section : {std::string(), std::string("a\\b"), std::string("a\0b", 3)}) {
    EXPECT_EQ(read(section, "MaxSD"), std::nullopt);
    EXPECT_EQ(Failure_Of([&] { write(section, "MaxSD", "1"); }), Failure_Number::invalid_call);
  }
}

/// Takes messages as a program does, until the time is over.
void Take_Messages(milliseconds time) {
  const auto end = std::chrono::steady_clock::now() + time;
  while (std::chrono::steady_clock::now() < end) {
    MSG message{};
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) ::DispatchMessageW(&message);
    ::Sleep(1);
  }
}

class ThreadTimers : public testing::Test {
 protected:
  std::unique_ptr<Timer> make(char letter) {
    return service_->make([this, letter] { log_ += letter; });
  }

  /// Beside those that other tests have left.
  std::size_t pending() const { return Count_Pending_Timers() - before_; }

  std::shared_ptr<Timer_Service> service_ = Thread_Timers();
  std::string log_;
  std::size_t before_ = Count_Pending_Timers();
};

TEST_F(ThreadTimers, RunOnceWhenTheThreadTakesItsMessages) {
  const auto early = make('a');
  const auto late = make('b');
  const auto cancelled = make('c');
  auto destroyed = make('d');
  late->arm(milliseconds(20));
  early->arm(milliseconds(-5));
  late->arm(milliseconds(150));  // moves it
  cancelled->arm(milliseconds(20));
  destroyed->arm(milliseconds(20));
  ::Sleep(50);
  EXPECT_EQ(log_, "");  // nothing runs behind the thread's back
  cancelled->cancel();
  destroyed.reset();
  EXPECT_EQ(pending(), 2U);
  Take_Messages(milliseconds(50));
  EXPECT_EQ(log_, "a");
  Take_Messages(milliseconds(250));
  EXPECT_EQ(log_, "ab");
  EXPECT_EQ(pending(), 0U);
}

TEST_F(ThreadTimers, RunWithoutMessagesWhenAsked) {
  const auto due = make('a');
  const auto later = make('b');
  due->arm(milliseconds(1));
  later->arm(milliseconds(60'000));
  ::Sleep(30);
  service_->run_due();
  service_->run_due();
  EXPECT_EQ(log_, "a");
  std::thread([this] { service_->run_due(); }).join();  // which is nothing to another thread
  EXPECT_EQ(pending(), 1U);
  later->cancel();
  EXPECT_EQ(pending(), 0U);
}

TEST_F(ThreadTimers, ACallMayArmOrDestroyItsTimerAndFail) {
  std::unique_ptr<Timer> timer;
  int calls = 0;
  timer = service_->make([&] {
    EXPECT_EQ(pending(), 1U);
    if (++calls < 3) {
      timer->arm(milliseconds(10));
    } else {
      timer.reset();
    }
    throw std::runtime_error("nobody to go to");
  });
  timer->arm(milliseconds(10));
  Take_Messages(milliseconds(300));
  EXPECT_EQ(calls, 3);
  EXPECT_EQ(timer, nullptr);
  EXPECT_EQ(pending(), 0U);
}

/// Answers the box of that title with a button, and gives the text that it shows.
std::wstring Answer_Box(const wchar_t* title, int button) {
  HWND box = nullptr;
  for (int i = 0; i < 500 && box == nullptr; ++i) {
    ::Sleep(10);
    box = ::FindWindowW(nullptr, title);
  }
  wchar_t text[200] = L"";
  constexpr int text_of_box = 0xFFFF;
  ::GetDlgItemTextW(box, text_of_box, text, 200);
  ::PostMessageW(box, WM_COMMAND, static_cast<WPARAM>(button), 0);
  return text;
}

TEST(Message_Box_Of_Windows, ShowsItsTextAndGivesTheAnswer) {
  const struct {
    Message_Buttons buttons;
    int button;
    Message_Answer answer;
  } cases[] = {{Message_Buttons::yes_no, IDYES, Message_Answer::yes},
               {Message_Buttons::yes_no, IDNO, Message_Answer::no},
               {Message_Buttons::ok, IDOK, Message_Answer::ok}};
  for (const auto& c : cases) {
    std::wstring text;
    std::thread user([&] { text = Answer_Box(L"Quorvex \u20AC", c.button); });
    const auto answer = Window_Message_Box()->show("Quorvex \u20AC", "Really\n\u2019so\u2019?",
                                                   Message_Icon::question, c.buttons);
    user.join();
    EXPECT_EQ(answer, c.answer);
    EXPECT_EQ(Narrow_Text(text), "Really\n\u2019so\u2019?");
  }
}

TEST(Break_Keys, EndACalculationOfTheProgramInFront) {
  const auto keys = Break_Keys();
  const auto yields = [&] {
    ::Sleep(40);
    keys->yield();
  };
  yields();
  HWND const window = ::CreateWindowExW(0, L"STATIC", L"front", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50,
                                        nullptr, nullptr, nullptr, nullptr);
  ASSERT_NE(window, nullptr);
  ::SetForegroundWindow(window);
  for (const BYTE key : {BYTE{VK_ESCAPE}, BYTE{VK_CANCEL}}) {
    ::keybd_event(key, 0, 0, 0);
    EXPECT_EQ(Failure_Of(yields), Failure_Number::interrupted) << int{key};
    ::keybd_event(key, 0, KEYEVENTF_KEYUP, 0);
    yields();
    // What is down when a call begins, such as to close a dialog, is not meant for the call.
    ::keybd_event(key, 0, 0, 0);
    Ignore_Keys_Held_Down();
    yields();
    yields();
    ::keybd_event(key, 0, KEYEVENTF_KEYUP, 0);
    yields();
    ::keybd_event(key, 0, 0, 0);
    EXPECT_EQ(Failure_Of(yields), Failure_Number::interrupted) << int{key};
    ::keybd_event(key, 0, KEYEVENTF_KEYUP, 0);
    yields();
  }
  ::keybd_event('A', 0, 0, 0);
  yields();
  ::keybd_event('A', 0, KEYEVENTF_KEYUP, 0);
  // What was typed is still there for the window.
  MSG message{};
  EXPECT_NE(::PeekMessageW(&message, window, WM_KEYFIRST, WM_KEYLAST, PM_REMOVE), 0);
  ::DestroyWindow(window);
}

TEST(Letters, HaveCapitalsInAllScriptsAndNoLanguage) {
  const auto letters = System_Letters();
  const struct {
    char32_t letter, capital;
  } cases[] = {{U'a', U'A'},           {U'i', U'I'},           {U'\u00E4', U'\u00C4'},
               {U'\u00FF', U'\u0178'}, {U'\u03C9', U'\u03A9'}, {U'\u044F', U'\u042F'},
               {U'\u00DF', U'\u00DF'}, {U'1', U'1'},           {U'\u20AC', U'\u20AC'},
               {0xD800, 0xD800},       {0x110000, 0x110000},   {U'\U0001F600', U'\U0001F600'}};
  for (const auto& c : cases) EXPECT_EQ(letters->capital(c.letter), c.capital) << int(c.letter);
}

TEST(Libraries, AreFoundBesideTheProgramThatHoldsTheEngine) {
  const auto libraries = System_Libraries();
  wchar_t program[400] = L"";
  ::GetModuleFileNameW(nullptr, program, 400);
  EXPECT_EQ(libraries->folder(),
            Narrow_Text(std::filesystem::path(program).parent_path().wstring()));
  void* const multiply = libraries->symbol("Quorvex.crx", "Multiply");
  EXPECT_NE(multiply, nullptr);
  EXPECT_EQ(libraries->symbol("Quorvex.crx", "Multiply"), multiply);
  EXPECT_EQ(libraries->symbol("Quorvex.crx", "Divide"), nullptr);
  EXPECT_EQ(libraries->symbol("Quorvex.none", "Multiply"), nullptr);
  EXPECT_NE(libraries->symbol("kernel32.dll", "GetTickCount64"), nullptr);
}

TEST(Memory_And_Clock, AnswerWithinReason) {
  const std::size_t free = System_Memory()->available_bytes();
  EXPECT_GT(free, std::size_t{1} << 20U);
  EXPECT_LT(free, std::size_t{1} << 50U);
  const double time = System_Clock()->time_of_day();
  EXPECT_GE(time, 0);
  EXPECT_LT(time, 1);
}

TEST(Texts, PassThroughTheSystemsForm) {
  for (const std::string& text : {std::string(), std::string("a\0b", 3),
                                  std::string("\u00E4\u20AC"), std::string("\U0001F600")})
    EXPECT_EQ(Narrow_Text(Wide_Text(text)), text);
  EXPECT_EQ(Narrow_Text(Wide_Text("a\xFFz")), "a\uFFFDz");
  // Refused before a character of it is looked at.
  const std::size_t too_long = std::size_t{1} << 31U;
  EXPECT_THROW(Wide_Text({"", too_long}), std::bad_alloc);
  EXPECT_THROW(Narrow_Text({L"", too_long}), std::bad_alloc);
  EXPECT_EQ(Narrow_Text(L"a\xD800z"), "a\uFFFDz");
  EXPECT_NE(System_Message(ERROR_FILE_NOT_FOUND).find(' '), std::string::npos);
  EXPECT_EQ(System_Message(0x2FFFFFFF), "error 805306367.");
}

}  // namespace
}  // namespace quorvex
