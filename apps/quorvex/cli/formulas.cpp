// Formulas from the command line, from standard input and from the prompt.
#include "cli/formulas.h"

#include <unistd.h>

#include <algorithm>
#include <new>
#include <optional>
#include <stdexcept>
#include <utility>

#include "batch/request.h"
#include "formula/evaluate.h"
#include "formula/formula.h"
#include "formula/utf8.h"
#include "formula/visible.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "host/utf8.h"
#include "io/terminal_width.h"
#include "sheet/result_text.h"

namespace quorvex {
namespace {

bool Is_Note(std::string_view line) {
  return line == "#" || line.starts_with("# ") || line.starts_with("#\t");
}

// Long lines in pieces as long as the terminal is wide.
std::string Folded(std::string_view text, std::size_t width) {
  std::string folded;
  while (!text.empty()) {
    std::string_view line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    if (!folded.empty()) folded += '\n';
    for (std::size_t piece = Bytes_Of_Characters(line, width); piece < line.size();
         piece = Bytes_Of_Characters(line, width)) {
      folded.append(line.substr(0, piece)).append("\n");
      line.remove_prefix(piece);
    }
    folded += line;
  }
  return folded;
}

// A result can have so many digits that nobody wants to see the last ones, so that writing it ends
// at Ctrl-C like a calculation.
void Write_In_Pieces(Line_Writer& output, std::string_view text) {
  constexpr std::size_t piece = std::size_t{1} << 16;
  for (; text.size() > piece; text.remove_prefix(piece)) {
    output.buffer() += text.substr(0, piece);
    output.flush();
    Yield();
  }
  output.buffer() += text;
}

Outcome Show(Session& session, const Call_Result& result) {
  Line_Writer& output = session.output();
  std::string text;
  Append_Result_Lines(text, result);
  if (!text.empty()) {
    text.pop_back();
    const auto terminal = Terminal_Width();
    Write_In_Pieces(output, terminal ? Folded(Visible(text, "\n\t"), *terminal) : text);
    output.line_done();
  }
  return Has_Error(result) ? Outcome::failed_calculation : Outcome::success;
}

}  // namespace

Evaluation Formulas::evaluate(std::string_view formula) {
  const Explain explain = session_.is_quiet() ? Explain::no : explain_;
  const Formula read = Parse_Formula(formula);
  return source_ == nullptr ? Evaluate_Alone(session_.engine(), read, explain)
                            : Evaluate(session_.engine(), read, *source_, explain);
}

Outcome Formulas::calculate(std::string_view formula, std::string_view place, HostValue* result) {
  const std::string before(place);
  try {
    session_.guard().begin_call();
    const Evaluation evaluation = evaluate(formula);
    const auto* value = std::get_if<HostValue>(&evaluation.result);
    if (result != nullptr && value != nullptr) *result = *value;
    const Outcome outcome = Show(session_, evaluation.result);
    if (!evaluation.reason.empty()) session_.error(before + evaluation.reason);
    for (const std::string& note : evaluation.notes) session_.note(before + note);
    return outcome;
  } catch (const Syntax_Error& syntax) {
    session_.error_at(before + syntax.what(), formula, syntax.position());
    return Outcome::wrong_usage;
  } catch (const Run_Time_Failure& failure) {
    session_.error(before + failure.what());
  } catch (const std::bad_alloc&) {
    session_.error(before + "There is not enough memory.");
  } catch (const std::logic_error& fault) {
    // A fault in one formula's calculation is no reason to leave the others out.
    session_.error(before + fault.what());
  }
  return Outcome::failed_calculation;
}

Outcome Formulas::calculate_all(const std::vector<std::string>& formulas) {
  Outcome outcome = Outcome::success;
  for (const std::string& formula : formulas)
    outcome = Worse_Of(outcome, formula == "-" ? calculate_input() : calculate(formula));
  session_.output().flush();
  return outcome;
}

Outcome Formulas::calculate_input() {
  Outcome outcome = Outcome::success;
  Line_Reader reader(STDIN_FILENO);
  std::size_t number = 0;
  while (auto line = reader.next_line(session_.output())) {
    const std::string place = "line " + std::to_string(++number) + ": ";
    if (number == 1 && line->starts_with(byte_order_mark))
      line->remove_prefix(byte_order_mark.size());
    if (!reader.problem().empty()) {
      session_.error(place + std::string(reader.problem()));
      outcome = Outcome::wrong_usage;
    } else if (!Is_Blank_Line(*line) && !Is_Note(*line)) {
      outcome = Worse_Of(outcome, calculate(*line, place));
    }
  }
  session_.output().flush();
  return outcome;
}

}  // namespace quorvex
