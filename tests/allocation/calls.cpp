#include "allocation/calls.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <utility>

#include "batch/request.h"

namespace quorvex {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t many_digits = 5000;

std::vector<fs::path> Golden_Files() {
  std::vector<fs::path> files;
  for (const auto& entry : fs::directory_iterator(QUORVEX_SOURCE "/tests/vectors")) {
    if (entry.path().extension() == ".jsonl") files.push_back(entry.path());
  }
  std::ranges::sort(files);
  return files;
}

// Plain digits with one point at most, so that more digits leave a number of the same kind.
bool Is_Plain_Number(const std::string& text) {
  return !text.empty() && text.find_first_of("0123456789") != std::string::npos &&
         text.find_first_not_of("0123456789.") == std::string::npos &&
         std::ranges::count(text, '.') <= 1;
}

std::string Digits(std::size_t count) {
  std::string digits;
  for (unsigned state = 12345; digits.size() < count; state = state * 1103515245U + 12345U) {
    digits += static_cast<char>('1' + state / 65536 % 9);
  }
  return digits;
}

enum class Place { decimals, whole_digits };

// Whether it was a number.
bool Lengthen(HostValue& value, Place place) {
  if (value.kind() == HostValue::Kind::list) {
    List list = value.list();
    bool is_any = false;
    for (HostValue& element : list) is_any = Lengthen(element, place) || is_any;
    value = HostValue(std::move(list));
    return is_any;
  }
  if (value.kind() == HostValue::Kind::array) {
    Array array = value.array();
    bool is_any = false;
    for (HostValue& element : array.values) is_any = Lengthen(element, place) || is_any;
    value = HostValue(std::move(array));
    return is_any;
  }
  if (!value.is_text() || !Is_Plain_Number(value.text())) return false;
  const std::string& text = value.text();
  const bool has_point = text.find('.') != std::string::npos;
  value = place == Place::whole_digits ? Digits(many_digits) + text
                                       : text + (has_point ? "" : ".") + Digits(many_digits);
  return true;
}

Tried_Call Call_Of(const char* method, std::vector<HostValue> arguments) {
  const Method* const found = Find_Method(method);
  arguments.resize(found->parameters.size());
  return {std::string("a long result of ") + method, found, std::move(arguments)};
}

}  // namespace

std::vector<Tried_Call> Calls_Of(const std::string& file) {
  std::vector<Tried_Call> calls;
  std::ifstream lines(file);
  std::size_t number = 0;
  for (std::string line; std::getline(lines, line);) {
    Request request = Read_Request(line);
    const std::string name = fs::path(file).filename().string() + ":" + std::to_string(++number);
    if (request.method == nullptr) throw std::runtime_error(name + ": " + request.problem);
    if (!Missing_Argument(request).empty()) continue;
    request.arguments.resize(request.method->parameters.size());
    calls.push_back({name, request.method, std::move(request.arguments)});
  }
  return calls;
}

std::vector<Tried_Call> Golden_Calls() {
  std::vector<Tried_Call> calls;
  for (const fs::path& file : Golden_Files()) {
    std::ranges::move(Calls_Of(file.string()), std::back_inserter(calls));
  }
  return calls;
}

std::vector<Tried_Call> Lengthened(const Tried_Call& call) {
  std::vector<Tried_Call> calls;
  for (const Place place : {Place::decimals, Place::whole_digits}) {
    Tried_Call longer = call;
    longer.name += place == Place::decimals ? " with many decimals" : " with many whole digits";
    for (HostValue& argument : longer.arguments) {
      if (!Lengthen(argument, place)) continue;
      calls.push_back(longer);
      break;  // the first alone, since two make calls that take too long
    }
  }
  return calls;
}

std::vector<Tried_Call> Calls_With_Long_Results() {
  const HostValue digits = 5000;
  return {
      Call_Of("qvxMULTIPLY", {Digits(5000), Digits(4999), 1, false, false, false, 10000}),
      Call_Of("qvxMULTIPLY", {Digits(40000), Digits(39000), 1, false, false, false, 80000}),
      Call_Of("qvxDIVIDE", {"1", Digits(40), 1, false, false, false, digits}),
      Call_Of("qvxDIVIDE", {Digits(9000), Digits(5000), 1, false, false, false, digits}),
      Call_Of("qvxPOWER", {"1.0000001", "77", 1, false, false, false, digits}),
      Call_Of("qvxROOT", {"2", "3", 1, false, false, false, 1000}),
      Call_Of("qvxSQRT", {"2", false, false, false, digits}),
      Call_Of("qvxSIN", {"1.25", 600}),
      Call_Of("qvxTAN", {"22", 600}),
      Call_Of("qvxATAN", {"0.5", 300}),
      Call_Of("qvxASIN", {"0.5", 300}),
      Call_Of("qvxLN", {"17.5", false, 300}),
      Call_Of("qvxLOG", {"17.5", 3, false, 300}),
      Call_Of("qvxEXP", {"-3.5", false, 600}),
      Call_Of("qvxPi", {digits}),
      Call_Of("qvxFACT", {"2000", false, digits}),
      Call_Of("qvxPOISSON", {"12", "21.5", true, false, 300}),
      Call_Of("qvxHelpfilePath", {}),  // which no golden line knows
  };
}

}  // namespace quorvex
