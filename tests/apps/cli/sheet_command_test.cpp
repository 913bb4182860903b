// `quorvex sheet` as its users meet it.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "apps/cli/run_tool.h"

namespace quorvex {
namespace {

constexpr const char* prices =
    "item,price\n"
    "tea,12345678901234567890.25\n"
    "milk,0.5\n"
    "total,\"=qvxADD(B2,B3)\"\n";

TEST(SheetCommand, PrintsTheGrid) {
  const Temporary_Folder folder;
  const Tool_Run run = Run_Tool({"sheet", folder.write("prices.csv", prices)});
  EXPECT_EQ(run.exit_code, 0) << run.errors;
  EXPECT_NE(run.output.find("total  12345678901234567890.75"), std::string::npos) << run.output;
  EXPECT_EQ(run.errors, "");
}

TEST(SheetCommand, ExamplesGiveWhatHasBeenPublished) {
  const auto folder = std::filesystem::path(QUORVEX_SOURCE) / "examples";
  std::size_t examples = 0;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    if (entry.path().extension() != ".csv") continue;
    const Tool_Run run = Run_Tool({"sheet", entry.path().string()});
    EXPECT_EQ(run.exit_code, 0) << entry << run.errors;
    EXPECT_NE(run.output.find("True"), std::string::npos) << entry;
    EXPECT_EQ(run.output.find("False"), std::string::npos) << entry << '\n' << run.output;
    ++examples;
  }
  EXPECT_GT(examples, 0U);
}

TEST(SheetCommand, CutsOnlyWhenTold) {
  const Temporary_Folder folder;
  const Tool_Run run = Run_Tool({"sheet", folder.write("prices.csv", prices), "--width", "8"});
  EXPECT_NE(run.output.find("1234567\xE2\x80\xA6"), std::string::npos) << run.output;
}

TEST(SheetCommand, WritesCsv) {
  const Temporary_Folder folder;
  const std::string file = folder.write("prices.csv", prices);
  const std::string calculated =
      "item,price\ntea,12345678901234567890.25\nmilk,0.5\ntotal,12345678901234567890.75\n";
  const std::string target = (folder.path() / "out.csv").string();
  const Tool_Run to_file = Run_Tool({"sheet", file, "-o", target});
  EXPECT_EQ(to_file.output, "");
  EXPECT_EQ(File_Text(target), calculated) << to_file.errors;
  EXPECT_EQ(Run_Tool({"sheet", "-o", "-", file}).output, calculated);
}

void Expect_Refusal(const std::vector<std::string>& arguments) {
  std::vector<std::string> words = {"sheet"};
  for (const std::string& argument : arguments) words.push_back(argument);
  const Tool_Run run = Run_Tool(words);
  EXPECT_EQ(run.exit_code, 2) << words.back();
  EXPECT_EQ(run.errors.find("error: "), 0U) << run.errors;
  EXPECT_EQ(run.output, "") << words.back();
}

TEST(SheetCommand, WritesOntoTheSheetItselfOnlyWhenForced) {
  const Temporary_Folder folder;
  const std::string file = folder.write("self.csv", "00123,=1+1\n");
  Run_Tool({"sheet", file, "-o", file});
  Expect_Refusal(
      {file, "-o",
       folder.path().string() + "/../" + folder.path().filename().string() + "/self.csv"});
  EXPECT_EQ(File_Text(file), "00123,=1+1\n");
  EXPECT_EQ(Run_Tool({"sheet", file, "--formulas"}).output, "00123,=1+1\n");
  EXPECT_EQ(Run_Tool({"sheet", file, "-o", file, "--force"}).exit_code, 0);
  EXPECT_EQ(File_Text(file), "00123,2\n");
}

TEST(SheetCommand, ReadsStandardInputAndNamesIt) {
  EXPECT_EQ(Run_Tool({"sheet", "-", "-o", "-"}, "a;b\n1;=A2*2\n").output, "a;b\n1;2\n");
  EXPECT_EQ(Run_Tool({"sheet", "-", "--separator", "|", "-o", "-"}, "1|=A1*2\n").output, "1|2\n");
  const Tool_Run run = Run_Tool({"sheet", "-"}, "=A1");
  EXPECT_EQ(run.errors.find("error: standard input: A1: "), 0U) << run.errors;
}

TEST(SheetCommand, RefusesToWriteOntoTheFileThatItIsFed) {
  const Temporary_Folder folder;
  const std::string file = folder.write("self.csv", "=1+1\n");
  const std::string command = std::string("exec '" QUORVEX_TOOL "' sheet - -o '") + file + "' < '" +
                              file + "' 2> /dev/null";
  EXPECT_NE(std::system(command.c_str()), 0);
  EXPECT_EQ(File_Text(file), "=1+1\n");
}

TEST(SheetCommand, TakesAwayWhatKilledRunsLeftAndNothingElse) {
  const Temporary_Folder folder;
  const auto stays = [&](const std::string& name) { return folder.write(name, "old"); };
  const std::string left = stays("out.csv.part123");
  const std::string at_work = stays("out.csv.part456");
  const std::string others[] = {at_work, stays("out.csv.part"), stays("out.csv.part1a"),
                                stays("other.csv.part1"), stays("out.csv.part1.csv")};
  const int lock = ::open(at_work.c_str(), O_RDONLY);
  ASSERT_EQ(::flock(lock, LOCK_EX), 0);
  const std::string target = (folder.path() / "out.csv").string();
  EXPECT_EQ(Run_Tool({"sheet", "-", "-o", target}, "=1+1\n").exit_code, 0);
  EXPECT_EQ(File_Text(target), "2\n");
  EXPECT_FALSE(std::filesystem::exists(left));
  for (const std::string& other : others) EXPECT_EQ(File_Text(other), "old") << other;
  ::close(lock);
}

TEST(SheetCommand, WholeColumnsCostTheCellsThatAreUsed) {
  const Tool_Run run = Run_Tool({"--timeout", "20", "sheet", "-", "-o", "-"},
                                "1,2\n\"=qvxSUM2(B1:XFD1048576)\",3,7\n"
                                "\"=qvxCOUNT(B1:XFD1048576)\"\n\"=qvxMEDIAN(B1:XFD1048576)\"\n");
  EXPECT_EQ(run.output, "1,2,\n12,3,7\n3,,\n3,,\n");
  EXPECT_EQ(run.errors, "");
}

TEST(SheetCommand, ReadsAWholeTextOrNone) {
  struct {
    const char* words;
    const char* told;
  } const cases[] = {
      {"sheet - < /", "standard input can't be read: Is a directory"},
      {"--timeout 0.3 sheet /dev/zero", "/dev/zero can't be read: The calculation took longer"},
      {"--memory 100M sheet /dev/zero", "/dev/zero can't be read: There is not enough memory"},
  };
  const Temporary_Folder folder;
  const std::string errors = (folder.path() / "errors").string();
  for (const auto& [words, told] : cases) {
    const std::string command = std::string("'" QUORVEX_TOOL "' ") + words + " 2> '" + errors + "'";
    EXPECT_NE(std::system(command.c_str()), 0) << words;
    EXPECT_NE(File_Text(errors).find(told), std::string::npos) << words << File_Text(errors);
  }
}

TEST(SheetCommand, ArraysComeBackFromWrittenFormulas) {
  const Tool_Run run = Run_Tool({"sheet", "-", "--formulas"}, "\"={1,2;3,4}\"\n,,end\n");
  EXPECT_EQ(run.output, "\"={1,2;3,4}\",,\n,,end\n");
  EXPECT_EQ(Run_Tool({"sheet", "-", "-o", "-"}, run.output).output, "1,2,\n3,4,end\n");
}

TEST(SheetCommand, TellsOnceOfDecimalCommasThatAreReadAsThousands) {
  const Tool_Run run = Run_Tool({"sheet", "-"}, "price;twice\n1,50;=A2*2\n2,75;=A3*2\n");
  EXPECT_EQ(run.errors,
            "note: standard input: B2: \"1,50\" is read as 150: \",\" stands between thousands "
            "here; with --decimal , it is the decimal separator. (and 1 more such cell)\n");
  const Tool_Run told = Run_Tool({"--decimal", ",", "sheet", "-"}, "price;twice\n1,50;=A2*2\n");
  EXPECT_NE(told.output.find("3"), std::string::npos) << told.errors;
  EXPECT_EQ(told.errors, "");
}

TEST(SheetCommand, LeavesNothingBehindWhereAFileMayNotGrow) {
  const Temporary_Folder folder;
  const std::string file = folder.write("long.csv", std::string(8192, 'x') + "\n");
  const std::string out = (folder.path() / "out.csv").string();
  const pid_t process = ::fork();
  if (process == 0) {
    const rlimit limit{4096, 4096};
    ::setrlimit(RLIMIT_FSIZE, &limit);
    // Where lines are counted, the counts of others must not be cut short.
    ::setenv("GCOV_PREFIX", "/dev/null", 1);
    ::dup2(::open("/dev/null", O_WRONLY), STDERR_FILENO);
    ::execl(QUORVEX_TOOL, "quorvex", "sheet", file.c_str(), "-o", out.c_str(), nullptr);
    ::_exit(127);
  }
  int status = 0;
  ::waitpid(process, &status, 0);
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 2) << status;
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()), {}), 1);
}

