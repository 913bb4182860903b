#include "formula/evaluate.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "formula/elements.h"
#include "formula/literals.h"
#include "formula/misreading.h"
#include "formula/number_problem.h"
#include "formula/operators.h"
#include "formula/reasons.h"
#include "formula/truth.h"
#include "host/failure_watch.h"
#include "host/platform.h"
#include "host/run_time_failure.h"

namespace quorvex {

namespace {

// Whether the user has broken the calculation off, or there is no memory to go on with.
bool Ends_All(const Run_Time_Failure& failure) {
  return failure.number() == Failure_Number::interrupted ||
         failure.number() == Failure_Number::out_of_memory;
}

class Evaluator {
 public:
  Evaluator(cls_Quorvex& engine, const Formula& formula, Reference_Source& source, Explain explain)
      : engine_(engine), formula_(formula), source_(source), explains_(explain) {
    if (explains()) watch_.emplace();
  }

  // Where an inner call has failed first, that tells more than what became of it further out.
  Evaluation evaluate() {
    try {
      Evaluation evaluation{std::visit(*this, formula_.root.node), {}};
      if (Has_Error(evaluation.result)) {
        if (state_.inner_failure) evaluation.reason = state_.inner_failure->what();
        if (!state_.reason.empty()) Add_Note(std::move(state_.reason), state_.notes);
      }
      evaluation.notes = std::move(state_.notes);
      return evaluation;
    } catch (const Run_Time_Failure& failure) {
      if (!state_.inner_failure || Ends_All(failure)) throw;
      throw Run_Time_Failure(*state_.inner_failure);
    }
  }

  Call_Result operator()(const Omitted& /*argument*/) { return HostValue(); }
  Call_Result operator()(const HostValue& constant) { return constant; }
  Call_Result operator()(const Reference_Index& reference) {
    return source_.cells(formula_.references[reference.index]);
  }
  Call_Result operator()(const Name_Index& name) {
    return source_.name(formula_.names[name.index]);
  }
  Call_Result operator()(const Negation& negation) {
    const HostValue value = value_of(negation.operand.front());
    HostValue result = Negated(engine_, value);
    explain_operator("-", value, Missing, result);
    return result;
  }
  Call_Result operator()(const Percent& percent) {
    const HostValue value = value_of(percent.operand.front());
    HostValue result = Hundredth(engine_, value);
    explain_operator("%", value, Missing, result);
    return result;
  }
  Call_Result operator()(const Chain& chain) {
    HostValue value = operand(chain.operands.front());
    for (std::size_t at = 0; at < chain.operators.size(); ++at)
      value = applied(chain.operators[at], value, operand(chain.operands[at + 1]));
    return value;
  }
  Call_Result operator()(const Choice& choice) {
    switch (choice.kind) {
      case Choice_Kind::if_else:
        return if_else(choice.arguments);
      case Choice_Kind::if_error:
        return if_error(choice.arguments);
      case Choice_Kind::all_of:
        return all_or_any(choice.arguments, false);
      case Choice_Kind::any_of:
        return all_or_any(choice.arguments, true);
      case Choice_Kind::negation:
        return Each(value_of(choice.arguments.front()), [&](const HostValue& value) {
          const HostValue truth = truth_of(value);
          return truth.kind() == HostValue::Kind::boolean ? HostValue(!truth.boolean()) : truth;
        });
      default:
        return Each(value_of(choice.arguments.front()),
                    [](const HostValue& value) { return HostValue(value.is_empty()); });
    }
  }
  Call_Result operator()(const Call& call) {
    std::vector<HostValue> arguments;
    arguments.reserve(call.arguments.size());
    for (const Expression& argument : call.arguments) arguments.push_back(value_of(argument));
    if (call.method->takes_all_as_list) {
      std::vector<HostValue> one;
      one.emplace_back(List(std::move(arguments)));
      arguments = std::move(one);
    }
    if (!explains()) return Invoke(engine_, *call.method, std::move(arguments));
    arguments.resize(call.method->parameters.size());
    return explained(call, arguments);
  }

 private:
  using Arguments = std::vector<Expression>;

  // What has gone wrong so far.
  struct State {
    std::optional<Run_Time_Failure> inner_failure;
    std::string reason;
    std::vector<std::string> notes;
    bool has_cut = false;  // a note tells of a number that was cut
  };

  // An operator has no use for the range that a single cell is to a function.
  HostValue operand(const Expression& expression) {
    if (const auto* index = std::get_if<Reference_Index>(&expression.node)) {
      const Reference& reference = formula_.references[index->index];
      if (reference.area.first == reference.area.last) return source_.cell(reference);
    }
    return value_of(expression);
  }

  bool explains() const { return explains_ != Explain::no; }

