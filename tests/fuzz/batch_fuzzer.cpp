// Any bytes give exactly one well-formed answer.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

#include "batch/answer.h"
#include "host/platform.h"
#include "io/call_guard.h"
#include "support/surroundings.h"

namespace quorvex {
namespace {

// The input decides how long a result is; what matters here is the protocol around it.
constexpr std::size_t little_memory = std::size_t{1} << 26;

std::shared_ptr<Call_Guard> Set_Up() {
  auto guard = std::make_shared<Call_Guard>(Seconds(2));
  Current_Platform().locale = Fixed_Locale(Locale{});
  Current_Platform().memory = std::make_shared<Fixed_Memory>(little_memory);
  Current_Platform().yielder = guard;
  return guard;
}

[[noreturn]] void Complain(std::string_view about, std::string_view answer) {
  std::cerr << about << ": " << answer << '\n';
  std::abort();
}

// An answer has one of four keys, after the id if there is one.
void Check(const std::string& answer) {
  if (answer.find('\n') != std::string::npos) Complain("more than one line", answer);
  const auto parsed = nlohmann::ordered_json::parse(answer, nullptr, false);
  if (!parsed.is_object() || parsed.empty()) Complain("no JSON object", answer);
  auto entry = parsed.begin();
  if (entry.key() == "id") ++entry;
  if (entry == parsed.end()) Complain("nothing but an id", answer);
  const std::string& key = entry.key();
  const bool is_failure = key == "failure" && parsed.contains("number");
  if (key != "value" && key != "record" && key != "invalid" && !is_failure)
    Complain("no answer", answer);
}

}  // namespace
}  // namespace quorvex

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static quorvex::Answerer answerer(quorvex::Set_Up());
  std::string line(size, '\0');
  for (std::size_t i = 0; i < size; ++i) line[i] = static_cast<char>(data[i]);
  std::string answer;
  answerer.append_answer(answer, line);
  quorvex::Check(answer);
  return 0;
}