TEST(SheetCommand, TellsWhyTheResultCantBeWritten) {
  const Tool_Run run = Run_Tool({"sheet", "-", "-o", "/dev/full"}, "=1+1\n");
  EXPECT_EQ(run.exit_code, 2);
  EXPECT_EQ(run.errors, "error: /dev/full can't be written: No space left on device.\n");
}

// The tool as it watches a file, with its output and its errors in one stream.
class Watching {
 public:
  explicit Watching(const Temporary_Folder& folder)
      : folder_(folder),
        run_(::popen(("XDG_CONFIG_HOME='" + folder.path().string() +
                      "' LC_ALL=C exec '" QUORVEX_TOOL "' sheet --watch '" + file() + "' 2>&1")
                         .c_str(),
                     "r")) {}
  ~Watching() {
    if (run_ != nullptr) end();
  }
  Watching(const Watching&) = delete;
  Watching& operator=(const Watching&) = delete;

  std::string file() const { return (folder_.path() / "watched.csv").string(); }

  // Whether these words come within half a minute, behind those of the last call.
  bool tells(const std::string& words) {
    for (std::size_t at = shown_.find(words); at == std::string::npos; at = shown_.find(words)) {
      pollfd waiting{::fileno(run_), POLLIN, 0};
      std::array<char, 4096> piece{};
      if (::poll(&waiting, 1, 30'000) <= 0) return false;
      const ssize_t got = ::read(waiting.fd, piece.data(), piece.size());
      if (got <= 0) return false;
      shown_.append(piece.data(), static_cast<std::size_t>(got));
    }
    shown_.erase(0, shown_.find(words) + words.size());
    return true;
  }
  const std::string& shown() const { return shown_; }

  // It goes when it finds nobody who reads what it has to show. The exit code.
  int end() {
    std::atomic<bool> ended = false;
    std::thread writer([&] {
      for (std::size_t rows = 1; !ended; ++rows) {
        folder_.write("watched.csv", std::string(rows, '\n') + "1\n");
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
      }
    });
    const int status = ::pclose(std::exchange(run_, nullptr));
    ended = true;
    writer.join();
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

 private:
  const Temporary_Folder& folder_;
  std::FILE* run_;
  std::string shown_;
};

TEST(SheetCommand, WatchesTheFileAndTheDefaultLimit) {
  const Temporary_Folder folder;
  const std::string file = folder.write("watched.csv", "=1+1,one\n");
  Watching run(folder);
  EXPECT_TRUE(run.tells("2  one\n") && run.tells("Watching ")) << run.shown();
  folder.write("watched.csv", "=1/3,another\n");
  EXPECT_TRUE(run.tells(" has changed.\n") && run.tells("333  another\n")) << run.shown();
  const std::string settings = "XDG_CONFIG_HOME=" + folder.path().string();
  EXPECT_EQ(Run_Tool({"settings", "max-sd", "5"}, "", {settings}).exit_code, 0);
  EXPECT_TRUE(run.tells("The default limit is 5 now.\n") && run.tells("0.333333")) << run.shown();
  std::filesystem::remove_all(folder.path() / "quorvex");
  EXPECT_TRUE(run.tells("no longer stored. It stays 5 here.\n")) << run.shown();
  folder.write("watched.csv", "\"never closed\n");
  EXPECT_TRUE(run.tells("error: ")) << run.shown();
  std::filesystem::remove(file);
  EXPECT_TRUE(run.tells(" is gone; waiting")) << run.shown();
  folder.write("watched.csv", "=1+2,three\n");
  EXPECT_TRUE(run.tells(" is back.\n") && run.tells("3  three\n")) << run.shown();
  EXPECT_EQ(run.end(), 0);
}

TEST(SheetCommand, DefinesNames) {
  const Temporary_Folder folder;
  const std::string file = folder.write("names.csv", "\"=qvxADD(rate,base)\"\n");
  const Tool_Run run = Run_Tool({"sheet", "--name", "rate=0.25", "--name", "base=B7", file});
  EXPECT_EQ(run.output, "0.25\n") << run.errors;
}

TEST(SheetCommand, TellsWhichCellsFailed) {
  const Temporary_Folder folder;
  const std::string file = folder.write("bad.csv",
                                        "=A2,1\n"
                                        "=A1,\"=qvxADD(1,\"\n"
                                        "=qvxSIGN(A1:B2),=qvxADD(1)\n");
  const Tool_Run run = Run_Tool({"sheet", file});
  EXPECT_EQ(run.exit_code, 1);
  for (const char* words :
       {": A1: ", ": A2: ", ": B2: ", ": A3: ", ": B3: ", "A1 -> A2 -> A1", "  =qvxADD(1,\n"})
    EXPECT_NE(run.errors.find(words), std::string::npos) << words << "\n" << run.errors;
  EXPECT_NE(run.output.find("#CIRCULAR!"), std::string::npos) << run.output;
}

TEST(SheetCommand, TellsOnceWhyCellsHoldTokens) {
  const Temporary_Folder folder;
  const std::string file = folder.write("tokens.csv", "50%\n=A1*2\n=A1*2\n=A2+1\n=qvxFACT(100)\n");
  const Tool_Run run = Run_Tool({"sheet", file});
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_NE(run.errors.find("A2: \"50%\" is no number: percent signs are not read. "
                            "(and 1 more such cell)\n"),
            std::string::npos)
      << run.errors;
  EXPECT_NE(run.errors.find("A5: The result has 158 digits"), std::string::npos) << run.errors;
  EXPECT_EQ(run.errors.find("A4"), std::string::npos) << run.errors;
  const Tool_Run quiet = Run_Tool({"sheet", file, "--quiet"});
  EXPECT_EQ(quiet.errors, "");
  EXPECT_EQ(quiet.exit_code, 1);
}

TEST(SheetCommand, MemoryIsBounded) {
  const Temporary_Folder folder;
  const std::string cell = "\"=qvxADD(\"\"1E+999999999\"\",1)\"\n";
  const Tool_Run run = Run_Tool({"sheet", folder.write("large.csv", cell + cell + cell)});
  EXPECT_EQ(run.output, "#VALUE!\n#VALUE!\n#VALUE!\n");
  EXPECT_NE(run.errors.find("There is not enough memory"), std::string::npos) << run.errors;
  EXPECT_EQ(run.exit_code, 1);
}

TEST(SheetCommand, ManyFailuresAreCounted) {
  const Temporary_Folder folder;
  std::string rows;
  for (int row = 0; row < 70; ++row) rows += "=nowhere\n";
  const Tool_Run run = Run_Tool({"sheet", folder.write("many.csv", rows)});
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_NE(run.errors.find("and 20 more cells"), std::string::npos) << run.errors;
}

TEST(SheetCommand, RefusesWhatIsNoWorksheet) {
  const Temporary_Folder folder;
  Expect_Refusal({});
  Expect_Refusal({folder.path().string()});
  Expect_Refusal({(folder.path() / "missing.csv").string()});
  Expect_Refusal({folder.write("binary.csv", std::string("a\0b", 3))});
  Expect_Refusal({folder.write("quote.csv", "\"never closed\n1,2\n")});
}

TEST(SheetCommand, RefusesBadOptions) {
  const Temporary_Folder folder;
  const std::string good = folder.write("good.csv", "1\n");
  Expect_Refusal({good, "--name", "no equals"});
  Expect_Refusal({good, "--name", "x=qvxADD("});
  Expect_Refusal({good, "--name", "A1=B2"});
  Expect_Refusal({good, "--width", "-1"});
  Expect_Refusal({good, "--separator", "xy"});
  Expect_Refusal({"-", "--watch"});
  Expect_Refusal({good, "-o", (folder.path() / "no" / "folder.csv").string()});
}

}  // namespace
}  // namespace quorvex