  // The first token tells more than those that it leads to.
  bool asks_why(const HostValue& result) const {
    return explains() && Is_Error(result) && state_.reason.empty() && !state_.inner_failure;
  }

  // A failure names the argument that has led to it.
  Call_Result invoked(const Method& method, std::span<HostValue> arguments) {
    try {
      return Invoke_In_Place(engine_, method, arguments);
    } catch (const Run_Time_Failure& failure) {
      if (Ends_All(failure) || Is_Bound(failure.number())) throw;
      const std::string problem = Bad_Argument(engine_, method, arguments);
      if (problem.empty()) throw;
      throw Run_Time_Failure(failure.number(), std::string(failure.what()) + " " + problem);
    }
  }

  // Of what is no condition.
  HostValue truth_of(const HostValue& value) {
    HostValue truth = Truth_Of(engine_, value);
    if (asks_why(truth) && !Is_Error(value)) {
      state_.reason = (value.is_text() ? Shortly(value.text()) : Render(value)) +
                      " is no condition: it is neither TRUE nor FALSE, and no number.";
    }
    return truth;
  }

  Call_Result explained(const Call& call, std::span<HostValue> arguments) {
    const Method& method = *call.method;
    watch_->forget();
    Add_Surprises(engine_, method, arguments, state_.notes);
    Call_Result result = invoked(method, arguments);
    const auto* value = std::get_if<HostValue>(&result);
    if (value != nullptr && asks_why(*value))
      state_.reason = Reason_Of_Call(engine_, method, arguments, *value, watch_->seen());
    if (value != nullptr && !has_own_limit(call)) note_cut(*value);
    return result;
  }

  HostValue applied(Operator op, const HostValue& left, const HostValue& right) {
    if (explains()) watch_->forget();
    HostValue result = Apply(engine_, op, left, right);
    if (op == Operator::join) return result;
    explain_operator(Operator_Text(op), left, right, result);
    return result;
  }

  // Of several tokens in a block the first one is explained.
  void explain_operator(std::string_view op, const HostValue& left, const HostValue& right,
                        const HostValue& result) {
    if (!explains()) return;
    Add_Misreading(engine_, "", left, state_.notes);
    Add_Misreading(engine_, "", right, state_.notes);
    note_cut(result);
    if (result.kind() != HostValue::Kind::array) {
      if (asks_why(result)) explain_pair(op, Single(left), Single(right), result);
      return;
    }
    const Array& block = result.array();
    const auto found = std::ranges::find_if(block.values, Is_Error);
    if (found == block.values.end() || !asks_why(*found)) return;
    const auto place = static_cast<std::size_t>(found - block.values.begin());
    const std::size_t row = place / block.columns;
    const std::size_t column = place % block.columns;
    const Elements lefts(left);
    const Elements rights(right);
    explain_pair(op, lefts.at(row, column), rights.at(row, column), *found);
    if (!lefts.reach(row, column)) explain_gap(rights, lefts);
    if (!rights.reach(row, column)) explain_gap(lefts, rights);
  }

  void explain_gap(const Elements& larger, const Elements& smaller) {
    const auto size_of = [](const Elements& block) {
      return std::to_string(block.rows()) + " by " + std::to_string(block.columns());
    };
    state_.reason = "The blocks differ in size (" + size_of(larger) + " and " + size_of(smaller) +
                    ", rows by columns), and a value without a partner gives #N/A.";
  }

  void explain_pair(std::string_view op, const HostValue& left, const HostValue& right,
                    const HostValue& result) {
    if (Is_Error(left) || Is_Error(right)) return;
    state_.reason = Reason_Of_Operator(engine_, op, left, right, result, watch_->seen());
  }

  // The first number that is cut is told, wherever in the formula: what is calculated with it is
  // wrong in the same digits.
  void note_cut(const HostValue& value) {
    if (state_.has_cut) return;
    auto note = Note_On_Cut(value, explains_);
    if (!note) return;
    state_.has_cut = true;
    state_.notes.push_back(std::move(*note));
  }

  // Somebody who has asked for so many digits knows that there may be more.
  static bool has_own_limit(const Call& call) {
    const auto& parameters = call.method->parameters;
    for (std::size_t at = 0; at < call.arguments.size() && at < parameters.size(); ++at) {
      const bool is_given = !std::holds_alternative<Omitted>(call.arguments[at].node);
      if (is_given && parameters[at].name == "maximum_significant_digits") return true;
    }
    return false;
  }

