#include "sheet/circle.h"

#include <algorithm>
#include <map>
#include <vector>

#include "sheet/precedents.h"

namespace quorvex {

namespace {

// Looking for the shortest circle through each member of a group costs the square of its size.
constexpr std::size_t largest_searched_group = 100;
// Formulas spelt out at the start and at the end of a circle that is longer than both.
constexpr std::size_t spelt_at_start = 5;
constexpr std::size_t spelt_at_end = 2;

using Path = std::vector<const Calculation*>;

std::string Spelling(const Calculation& calculation, const Worksheet& home) {
  const std::string own =
      calculation.name.empty() ? Address_Text(calculation.address) : calculation.name;
  return calculation.sheet == &home ? own : calculation.sheet->name() + "!" + own;
}

bool Same_Group(const Calculation& one, const Calculation& other) {
  return one.earliest == other.earliest;
}

using Reached_From = std::map<const Calculation*, const Calculation*>;

Path Way_To(const Calculation& end, const Calculation& start, const Reached_From& reached_from) {
  Path way;
  for (const Calculation* back = &end; back != &start; back = reached_from.at(back)) {
    way.push_back(back);
  }
  way.push_back(&start);
  std::reverse(way.begin(), way.end());
  return way;
}

// Breadth first, so that the first way back to the start is the shortest.
Path Shortest_Circle(const Workbook& workbook, const Calculation& start) {
  Reached_From reached_from;
  Path queue{&start};
  for (std::size_t at = 0; at < queue.size(); ++at) {
    Precedents precedents(workbook, *queue[at]);
    while (const Calculation* next = precedents.next()) {
      if (!Same_Group(*next, start) || !reached_from.emplace(next, queue[at]).second) continue;
      if (next != &start) {
        queue.push_back(next);
        continue;
      }
      return Way_To(*queue[at], start, reached_from);
    }
  }
  return {&start};
}

// The first steps of a way through a group; it leads back to the start at some length.
Path First_Steps(const Workbook& workbook, const Calculation& start) {
  Path steps{&start};
  while (steps.size() < spelt_at_start) {
    Precedents precedents(workbook, *steps.back());
    const Calculation* next = precedents.next();
    while (next != nullptr && !Same_Group(*next, start)) next = precedents.next();
    if (next == nullptr || next == &start) break;
    steps.push_back(next);
  }
  return steps;
}

std::string Joined(const Path& path, std::size_t from, std::size_t to, const Worksheet& home) {
  std::string text;
  for (std::size_t at = from; at < to; ++at) text += Spelling(*path[at], home) + " -> ";
  return text;
}

}  // namespace

std::string Circle_Text(const Workbook& workbook, const Calculation& start,
                        std::size_t group_size) {
  const Worksheet& home = *start.sheet;
  const std::string end = Spelling(start, home);
  if (group_size > largest_searched_group) {
    const Path steps = First_Steps(workbook, start);
    return Joined(steps, 0, steps.size(), home) + "... -> " + end + " (" +
           std::to_string(group_size) + " cells depend on each other)";
  }
  const Path circle = Shortest_Circle(workbook, start);
  if (circle.size() <= spelt_at_start + spelt_at_end) {
    return Joined(circle, 0, circle.size(), home) + end;
  }
  return Joined(circle, 0, spelt_at_start, home) + "... -> " +
         Joined(circle, circle.size() - spelt_at_end, circle.size(), home) + end + " (" +
         std::to_string(circle.size()) + " cells)";
}

}  // namespace quorvex
