// The library and the spreadsheet's object model: what it describes there, and when it gives up.
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

#include "host/platform/windows_text.h"
#include "spreadsheet.h"
#include "surroundings.h"

namespace quorvex::windows {
namespace {

// "CATEGORY: macro" for each, as tests/frame/interface.txt has them behind the empty line.
std::vector<std::string> Listed_Macros() {
  const char* const file = std::getenv("QUORVEX_INTERFACE");
  std::ifstream stream(file != nullptr ? file : "");
  std::vector<std::string> macros;
  bool is_behind = false;
  for (std::string line; std::getline(stream, line);) {
    const std::size_t colon = line.find(": ");
    if (is_behind && colon != std::string::npos) {
      std::istringstream names(line.substr(colon + 2));
      for (std::string name; names >> name;) macros.push_back(line.substr(0, colon) + ": " + name);
    }
    is_behind = is_behind || line.empty();
  }
  return macros;
}

class Host : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(Load_Library());
    hasty_.emplace();
  }
  void TearDown() override {
    object_ = {};
    Pump_For(50);
    hasty_.reset();
    EXPECT_EQ(Can_Unload(S_OK), S_OK);
  }
  void start() {
    object_ = Make_Object();
    ASSERT_TRUE(object_);
    const auto application = host_.application();
    EXPECT_EQ(Call_Late(*object_.get(), "SetExcelApp", {Object(application)}).status, S_OK);
  }
  void start_and_wait() {
    start();
    Pump([&] { return host_.macros.size() >= 76; }, 3000);
    Pump_For(50);
  }

  std::optional<Hasty_Timers> hasty_;
  Mock_Spreadsheet host_;
  Com_Pointer<IDispatch> object_;
};

TEST_F(Host, IsToldOfAllFunctionsInOrder) {
  start_and_wait();
  const auto listed = Listed_Macros();
  ASSERT_EQ(listed.size(), 77u);
  ASSERT_EQ(host_.macros.size(), listed.size());
  for (std::size_t i = 0; i < listed.size(); ++i) {
    const Mock_Spreadsheet::Macro& macro = host_.macros[i];
    EXPECT_EQ(macro.category + ": " + macro.name, [&] {
      std::string wanted = listed[i];
      return wanted.insert(wanted.find(": ") + 2, "Quorvex.xla!");
    }());
    EXPECT_FALSE(macro.description.empty());
    EXPECT_TRUE(macro.others_are_omitted) << macro.name;
  }
  EXPECT_TRUE(host_.alerts && host_.updating);
  EXPECT_EQ(hasty_->intervals(), std::vector<UINT>{500});
}

TEST_F(Host, IsWalkedByNumbersWhereItHasNoEnumerators) {
  host_.has_enumerators = false;
  start_and_wait();
  EXPECT_EQ(host_.macros.size(), 77u);
}

TEST_F(Host, ThatIsBusyOnceIsAskedAgain) {
  host_.busy_times = 1;
  start_and_wait();
  EXPECT_EQ(host_.macros.size(), 77u);
  EXPECT_EQ(hasty_->intervals(), (std::vector<UINT>{500, 500}));
}

TEST_F(Host, ThatStaysBusyIsGivenUpAfter42Attempts) {
  host_.busy_times = 1000;
  start();
  Pump([&] { return host_.asked >= 42; });
  Pump_For(300);
  EXPECT_EQ(host_.asked, 42);
  EXPECT_TRUE(host_.macros.empty());
  EXPECT_TRUE(host_.alerts && host_.updating);
  const auto& intervals = hasty_->intervals();
  EXPECT_GE(std::ranges::count(intervals, 500u), 20);
  EXPECT_GE(std::ranges::count(intervals, 5000u), 21);
  EXPECT_TRUE(std::ranges::is_sorted(intervals.begin(), intervals.begin() + 20));
}

TEST_F(Host, ThatFailsOtherwiseIsLeftAloneAtOnce) {
  for (const char* member : {"version", "addins", "Name", "installed"}) {
    host_ = {};
    host_.failing = member;
    start();
    Pump([&] { return host_.asked > 0; }, 3000);
    Pump_For(50);
    EXPECT_EQ(host_.asked, 1) << member;
    EXPECT_TRUE(host_.macros.empty()) << member;
    EXPECT_TRUE(host_.alerts && host_.updating) << member;
    // The way is free for the next instance.
    host_.failing.clear();
    start_and_wait();
    EXPECT_EQ(host_.macros.size(), 77u) << member;
    object_ = {};
    Can_Unload(S_OK);
  }
}

TEST_F(Host, ThatFailsInVersion10IsLeftAsItIs) {
  host_.version = "10.0";
  host_.failing = "addins";
  start();
  Pump([&] { return host_.asked > 0; }, 3000);
  Pump_For(50);
  EXPECT_FALSE(host_.alerts || host_.updating);
  EXPECT_EQ(hasty_->intervals().size(), 1u);
}

TEST_F(Host, WithoutTheAddInIsLeftAsItIs) {
  host_.is_installed = false;
  start();
  Pump([&] { return host_.asked > 0; }, 3000);
  Pump_For(50);
  EXPECT_TRUE(host_.macros.empty());
  EXPECT_FALSE(host_.alerts || host_.updating);
  object_ = Make_Object();
  Pump_For(100);
  EXPECT_EQ(host_.asked, 1);
}

