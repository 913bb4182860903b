// The settings store: its file's text, and the file.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <thread>
#include <vector>

#include "host/platform/posix.h"
#include "host/settings_text.h"
#include "support/environment.h"
#include "support/failures.h"
#include "support/text_files.h"

namespace quorvex {
namespace {

namespace fs = std::filesystem;

void Write(const fs::path& path, std::string_view contents) {
  fs::create_directories(path.parent_path());
  std::ofstream(path, std::ios::binary) << contents;
}

std::optional<std::string> Max_SD(Settings_Store& store) {
  return store.read("Quorvex", "Options", "MaxSD");
}

void Set_Max_SD(Settings_Store& store, std::string_view value) {
  store.write("Quorvex", "Options", "MaxSD", value);
}

TEST(SettingsText, AnyTextSurvives) {
  std::string every_byte;
  for (int byte = 0; byte < 256; ++byte) every_byte += static_cast<char>(byte);
  const std::string texts[] = {"",    " ", "100",    " two  blanks ", "a/b=c#d",
                               "%41", "%", "\n",     "\r\n",          "#",
                               "=",   "/", "\u20AC", every_byte,      std::string(10000, 'x')};
  std::string contents;
  const auto names = [](std::string_view text) {
    return std::vector<Setting_Name>{{text, "b", "c"}, {"a", text, "c"}, {"a", "b", text}};
  };
  for (const std::string& text : texts) {
    for (const Setting_Name& name : names(text)) {
      contents = With_Setting(contents, name, "overwritten");
      contents = With_Setting(contents, name, text);
    }
  }
  for (const std::string& text : texts) {
    for (const Setting_Name& name : names(text))
      EXPECT_TRUE(Find_Setting(contents, name) == text) << text.substr(0, 20);
  }
  // Each name stands once, however often it was written.
  EXPECT_EQ(std::count(contents.begin(), contents.end(), '\n'), 3 * 15);
}

TEST(SettingsText, ForeignAndBrokenLinesAreKeptAndHarmNothing) {
  const std::string contents =
      "# a/b/c = comment\n\nno equals sign\na/b = two levels\na/b/c/d = four\na/b/%zz = 1\n"
      "  A/b/c=\tfirst \r\na/b/c = second\n\xFF\xFE\nlast/line/here = 7";
  EXPECT_EQ(Find_Setting(contents, {"a", "b", "c"}), "first");
  EXPECT_EQ(Find_Setting(contents, {"last", "line", "here"}), "7");
  EXPECT_EQ(Find_Setting(contents, {"# a", "b", "c"}), std::nullopt);
  EXPECT_EQ(Find_Setting(contents, {"a", "b/c", "d"}), std::nullopt);
  EXPECT_EQ(With_Setting(contents, {"a", "b", "c"}, "new"),
            "# a/b/c = comment\n\nno equals sign\na/b = two levels\na/b/c/d = four\na/b/%zz = 1\n"
            "a/b/c = new\n\xFF\xFE\nlast/line/here = 7\n");
}

TEST(SettingsText, AValueThatCannotBeReadCountsAsItIsWritten) {
  for (const char* value : {"50%", "%4", "%zz", "100 %"})
    EXPECT_EQ(Find_Setting(std::string("a/b/c = ") + value + "\na/b/c = 7\n", {"a", "b", "c"}),
              value);
}

TEST(SettingsText, AMarkBeforeTheFirstLineIsPassedOver) {
  EXPECT_EQ(Find_Setting("\xEF\xBB\xBF"
                         "a/b/c = 5\n",
                         {"a", "b", "c"}),
            "5");
  EXPECT_EQ(With_Setting("\xEF\xBB\xBF"
                         "a/b/c = 5\n",
                         {"a", "b", "c"}, "6"),
            "\xEF\xBB\xBF"
            "a/b/c = 6\n");
}

TEST(SettingsText, TextWithoutASettingIsTold) {
  for (const char* text : {"garbage", "50\n", "MaxSD = 50", "a/b/c: 50", "a/b = 1", "a/b/c/d = 1",
                           "# comment\nx\n", "a/b/%zz = 1"})
    EXPECT_TRUE(Holds_No_Setting(text)) << text;
  for (const char* text : {"", "\n \n", "# comment", "x\na/b/c = 1",
                           "\xEF\xBB\xBF"
                           "a/b/c = 50%"})
    EXPECT_FALSE(Holds_No_Setting(text)) << text;
}

TEST(SettingsFile, IsMadeWhenFirstWrittenAndReadByTheNextProcess) {
  const Temporary_Folder folder;
  const fs::path path = folder.path() / "new" / "quorvex" / "settings";
  const auto store = File_Settings(path);
  EXPECT_EQ(Max_SD(*store), std::nullopt);
  EXPECT_FALSE(fs::exists(path.parent_path()));
  Set_Max_SD(*store, "250");
  Set_Max_SD(*store, "300");
  EXPECT_EQ(Max_SD(*File_Settings(path)), "300");
  EXPECT_EQ(File_Text(path), "Quorvex/Options/MaxSD = 300\n");
  // Nothing else stays behind.
  EXPECT_EQ(std::distance(fs::directory_iterator(path.parent_path()), {}), 1);
}

TEST(SettingsFile, ThatCannotBeReadIsNeverOverwritten) {
  const Temporary_Folder folder;
  const fs::path pipe = folder.path() / "pipe";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  Write(folder.path() / "file", "x");
  const fs::path unreadable[] = {folder.path(), pipe, folder.path() / "file" / "settings"};
  for (const fs::path& path : unreadable) {
    const auto store = File_Settings(path);
    EXPECT_EQ(Max_SD(*store), std::nullopt) << path;
    EXPECT_EQ(Failure_Of([&] { Set_Max_SD(*store, "1"); }), Failure_Number::invalid_call) << path;
  }
  EXPECT_TRUE(fs::is_fifo(pipe));
  EXPECT_EQ(File_Text(folder.path() / "file"), "x");
  const auto homeless = File_Settings(std::nullopt);
  EXPECT_EQ(Max_SD(*homeless), std::nullopt);
  EXPECT_EQ(Failure_Of([&] { Set_Max_SD(*homeless, "1"); }), Failure_Number::invalid_call);
}

TEST(SettingsFile, BehindALinkStaysBehindIt) {
  const Temporary_Folder folder;
  Write(folder.path() / "kept" / "settings", "# mine\n");
  fs::create_symlink(folder.path() / "kept" / "settings", folder.path() / "link");
  Set_Max_SD(*File_Settings(folder.path() / "link"), "5");
  EXPECT_TRUE(fs::is_symlink(folder.path() / "link"));
  EXPECT_EQ(File_Text(folder.path() / "kept" / "settings"), "# mine\nQuorvex/Options/MaxSD = 5\n");
}

TEST(SettingsFile, WritersAtTheSameTimeLoseAndTearNothing) {
  const Temporary_Folder folder;
  const fs::path path = folder.path() / "settings";
  const std::string filling(5000, '7');
  Set_Max_SD(*File_Settings(path), filling);
  const auto write_ten = [&](const char* section) {
    const auto store = File_Settings(path);
    for (char key = '0'; key <= '9'; ++key) {
      store->write("test", section, std::string(1, key), filling);
      EXPECT_EQ(Max_SD(*store), filling);
    }
  };
  std::thread first(write_ten, "first");
  std::thread second(write_ten, "second");
  write_ten("third");
  first.join();
  second.join();
  const auto store = File_Settings(path);
  for (const char* section : {"first", "second", "third"}) {
    for (char key = '0'; key <= '9'; ++key)
      EXPECT_EQ(store->read("test", section, std::string(1, key)), filling);
  }
}

TEST(SettingsPath, FollowsTheEnvironment) {
  const struct {
    std::optional<std::string> configuration;
    std::optional<std::string> home;
    std::optional<fs::path> path;
  } cases[] = {
      {"/conf", "/home/u", "/conf/quorvex/settings"},
      {std::nullopt, "/home/u", "/home/u/.config/quorvex/settings"},
      {"", "/home/u", "/home/u/.config/quorvex/settings"},
      {"relative", "/home/u", "/home/u/.config/quorvex/settings"},
      {std::nullopt, "relative", std::nullopt},
  };
  for (const auto& c : cases) {
    const Variable_Guard configuration("XDG_CONFIG_HOME", c.configuration);
    const Variable_Guard home("HOME", c.home);
    EXPECT_EQ(Settings_Path(), c.path);
  }
}

}  // namespace
}  // namespace quorvex
