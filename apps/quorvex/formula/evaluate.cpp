#include "formula/evaluate.h"

#include <cmath>
#include <optional>
#include <utility>
#include <variant>
#include <vector>

#include "formula/literals.h"
#include "formula/operators.h"
#include "host/conversions.h"
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
  Evaluator(cls_Quorvex& engine, const Formula& formula, Reference_Source& source)
      : engine_(engine), formula_(formula), source_(source) {}

  // Where an inner call has failed first, that tells more than what became of it further out.
  Evaluation evaluate() {
    try {
      Evaluation evaluation{std::visit(*this, formula_.root.node), {}};
      if (inner_failure_ && Is_Error_Result(evaluation.result))
        evaluation.reason = inner_failure_->what();
      return evaluation;
    } catch (const Run_Time_Failure& failure) {
      if (!inner_failure_ || Ends_All(failure)) throw;
      throw Run_Time_Failure(*inner_failure_);
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
    return Negated(engine_, value_of(negation.operand.front()));
  }
  Call_Result operator()(const Percent& percent) {
    return Hundredth(engine_, value_of(percent.operand.front()));
  }
  Call_Result operator()(const Chain& chain) {
    HostValue value = value_of(chain.operands.front());
    for (std::size_t at = 0; at < chain.operators.size(); ++at)
      value = Apply(engine_, chain.operators[at], value, value_of(chain.operands[at + 1]));
    return value;
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
    return Invoke(engine_, *call.method, std::move(arguments));
  }

 private:
  // A call that fails hands an error value to the function around it.
  HostValue value_of(const Expression& expression) {
    try {
      Call_Result result = std::visit(*this, expression.node);
      if (auto* value = std::get_if<HostValue>(&result)) return std::move(*value);
    } catch (const Run_Time_Failure& failure) {
      if (Ends_All(failure)) throw;
      if (!inner_failure_) inner_failure_ = failure;
    }
    return Error_Code::value;
  }

  cls_Quorvex& engine_;
  const Formula& formula_;
  Reference_Source& source_;
  std::optional<Run_Time_Failure> inner_failure_;
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

std::string Rendered_Range(const Range& range) {
  Array array;
  array.rows = range.rows();
  array.columns = range.columns();
  for (std::size_t row = 1; row <= array.rows; ++row) {
    Yield();
    for (std::size_t column = 1; column <= array.columns; ++column) {
      array.values.push_back(range.cell(row, column));
    }
  }
  return array.values.size() == 1 ? Render(array.values[0]) : Constant_Text(std::move(array));
}

std::string Rendered_List(const List& list) {
  Array array;
  array.rows = 1;
  array.columns = list.size();
  array.values = list;
  return Constant_Text(std::move(array));
}

}  // namespace

Reference_Source::~Reference_Source() = default;

bool Is_Error_Result(const Call_Result& result) {
  const auto* value = std::get_if<HostValue>(&result);
  return value != nullptr && Is_Error(*value);
}

Evaluation Evaluate(cls_Quorvex& engine, const Formula& formula, Reference_Source& source) {
  return Evaluator(engine, formula, source).evaluate();
}

Evaluation Evaluate_Alone(cls_Quorvex& engine, const Formula& formula) {
  No_Worksheet source;
  return Evaluate(engine, formula, source);
}

std::string Render(const HostValue& value) {
  switch (value.kind()) {
    case HostValue::Kind::text:
      return value.text();
    case HostValue::Kind::number:
      return std::isfinite(value.number()) ? Number_To_Text(value.number()) : "#NUM!";
    case HostValue::Kind::range:
      return Rendered_Range(value.range());
    case HostValue::Kind::list:
      return Rendered_List(value.list());
    default:
      return Constant_Text(value);
  }
}

}  // namespace quorvex
