// Any bytes as a line at the prompt: what completes a word begins like it, and what a line defines
// is a part of it that can be read as a name.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "cli/prompt.h"
#include "cli/prompt_names.h"
#include "formula/formula.h"
#include "fuzz/require.h"
#include "host/conversions.h"
#include "host/platform.h"

namespace {

using namespace quorvex;

// Where files are completed the folders of this machine would answer.
bool Asks_For_Files(std::string_view line) {
  return line.find("sheet") != std::string_view::npos;
}

void Check_Completion(std::string_view line) {
  if (Asks_For_Files(line)) return;
  const Completion completion = Complete_Word(line);
  Require(completion.typed <= line.size(), "more is completed than was typed", line);
  const std::string word = To_Capitals(line.substr(line.size() - completion.typed));
  if (completion.replacement.empty()) return;
  Require(To_Capitals(completion.replacement).starts_with(word), "another word came", line);
  for (const std::string& candidate : completion.candidates)
    Require(To_Capitals(candidate).starts_with(word), "a candidate begins otherwise", candidate);
}

void Check_Definition(std::string_view line) {
  const Definition definition = Read_Definition(line);
  if (definition.name.empty()) return;
  Require(Is_Valid_Name(definition.name), "a name that none is", definition.name);
  const auto equals = line.find('=');
  Require(equals != std::string_view::npos && line.substr(equals + 1).ends_with(definition.formula),
          "a formula from elsewhere", line);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  quorvex::Current_Platform().locale = quorvex::Fixed_Locale({});
  const std::string line(data, data + size);
  Check_Completion(line);
  Check_Definition(line);
  return 0;
}
