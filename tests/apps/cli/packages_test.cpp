// What packages install beside the tool: the manual page, and the completions of shells. It agrees
// with what the command line takes.
#include <gtest/gtest.h>

#include <cstdlib>
#include <set>
#include <string>
#include <vector>

#include "apps/cli/run_tool.h"
#include "formula/find_function.h"
#include "frame/catalogue.h"

namespace quorvex {
namespace {

const std::vector<std::string> commands = {"sheet", "functions", "batch", "settings", "about"};

// The options that the help of a command tells of.
std::set<std::string> Options_Of(const std::vector<std::string>& command) {
  std::vector<std::string> words = command;
  words.emplace_back("--help");
  std::set<std::string> options;
  for (const std::string& line : Lines_Of(Run_Tool(words).output)) {
    if (!line.starts_with("  -")) continue;
    std::string names = line.substr(2, line.find(' ', 2) - 2) + ",";
    for (; !names.empty(); names.erase(0, names.find(',') + 1))
      options.insert(names.substr(0, names.find(',')));
  }
  EXPECT_GT(options.size(), 0U);
  return options;
}

std::string Part_Between(const std::string& text, const std::string& begin,
                         const std::string& end) {
  const auto from = text.find(begin);
  if (from == std::string::npos) return {};
  return text.substr(from, text.find(end, from + begin.size()) - from);
}

TEST(ManualPage, TellsOfEveryCommandOptionAndFunction) {
  std::string page = Run_Tool({"--manual-page"}).output;
  for (auto at = page.find("\\-"); at != std::string::npos; at = page.find("\\-", at))
    page.erase(at, 1);
  const auto expect_options = [](const std::string& part, const std::set<std::string>& options) {
    for (const std::string& option : options)
      EXPECT_NE(part.find("\\fB" + option + "\\fR"), std::string::npos) << option << part;
  };
  expect_options(Part_Between(page, ".SH OPTIONS", ".SH"), Options_Of({}));
  for (const std::string& command : commands)
    expect_options(Part_Between(page, ".SS quorvex " + command, ".S"), Options_Of({command}));
  for (const Method& method : Catalogue()) {
    const bool is_told =
        page.find(".TP\n\\fB" + std::string(method.name) + "\\fR\n") != std::string::npos;
    EXPECT_EQ(is_told, Is_Worksheet_Function(method)) << method.name;
  }
}

// A line of text that began like one would be lost.
TEST(ManualPage, UsesKnownRequestsAlone) {
  const std::set<std::string> known = {".TH", ".SH", ".SS", ".TP", ".PP", ".B",
                                       ".I",  ".RI", ".br", ".EX", ".EE"};
  for (const std::string& line : Lines_Of(Run_Tool({"--manual-page"}).output)) {
    const bool is_request = line.starts_with('.') || line.starts_with('\'');
    EXPECT_TRUE(!is_request || known.contains(line.substr(0, line.find(' ')))) << line;
  }
}

// What bash offers for the last of the words.
std::set<std::string> Offers(const Temporary_Folder& folder,
                             const std::vector<std::string>& words) {
  std::string line = "COMP_WORDS=(quorvex";
  for (const std::string& word : words) line += " '" + word + "'";
  const std::string before = words.size() > 1 ? words[words.size() - 2] : "quorvex";
  line += "); COMP_CWORD=" + std::to_string(words.size()) + "; _quorvex quorvex '" + words.back() +
          "' '" + before + "'; printf '%s\\n' \"${COMPREPLY[@]}\"";
  const std::string script = folder.write(
      "offer.bash", "source " + (folder.path() / "quorvex.bash").string() + "\n" + line);
  const std::string offered = (folder.path() / "offered").string();
  EXPECT_EQ(std::system(("bash '" + script + "' > '" + offered + "'").c_str()), 0) << line;
  std::set<std::string> offers;
  for (const std::string& offer : Lines_Of(File_Text(offered))) {
    if (!offer.empty()) offers.insert(offer);
  }
  return offers;
}

TEST(BashCompletion, OffersWhatTheCommandLineTakes) {
  const Temporary_Folder folder;
  folder.write("quorvex.bash", Run_Tool({"--completion", "bash"}).output);
  for (const std::string& command : commands)
    EXPECT_EQ(Offers(folder, {command, "-"}), Options_Of({command})) << command;
  EXPECT_EQ(Offers(folder, {"-"}), Options_Of({}));
  using Words = std::vector<std::string>;
  struct {
    Words words;
    std::set<std::string> offers;
  } const cases[] = {
      {{"sh"}, {"sheet"}},
      {{"qvxISNU"}, {"qvxISNUMBER"}},
      {{"functions", "qvxSQ"}, {"qvxSQRT", "qvxSQRTPI"}},
      {{"settings", "m"}, {"max-sd"}},
      {{"-d", "5", "bat"}, {"batch"}},
      {{"--digits", ""}, {}},
      {{"sheet", "--currency-side", "b"}, {"before"}},
      {{"--completion", ""}, {"bash", "zsh"}},
  };
  for (const auto& [words, offers] : cases) EXPECT_EQ(Offers(folder, words), offers) << words[0];
}

TEST(ZshCompletion, TellsOfEveryCommandAndOption) {
  const std::string script = Run_Tool({"--completion", "zsh"}).output;
  EXPECT_EQ(script.find("#compdef quorvex\n"), 0U);
  for (const std::string& command : commands) {
    EXPECT_NE(script.find("    '" + command + ":"), std::string::npos) << command;
    const std::string part = Part_Between(script, "\n  " + command + ")\n", "\n  ;;\n");
    for (const std::string& option : Options_Of({command}))
      EXPECT_NE(part.find("'" + option + "["), std::string::npos) << option << part;
  }
}

}  // namespace
}  // namespace quorvex
