// One recalculation of a workbook, in order of dependency.
#pragma once

#include <cstddef>
#include <functional>
#include <vector>

#include "frame/class/cls_Quorvex.h"
#include "sheet/precedents.h"
#include "sheet/workbook.h"

namespace quorvex {

/// Told how many formulas of all are calculated, after each of them.
using Progress = std::function<void(std::size_t done, std::size_t all)>;

/// Visits the formulas depth first and finds the groups that depend on each other in circles
/// (strongly connected components, by Tarjan's method). A group closes after all that it depends
/// on; a formula on no circle is then calculated. The stack is on the heap, so chains of
/// dependency may be of any length.
class Recalculation {
 public:
  Recalculation(const Workbook& workbook, cls_Quorvex& engine, const Progress& progress)
      : workbook_(workbook), engine_(engine), progress_(progress) {}

  /// Calculates every formula.
  void run();
  /// Calculates the stale formulas, the names that they use, and what depends on them.
  void run_stale();

 private:
  struct Visit {
    Calculation* calculation;
    Precedents precedents;
    bool needs_itself = false;
  };

  void collect();
  void spread_to_names();
  void visit_all();
  void visit_from(Calculation& start);
  void enter(Calculation& calculation);
  void meet(Calculation& precedent);
  void leave();
  void close_group(const Calculation& root, bool needs_itself);
  void calculate(Calculation& calculation);
  void mark_circle(const std::vector<Calculation*>& group);
  void count_done();

  const Workbook& workbook_;
  cls_Quorvex& engine_;
  const Progress& progress_;
  std::vector<Calculation*> all_;
  std::vector<Visit> visits_;
  std::vector<Calculation*> waiting_;  // entered, and of a group that is not closed
  std::size_t entered_ = 0;
  std::size_t done_ = 0;
};

}  // namespace quorvex
