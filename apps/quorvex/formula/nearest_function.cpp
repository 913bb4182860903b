#include <algorithm>
#include <vector>

#include "formula/formula.h"
#include "host/conversions.h"

namespace quorvex {

namespace {

// All functions begin with it, and people leave it out.
constexpr std::string_view prefix = "QVX";
constexpr std::size_t longest_typed = 40;

// Characters to put in, take out, replace or swap with the next one.
std::size_t Edit_Distance(std::string_view from, std::string_view to) {
  std::vector<std::size_t> before_last(to.size() + 1);
  std::vector<std::size_t> last(to.size() + 1);
  std::vector<std::size_t> row(to.size() + 1);
  for (std::size_t column = 0; column <= to.size(); ++column) row[column] = column;
  for (std::size_t line = 1; line <= from.size(); ++line) {
    before_last.swap(last);
    last.swap(row);
    row[0] = line;
    for (std::size_t column = 1; column <= to.size(); ++column) {
      const bool same = from[line - 1] == to[column - 1];
      row[column] =
          std::min({last[column] + 1, row[column - 1] + 1, last[column - 1] + (same ? 0U : 1U)});
      const bool swapped = line > 1 && column > 1 && from[line - 1] == to[column - 2] &&
                           from[line - 2] == to[column - 1];
      if (swapped) row[column] = std::min(row[column], before_last[column - 2] + 1);
    }
  }
  return row[to.size()];
}

}  // namespace

std::optional<std::string_view> Nearest_Function(std::string_view typed) {
  if (typed.size() > longest_typed) return std::nullopt;
  std::string wanted = To_Capitals(typed);
  if (!wanted.starts_with(prefix.substr(0, 2))) wanted.insert(0, prefix);
  // A slip in a third of what tells the functions apart is as far as a guess makes sense.
  const std::size_t telling = wanted.size() > prefix.size() ? wanted.size() - prefix.size() : 0;
  std::size_t nearest = std::max<std::size_t>(1, telling / 3) + 1;
  std::optional<std::string_view> name;
  for (const Method& method : Catalogue()) {
    const std::size_t distance = Edit_Distance(wanted, To_Capitals(method.name));
    if (distance >= nearest) continue;
    nearest = distance;
    name = method.name;
  }
  return name;
}

}  // namespace quorvex