TEST_F(Host, ThatRefusesARowGetsTheOthers) {
  for (const int number : {1004, 18}) {
    host_ = {};
    host_.failing_macro = "Quorvex.xla!qvxABS";
    host_.failure = number;
    start_and_wait();
    EXPECT_EQ(host_.macros.size(), 76u) << number;
    EXPECT_TRUE(host_.alerts) << number;
    object_ = {};
    Can_Unload(S_OK);
  }
}

// The spreadsheet as the system knows it to be running.
class Running_Spreadsheet {
 public:
  explicit Running_Spreadsheet(Mock_Spreadsheet& host) : object_(host.application()) {
    const wchar_t* const key = L"Excel.Application\\CLSID";
    wchar_t id[40];
    ::StringFromGUID2(class_, id, 40);
    ::RegSetKeyValueW(HKEY_CLASSES_ROOT, key, nullptr, REG_SZ, id,
                      static_cast<DWORD>((std::wcslen(id) + 1) * sizeof(wchar_t)));
    ::RegisterActiveObject(object_.get(), class_, ACTIVEOBJECT_STRONG, &cookie_);
  }
  Running_Spreadsheet(const Running_Spreadsheet&) = delete;
  Running_Spreadsheet& operator=(const Running_Spreadsheet&) = delete;
  ~Running_Spreadsheet() {
    ::RevokeActiveObject(cookie_, nullptr);
    ::RegDeleteTreeW(HKEY_CLASSES_ROOT, L"Excel.Application");
  }

 private:
  static constexpr CLSID class_ = Guid("5d0ba2c1-6c5e-4a47-9d0d-3b0a2f3bd7a1");
  Mock_Pointer object_;
  DWORD cookie_ = 0;
};

TEST_F(Host, ThatRunsIsFoundByItself) {
  // The system starts what knows of running programs when it is first asked.
  Com_Pointer<IUnknown> none;
  ::GetActiveObject(class_guid, nullptr, none.put());
  object_ = Make_Object();
  Pump([&] { return hasty_->intervals().size() >= 3; }, 3000);
  // Nothing runs yet, which is a reason to try again.
  EXPECT_GE(hasty_->intervals().size(), 3u);
  const Running_Spreadsheet running(host_);
  Pump([&] { return host_.macros.size() == 77; }, 3000);
  EXPECT_EQ(host_.macros.size(), 77u);
}

TEST_F(Host, KeepsTheLibraryWhileItsTimerIsArmed) {
  start();
  object_ = {};
  ::CoFreeUnusedLibraries();
  ASSERT_NE(::GetModuleHandleW(L"Quorvex.dll"), nullptr);
  Pump([&] { return host_.macros.size() == 77; }, 3000);
  EXPECT_EQ(host_.macros.size(), 77u);
  EXPECT_EQ(Can_Unload(S_OK), S_OK);
}

TEST_F(Host, IsTalkedToThoughTheLibraryWasLetGoOf) {
  start();
  object_ = {};
  HMODULE const library = ::GetModuleHandleW(L"Quorvex.dll");
  for (int i = 0; i < 5; ++i) ::FreeLibrary(library);
  ASSERT_EQ(::GetModuleHandleW(L"Quorvex.dll"), library);
  Pump([&] { return host_.macros.size() == 77; }, 3000);
  EXPECT_EQ(host_.macros.size(), 77u);
}

TEST(Timer, GoesOffInAMessageLoopAndNotBefore) {
  Mock_Spreadsheet host;
  auto object = Make_Object();
  const ULONGLONG start = ::GetTickCount64();
  const auto application = host.application();
  Call_Late(*object.get(), "SetExcelApp", {Object(application)});
  ::Sleep(700);
  EXPECT_TRUE(host.macros.empty());
  Pump([&] { return !host.macros.empty(); }, 3000);
  EXPECT_EQ(host.macros.size(), 77u);
  EXPECT_GE(::GetTickCount64() - start, 500u);
  object = {};
  EXPECT_EQ(Can_Unload(S_OK), S_OK);
}

TEST(Unloading, WaitsForObjectsAndLocks) {
  auto object = Make_Object();
  ASSERT_TRUE(object);
  EXPECT_EQ(Can_Unload(S_FALSE), S_FALSE);
  object = {};
  // What is armed goes off without a spreadsheet, and tries for two minutes.
  EXPECT_EQ(Can_Unload(S_FALSE), S_FALSE);
  Com_Pointer<IClassFactory> factory;
  CLSID kind;
  ASSERT_EQ(::CLSIDFromProgID(Wide_Text(prog_id).c_str(), &kind), S_OK);
  ASSERT_EQ(::CoGetClassObject(kind, CLSCTX_INPROC_SERVER, nullptr, IID_IClassFactory,
                               factory.put_void()),
            S_OK);
  void* none = nullptr;
  EXPECT_EQ(factory->CreateInstance(factory.get(), IID_IUnknown, &none), CLASS_E_NOAGGREGATION);
  EXPECT_EQ(factory->CreateInstance(nullptr, IID_IClassFactory, &none), E_NOINTERFACE);
  EXPECT_EQ(none, nullptr);
}

}  // namespace
}  // namespace quorvex::windows