  HostValue if_else(const Arguments& arguments) {
    const HostValue condition = value_of(arguments.front());
    std::array<std::optional<HostValue>, 2> branches;  // calculated where they are needed
    const auto branch = [&](bool is_true) -> const HostValue& {
      std::optional<HostValue>& chosen = branches[is_true ? 1 : 0];
      if (!chosen) chosen = branch_of(arguments, is_true ? 1 : 2);
      return *chosen;
    };
    if (!Is_Block(condition)) {
      const HostValue truth = truth_of(Single(condition));
      return Is_Error(truth) ? truth : branch(truth.boolean());
    }
    const Elements conditions(condition);
    return Block_Of(conditions.rows(), conditions.columns(),
                    [&](std::size_t row, std::size_t column) {
                      HostValue truth = truth_of(conditions.at(row, column));
                      if (Is_Error(truth)) return truth;
                      return Elements(branch(truth.boolean())).at(row, column);
                    });
  }

  // An argument left out between separators is 0, and one left out altogether is FALSE.
  HostValue branch_of(const Arguments& arguments, std::size_t place) {
    if (place >= arguments.size()) return false;
    if (std::holds_alternative<Omitted>(arguments[place].node)) return 0;
    return value_of(arguments[place]);
  }

  HostValue if_error(const Arguments& arguments) {
    const State earlier = state_;
    const HostValue value = value_of(arguments.front());
    std::optional<HostValue> other;
    const auto instead = [&]() -> const HostValue& {
      if (!other) {
        state_ = earlier;  // it has been dealt with
        other = branch_of(arguments, 1);
      }
      return *other;
    };
    if (!Is_Block(value)) return Is_Error(Single(value)) ? instead() : value;
    const Elements values(value);
    return Block_Of(values.rows(), values.columns(), [&](std::size_t row, std::size_t column) {
      HostValue each = values.at(row, column);
      return Is_Error(each) ? Elements(instead()).at(row, column) : std::move(each);
    });
  }

  // AND and OR: the first condition that is `decisive` decides.
  HostValue all_or_any(const Arguments& arguments, bool decisive) {
    bool is_any_told = false;
    for (const Expression& argument : arguments) {
      const HostValue value = value_of(argument);
      const Elements elements(value);
      const bool is_block = Is_Block(value);
      for (std::size_t row = 0; row < elements.rows(); ++row) {
        if (row % steps_between_yields == 0) Yield();
        for (std::size_t column = 0; column < elements.columns(); ++column) {
          const HostValue each = elements.at(row, column);
          HostValue truth = is_block ? Truth_Of(engine_, each) : truth_of(each);
          const bool is_passed_over =
              is_block && (each.is_empty() || (Is_Error(truth) && !Is_Error(each)));
          if (is_passed_over) continue;
          if (Is_Error(truth)) return truth;
          if (truth.boolean() == decisive) return decisive;
          is_any_told = true;
        }
      }
    }
    return is_any_told ? HostValue(!decisive) : HostValue(Error_Code::value);
  }

  // A call that fails hands an error value to the function around it.
  HostValue value_of(const Expression& expression) {
    try {
      Call_Result result = std::visit(*this, expression.node);
      if (auto* value = std::get_if<HostValue>(&result)) return std::move(*value);
    } catch (const Run_Time_Failure& failure) {
      if (Ends_All(failure)) throw;
      if (!state_.inner_failure) state_.inner_failure = failure;
    }
    return Error_Code::value;
  }

  cls_Quorvex& engine_;
  const Formula& formula_;
  Reference_Source& source_;
  State state_;
  Explain explains_;
  std::optional<Failure_Watch> watch_;
};

class No_Worksheet final : public Reference_Source {
 public:
  HostValue cells(const Reference& reference) override {
    const bool one = reference.area.first == reference.area.last;
    throw Syntax_Error(Area_Text(reference.area) +
                           (one ? " refers to a cell" : " refers to cells") +
                           ", and there is no worksheet here",
                       reference.position);
  }
  HostValue name(const Name_Use& use) override {
    throw Syntax_Error(use.name + " is no function, and there is no worksheet here on which it " +
                           "could be a name; text stands in double quotes",
                       use.position);
  }
};

}  // namespace

Reference_Source::~Reference_Source() = default;

HostValue Reference_Source::cell(const Reference& reference) {
  return Single(cells(reference));
}

bool Has_Error(const Call_Result& result) {
  const auto* value = std::get_if<HostValue>(&result);
  if (value == nullptr) return false;
  if (value->kind() != HostValue::Kind::array) return Is_Error(*value);
  return std::ranges::any_of(value->array().values, Is_Error);
}

Evaluation Evaluate(cls_Quorvex& engine, const Formula& formula, Reference_Source& source,
                    Explain explain) {
  return Evaluator(engine, formula, source, explain).evaluate();
}

Evaluation Evaluate_Alone(cls_Quorvex& engine, const Formula& formula, Explain explain) {
  No_Worksheet source;
  return Evaluate(engine, formula, source, explain);
}

}  // namespace quorvex
