#include "cli/help/example_result.h"

#include "formula/evaluate.h"
#include "formula/formula.h"
#include "host/run_time_failure.h"
#include "sheet/result_text.h"
#include "text/options.h"

namespace quorvex {

Example_Settings::Example_Settings()
    : locale_(Current_Platform().locale), digits_(Default_MaxSD()) {
  Current_Platform().locale = Fixed_Locale(Locale{});
  Set_Default_MaxSD(100);
}

Example_Settings::~Example_Settings() {
  Current_Platform().locale = locale_;
  Set_Default_MaxSD(digits_);
}

std::string Example_Result(cls_Quorvex& engine, std::string_view formula) {
  const Example_Settings settings;
  std::string result;
  try {
    Append_Result_Lines(result,
                        Evaluate_Alone(engine, Parse_Formula(formula, Functions::all)).result);
  } catch (const Run_Time_Failure& failure) {
    result = "error: " + std::string(failure.what()) + "\n";
  }
  return result;
}

}  // namespace quorvex
