// Formulas from the command line, from standard input and from the prompt.
#include "cli/formulas.h"

#include <unistd.h>

#include <new>
#include <optional>

#include "batch/request.h"
#include "formula/evaluate.h"
#include "formula/formula.h"
#include "host/run_time_failure.h"
#include "sheet/result_text.h"

namespace quorvex {
namespace {

bool Is_Note(std::string_view line) {
  return line == "#" || line.starts_with("# ") || line.starts_with("#\t");
}

Outcome Show(Session& session, const Call_Result& result) {
  Line_Writer& output = session.output();
  std::string text;
  Append_Result_Lines(text, result);
  if (!text.empty()) {
    text.pop_back();
    output.write_line(text);
  }
  return Is_Error_Result(result) ? Outcome::failed_calculation : Outcome::success;
}

}  // namespace

Outcome Calculate(Session& session, std::string_view formula, std::string_view place) {
  const std::string before(place);
  try {
    session.guard().begin_call();
    const Evaluation evaluation = Evaluate_Alone(session.engine(), Parse_Formula(formula));
    const Outcome outcome = Show(session, evaluation.result);
    if (!evaluation.reason.empty()) session.error(before + evaluation.reason);
    return outcome;
  } catch (const Syntax_Error& syntax) {
    session.error_at(before + syntax.what(), formula, syntax.position());
    return Outcome::wrong_usage;
  } catch (const Run_Time_Failure& failure) {
    session.error(before + failure.what());
  } catch (const std::bad_alloc&) {
    session.error(before + "There is not enough memory.");
  }
  return Outcome::failed_calculation;
}

Outcome Calculate_All(Session& session, const std::vector<std::string>& formulas) {
  Outcome outcome = Outcome::success;
  for (const std::string& formula : formulas) {
    outcome =
        Worse_Of(outcome, formula == "-" ? Calculate_Input(session) : Calculate(session, formula));
  }
  session.output().flush();
  return outcome;
}

Outcome Calculate_Input(Session& session) {
  Outcome outcome = Outcome::success;
  Line_Reader reader(STDIN_FILENO);
  std::size_t number = 0;
  while (const auto line = reader.next_line(session.output())) {
    const std::string place = "line " + std::to_string(++number) + ": ";
    if (reader.was_too_long()) {
      session.error(place + std::string(too_long_line));
      outcome = Outcome::wrong_usage;
    } else if (!Is_Blank_Line(*line) && !Is_Note(*line)) {
      outcome = Worse_Of(outcome, Calculate(session, *line, place));
    }
  }
  session.output().flush();
  return outcome;
}

}  // namespace quorvex
