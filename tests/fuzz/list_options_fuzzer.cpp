// Any bytes as option strings: read as a slow reading of the rules reads them.
#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/require.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "lists/list_options.h"
#include "lists/list_walk.h"

namespace {

using namespace quorvex;

// Words found by trying every place, digits by trying every character.
struct Slow_Reading {
  std::set<std::string> words;
  std::string digits;
  bool has_limit = false;
  bool failed = false;

  void read(const std::string& capitals) {
    for (std::size_t place = 0; place < capitals.size() && !failed; ++place) {
      const std::string rest = capitals.substr(place);
      for (const std::string word : {"NEGATIVE", "THOUSANDS", "CURRENCY", "EXPONENT"}) {
        if (rest.substr(0, word.size()) == word) words.insert(word);
      }
      if (has_limit || rest.substr(0, 4) != "MSD=") continue;
      for (std::size_t i = 4; i < rest.size() && rest[i] >= '0' && rest[i] <= '9'; ++i) {
        digits += rest[i];
      }
      has_limit = true;
      failed = digits.empty() || digits.size() > 300;
    }
  }
};

std::vector<std::string> Lines(std::string_view text) {
  std::vector<std::string> lines(1);
  for (const char character : text) {
    if (character == '\n') {
      lines.emplace_back();
    } else {
      lines.back() += character;
    }
  }
  return lines;
}

// Failed readings only have to fail alike.
bool Reads_All(const List& list, List_Options& options) {
  try {
    Walk_List(list, options, [](const List_Element&) { return Walk::on; });
    return true;
  } catch (const Run_Time_Failure&) {
    return false;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Current_Platform().locale = Fixed_Locale({});
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  List list;
  Slow_Reading slow;
  for (const std::string& line : Lines(text)) {
    list.emplace_back(line);
    std::string scratch;
    const std::string capitals(Capitals_Of(line, scratch));
    if (capitals.substr(0, 7) == "FORMAT:" && !slow.failed) slow.read(capitals);
  }
  List_Options options;
  const bool read = Reads_All(list, options);
  if (slow.digits.size() > 300) return 0;  // near the greatest number, which this doesn't know
  Require(read == !slow.failed, "a failure is lost or found", text);
  if (!read) return 0;
  Require(options.negative == slow.words.contains("NEGATIVE"), "negative", text);
  Require(options.thousands == slow.words.contains("THOUSANDS"), "thousands", text);
  Require(options.currency == slow.words.contains("CURRENCY"), "currency", text);
  Require(options.exponent == slow.words.contains("EXPONENT"), "exponent", text);
  const double limit = slow.has_limit ? std::strtod(slow.digits.c_str(), nullptr) : maximum_digits;
  Require(options.msd == limit, "MSD=", text);
  return 0;
}
