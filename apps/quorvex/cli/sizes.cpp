#include "cli/sizes.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cmath>
#include <string_view>

#include "host/conversions.h"

namespace quorvex {

std::optional<double> Bytes_Of(const std::string& size) {
  constexpr std::string_view units = "KMGT";
  const std::size_t digits = std::min(size.find_first_not_of("0123456789."), size.size());
  std::string unit = To_Capitals(size.substr(digits));
  if (unit.ends_with('B')) unit.pop_back();
  double bytes = 0;
  if (digits == 0 || unit.size() > 1 || !CLI::detail::lexical_cast(size.substr(0, digits), bytes))
    return std::nullopt;
  const std::size_t power = unit.empty() ? 0 : units.find(unit) + 1;
  if (!unit.empty() && power == 0) return std::nullopt;
  bytes *= std::pow(1024, power);
  return bytes >= 1 ? std::optional(bytes) : std::nullopt;
}

std::string Check_Size(const std::string& text) {
  return Bytes_Of(text) ? "" : "a size like 500M or 4G is needed, not " + text;
}

}  // namespace quorvex
