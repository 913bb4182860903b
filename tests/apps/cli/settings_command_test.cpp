// `quorvex settings` and `quorvex about`, and what the tool does about settings that are no good.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "apps/cli/run_tool.h"
#include "apps/cli/terminal.h"

namespace quorvex {
namespace {

namespace fs = std::filesystem;

// A configuration folder that lasts over several runs of the tool.
class Settings : public testing::Test {
 protected:
  Tool_Run run(const std::vector<std::string>& words, std::string_view input = {}) const {
    return Run_Tool(words, input, {"XDG_CONFIG_HOME=" + folder_.path().string()});
  }

  fs::path file() const { return folder_.path() / "quorvex" / "settings"; }

  void put(const std::string& text) const {
    fs::create_directories(file().parent_path());
    folder_.write("quorvex/settings", text);
  }

  // The limit that a formula runs with.
  std::string limit() const { return run({"qvxDEFAULTMAXSD()"}).output; }

  const Temporary_Folder folder_;
};

TEST_F(Settings, AreStoredForAllRuns) {
  EXPECT_EQ(run({"settings"}).output, "max-sd = 100\n");
  EXPECT_EQ(File_Text(file()), "Quorvex/Options/MaxSD = 100\n");
  const Tool_Run change = run({"settings", "max-sd", "0012"});
  EXPECT_EQ(change.exit_code, 0);
  EXPECT_EQ(change.output + change.errors, "");
  EXPECT_EQ(run({"settings", "max-sd"}).output, "12\n");
  EXPECT_EQ(limit(), "12\n");
  EXPECT_EQ(run({"batch"}, R"({"call":"qvxDEFAULTMAXSD"})").output, "{\"value\":12}\n");
  EXPECT_NE(run({"about"}).output.find("Default Max SD:\n12\n"), std::string::npos);
  EXPECT_EQ(run({"settings", "max-sd", "2147483648"}).exit_code, 0);
  EXPECT_EQ(limit(), "2147483648\n");
  EXPECT_EQ(run({"settings", "max-sd", "0"}).exit_code, 0);
  EXPECT_EQ(limit(), "0\n");
}

TEST_F(Settings, RefuseWhatTheDialogRefuses) {
  put("# mine\nQuorvex/Options/MaxSD = 30\n");
  const struct {
    std::vector<std::string> words;
    const char* complaint;
  } cases[] = {
      {{"settings", "max-sd", "12x"}, "Enter digits (0-9) only."},
      {{"settings", "max-sd", "-5"}, "Enter digits (0-9) only."},
      {{"settings", "max-sd", "1.5"}, "Enter digits (0-9) only."},
      {{"settings", "max-sd", ""}, "Enter digits (0-9) only."},
      {{"settings", "max-sd", "2147483649"}, "2147483648 significant digits."},
      {{"settings", "max-sd", std::string(400, '9')}, "2147483648 significant digits."},
      {{"settings", "digits"}, "there is no setting \"digits\""},
      {{"--digits", "5", "settings"}, "give the one or the other"},
  };
  for (const auto& c : cases) {
    const Tool_Run refused = run(c.words);
    EXPECT_EQ(refused.exit_code, 2) << c.complaint;
    EXPECT_NE(refused.errors.find(c.complaint), std::string::npos) << refused.errors;
  }
  EXPECT_EQ(File_Text(file()), "# mine\nQuorvex/Options/MaxSD = 30\n");
}

TEST_F(Settings, OfOneRunLeaveTheStoredOnesAlone) {
  EXPECT_EQ(run({"--digits", "5", "qvxDEFAULTMAXSD()"}).output, "5\n");
  EXPECT_FALSE(fs::exists(file()));
  put("Quorvex/Options/MaxSD = nonsense\n");
  EXPECT_EQ(run({"--digits", "5", "qvxDEFAULTMAXSD()"}).output, "5\n");
  EXPECT_EQ(run({"--digits", "5", "qvxDEFAULTMAXSD()"}).errors, "");
  EXPECT_EQ(run({"functions", "qvxADD"}).exit_code, 0);
}

TEST_F(Settings, ThatAreNoNumberAreToldAndCanBeMended) {
  for (const char* bad : {"nonsense", "", "1E+999", "50%"}) {
    const std::string text = std::string("Quorvex/Options/MaxSD = ") + bad + "\n";
    put(text);
    for (const std::vector<std::string>& words :
         std::vector<std::vector<std::string>>{{"1"}, {"-"}, {"batch"}, {"about"}, {"settings"}}) {
      const Tool_Run told = run(words, "1\n");
      EXPECT_EQ(told.exit_code, 2) << words[0];
      EXPECT_EQ(told.output, "") << words[0];
      EXPECT_NE(told.errors.find(std::string("no number: \"") + bad + "\""), std::string::npos);
      EXPECT_NE(told.errors.find(file().string()), std::string::npos) << told.errors;
    }
    EXPECT_EQ(File_Text(file()), text);
    EXPECT_EQ(run({"settings", "max-sd", "40"}).exit_code, 0);
    EXPECT_EQ(limit(), "40\n");
  }
}

TEST_F(Settings, BeyondTheBoundsAreTold) {
  for (const char* odd : {"-3", "1E+20", "1.5"}) {
    put(std::string("Quorvex/Options/MaxSD = ") + odd + "\n");
    const Tool_Run told = run({"1"});
    EXPECT_EQ(told.exit_code, 0);
    EXPECT_NE(told.errors.find("from 0 to 2147483648"), std::string::npos) << told.errors;
    EXPECT_NE(told.errors.find(file().string()), std::string::npos) << told.errors;
  }
  put("Quorvex/Options/MaxSD = 2147483648\n");
  EXPECT_EQ(run({"1"}).errors, "");
}

TEST_F(Settings, ThatCantBeReadAreToldAndNeverOverwritten) {
  fs::create_directories(file());  // a folder in the place of the file
  const Tool_Run calculated = run({"qvxDEFAULTMAXSD()"});
  EXPECT_EQ(calculated.exit_code, 0);
  EXPECT_EQ(calculated.output, "100\n");
  EXPECT_EQ(calculated.errors.find("warning: "), 0U) << calculated.errors;
  for (const std::vector<std::string>& words : std::vector<std::vector<std::string>>{
           {"settings"}, {"settings", "max-sd"}, {"settings", "max-sd", "5"}}) {
    const Tool_Run refused = run(words);
    EXPECT_EQ(refused.exit_code, 2);
    EXPECT_NE(refused.errors.find(file().string() + " can't be read"), std::string::npos)
        << refused.errors;
  }
  EXPECT_TRUE(fs::is_directory(file()));
}

TEST_F(Settings, OfAnEmptyFileAreToldAndSetAnew) {
  put("");
  EXPECT_NE(run({"1"}).errors.find("is empty. The default limit is 100."), std::string::npos);
  EXPECT_EQ(run({"1"}).errors, "");
}

TEST_F(Settings, OfAFileThatHoldsNoneAreTold) {
  put("MaxSD = 50\n");
  EXPECT_NE(run({"settings", "max-sd"}).errors.find("holds no setting"), std::string::npos);
  EXPECT_EQ(File_Text(file()), "MaxSD = 50\n");
  EXPECT_NE(run({"1"}).errors.find("holds no setting"), std::string::npos);
}

TEST_F(Settings, WithoutAFolderToStoreThemInDoNoHarm) {
  folder_.write("quorvex", "a file where the folder should be");
  const Tool_Run calculated = run({"qvxADD(1,2)"});
  EXPECT_EQ(calculated.exit_code, 0) << calculated.errors;
  EXPECT_EQ(calculated.output, "3\n");
  const Tool_Run refused = run({"settings", "max-sd", "5"});
  EXPECT_EQ(refused.exit_code, 2);
  EXPECT_EQ(refused.errors.find("error: "), 0U) << refused.errors;
}

TEST_F(Settings, SurviveADiskThatIsFull) {
  put("Quorvex/Options/MaxSD = 30\n");
  // No file can grow: what is written fails as on a full disk.
  const std::string command =
      "bash -c 'trap \"\" XFSZ; ulimit -f 0; XDG_CONFIG_HOME=" + folder_.path().string() + " " +
      std::string(QUORVEX_TOOL) + " settings max-sd 5 2>&1 | grep -q \"be written: \"'";
  EXPECT_EQ(std::system(command.c_str()), 0);
  EXPECT_EQ(File_Text(file()), "Quorvex/Options/MaxSD = 30\n");
  EXPECT_EQ(std::distance(fs::directory_iterator(file().parent_path()), {}), 1);
}

class Settings_Dialog : public Settings {
 protected:
  static constexpr const char* question = "Default Maximum Significant Digits [";
};

TEST_F(Settings_Dialog, ChecksWhatIsTypedAndStoresIt) {
  Tool_Terminal terminal(folder_.path(), {"settings"});
  EXPECT_TRUE(terminal.shows("Set Default Max SD")) << terminal.shown();
  terminal.type_at(std::string(question) + "100]: ", "2x\n");
  EXPECT_TRUE(terminal.shows("Enter digits (0-9) only.")) << terminal.shown();
  terminal.type_at(std::string(question) + "100]: ", "9999999999\n");
  EXPECT_TRUE(terminal.shows("The maximum is 2147483648 significant digits.")) << terminal.shown();
  terminal.type_at(std::string(question) + "2147483648]: ", "55\n");
  EXPECT_TRUE(terminal.shows("The default limit is 55.")) << terminal.shown();
  EXPECT_EQ(terminal.end(), 0);
  EXPECT_EQ(limit(), "55\n");
}

TEST_F(Settings_Dialog, AboutStandsBetweenTheResultsAndLeadsThere) {
  Tool_Terminal terminal(folder_.path(), {"qvxADD(1,2)", "qvxABOUT()", "qvxDEFAULTMAXSD()"});
  EXPECT_TRUE(terminal.shows("3\r\nAbout Quorvex")) << terminal.shown();
  terminal.type_at("[s] Set Default Max SD: ", "s\n");
  terminal.type_at(std::string(question) + "100]: ", "12\n");
  terminal.type_at("[s] Set Default Max SD: ", "\n");
  EXPECT_TRUE(terminal.shows("\n12\r\n")) << terminal.shown();
  EXPECT_EQ(terminal.end(), 0);
}

TEST_F(Settings_Dialog, NoFormGetsIntoTheAnswersOfABatch) {
  Tool_Terminal terminal(folder_.path(), {"batch"});
  terminal.type("{\"call\":\"qvxABOUT\"}\n");
  EXPECT_TRUE(terminal.shows("{\"value\":{\"missing\":true}}\r\n")) << terminal.shown();
  terminal.type("{\"call\":\"qvxTEST\"}\n");
  EXPECT_TRUE(terminal.shows("}\r\n{\"value\":\"Welcome")) << terminal.shown();
  terminal.type("\x04");
  EXPECT_EQ(terminal.end(), 0);
}

TEST_F(Settings_Dialog, MendsASettingThatIsNoNumber) {
  put("Quorvex/Options/MaxSD = nonsense\n");
  Tool_Terminal terminal(folder_.path(), {"settings"});
  EXPECT_TRUE(terminal.shows("no number: \"nonsense\"")) << terminal.shown();
  terminal.type_at("[100]: ", "8\n");
  EXPECT_EQ(terminal.end(), 0);
  EXPECT_EQ(limit(), "8\n");
}

TEST_F(Settings_Dialog, SaysThatItCantStore) {
  fs::create_directories(file());
  Tool_Terminal terminal(folder_.path(), {"settings"});
  terminal.type_at("[100]: ", "8\n");
  EXPECT_TRUE(terminal.shows("The stored limit is what it was")) << terminal.shown();
  EXPECT_EQ(terminal.end(), 2);
}

TEST_F(Settings, AreFollowedByAWorksheetThatIsWatched) {
  const std::string sheet = folder_.write("thirds.csv", "\"=qvxDIVIDE(1,third)\"\n");
  Tool_Terminal terminal(folder_.path(), {"sheet", sheet, "--name", "third=3", "--watch"});
  EXPECT_TRUE(terminal.shows("333333\r\nWatching")) << terminal.shown();
  EXPECT_EQ(run({"settings", "max-sd", "4"}).exit_code, 0);
  EXPECT_TRUE(terminal.shows("The default limit is 4 now.\r\n0.33333\r\n")) << terminal.shown();
  folder_.write("thirds.csv", "\"=qvxADD(40,2)\"\n");
  EXPECT_TRUE(terminal.shows("has changed.\r\n42\r\n")) << terminal.shown();
  fs::remove(sheet);
  EXPECT_TRUE(terminal.shows("is gone; waiting for it to come back.")) << terminal.shown();
  folder_.write("thirds.csv", "=1+1\n");
  EXPECT_TRUE(terminal.shows("is back.\r\n2\r\n")) << terminal.shown();
  fs::remove(file());
  EXPECT_TRUE(terminal.shows("no longer stored. It stays 4 here.")) << terminal.shown();
  terminal.type("\x03");
  EXPECT_EQ(terminal.end(), -SIGINT);
}

}  // namespace
}  // namespace quorvex
