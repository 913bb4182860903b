// Calculating formulas, and showing what they give.
#pragma once

#include <string>
#include <vector>

#include "formula/formula.h"
#include "formula/reasons.h"
#include "formula/render.h"
#include "frame/catalogue.h"
#include "frame/class/cls_Quorvex.h"
#include "host/host_value.h"

namespace quorvex {

/// Where a formula finds the cells and names that it refers to.
class Reference_Source {
 public:
  Reference_Source() = default;
  Reference_Source(const Reference_Source&) = delete;
  Reference_Source& operator=(const Reference_Source&) = delete;
  virtual ~Reference_Source();

  /// A range over the cells, or an error value.
  virtual HostValue cells(const Reference& reference) = 0;
  /// The value of a reference to a single cell.
  virtual HostValue cell(const Reference& reference);
  virtual HostValue name(const Name_Use& use) = 0;
};

/// What a formula gives.
struct Evaluation {
  Call_Result result;
  /// Where the result is an error and a function within had failed: why. Else empty.
  std::string reason;
  /// Where explanations are wanted: why the first token came, and what may surprise, a sentence
  /// each.
  std::vector<std::string> notes = {};
};

/// Calculates a formula. A function that fails, or gives a record, or nothing, gives #VALUE! to the
/// function that it is an argument of. The result may be a range. The `Run_Time_Failure` of the
/// outermost function is let through, or of the function within that failed first; and from any of
/// them a break and a lack of memory.
Evaluation Evaluate(cls_Quorvex& engine, const Formula& formula, Reference_Source& source,
                    Explain explain = Explain::no);

/// Calculates a formula where there is no worksheet: a cell or a name in it is a `Syntax_Error`.
Evaluation Evaluate_Alone(cls_Quorvex& engine, const Formula& formula,
                          Explain explain = Explain::no);

/// Whether that is an error value or a token that stands for one, or an array with one in it.
bool Has_Error(const Call_Result& result);

}  // namespace quorvex
