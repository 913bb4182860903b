#include "sheet/csv_separator.h"

#include <algorithm>
#include <array>
#include <map>
#include <vector>

#include "formula/literals.h"
#include "host/platform.h"

namespace quorvex {

namespace {

constexpr std::size_t looked_at = 50;  // rows
constexpr std::array<char, 3> candidates{',', ';', '\t'};

using Counts = std::array<std::size_t, candidates.size()>;

// Counts the separators of one row, and gives where the next one begins.
std::size_t Count_In_Row(std::string_view text, std::size_t at, Counts& counts) {
  bool in_quotes = false;
  std::size_t depth = 0;
  for (; at < text.size(); ++at) {
    const char c = text[at];
    if (c == '"') {
      in_quotes = !in_quotes;
    } else if (in_quotes) {
      continue;
    } else if (c == '\n' || c == '\r') {
      return at + 1;
    } else if (c == '(' || c == '{') {
      ++depth;
    } else if ((c == ')' || c == '}') && depth > 0) {
      --depth;
    } else if (depth == 0) {
      const auto found = std::find(candidates.begin(), candidates.end(), c);
      if (found != candidates.end()) ++counts[static_cast<std::size_t>(found - candidates.begin())];
    }
  }
  return at;
}

// Rows without any separator tell nothing: titles, notes, blank lines.
std::vector<Counts> Telling_Rows(std::string_view text) {
  std::vector<Counts> rows;
  for (std::size_t at = 0; at < text.size() && rows.size() < looked_at;) {
    if (text.substr(at).starts_with("# ")) {
      at = std::min(text.find('\n', at), text.size() - 1) + 1;
      continue;
    }
    Counts counts{};
    at = Count_In_Row(text, at, counts);
    if (counts != Counts{}) rows.push_back(counts);
  }
  return rows;
}

// In how many rows a separator stands as often as it does in most of them. Titles and remarks above
// the table may hold other marks, so no row counts more than the others.
std::size_t Agreement(const std::vector<Counts>& rows, std::size_t candidate) {
  std::map<std::size_t, std::size_t> rows_by_count;
  std::size_t most = 0;
  for (const Counts& row : rows)
    if (row[candidate] > 0) most = std::max(most, ++rows_by_count[row[candidate]]);
  return most;
}

char Separator_Of(std::string_view text) {
  const auto rows = Telling_Rows(text);
  if (rows.empty()) return ',';
  const std::size_t comma = Agreement(rows, 0);
  const std::size_t semicolon = Agreement(rows, 1);
  const std::size_t tab = Agreement(rows, 2);
  if (tab >= comma && tab >= semicolon) return '\t';
  // Where both fit, commas are more often found within cells than semicolons are, in numbers and in
  // text, but a single row tells little.
  const bool is_told = semicolon > 1 || Current_Separators().decimal() == ",";
  return semicolon > comma || (semicolon == comma && is_told) ? ';' : ',';
}

}  // namespace

bool Looks_Announcing(std::string_view text) {
  return Same_Word(text.substr(0, 4), "sep=");
}

std::size_t Announcement_Length(std::string_view text) {
  const std::string_view line = text.substr(0, text.find_first_of("\r\n"));
  constexpr std::string_view separators = ",;:|\t!/&~^*";
  const bool is_one = line.size() == 5 && Looks_Announcing(line) &&
                      separators.find(line[4]) != std::string_view::npos;
  if (!is_one) return 0;
  const std::string_view end = text.substr(line.size());
  return line.size() + (end.starts_with("\r\n") ? 2 : std::min<std::size_t>(end.size(), 1));
}

Csv_Form Form_Of(std::string_view text) {
  if (Announcement_Length(text) > 0) return {text[4], true};
  return {Separator_Of(text), false};
}

}  // namespace quorvex
