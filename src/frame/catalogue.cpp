#include "frame/catalogue.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <string>

#include "frame/rows/families.h"
#include "host/run_time_failure.h"

namespace quorvex {

namespace {

// Hosts call methods by their slots, so each has one of its own and none is left out.
void Check_Slots(std::span<const Method> methods) {
  for (std::size_t i = 0; i < methods.size(); ++i) {
    if (methods[i].slot == static_cast<int>(i + 1)) continue;
    throw std::logic_error(std::string(methods[i].name) + " can't have slot " +
                           std::to_string(methods[i].slot) + ".");
  }
}

std::vector<Method> Make_Catalogue() {
  using namespace catalogue;
  std::vector<Method> methods;
  for (auto rows : {Arithmetic_Rows(), Comparison_Rows(), Constant_Rows(), Division_Rows(),
                    Extraction_Rows(), Formatting_Rows(), Fraction_Rows(), List_Rows(),
                    Logarithm_Rows(), Order_Rows(), Power_And_Root_Rows(), Probability_Rows(),
                    Rounding_Rows(), Shell_Rows(), Trigonometry_Rows(), Whole_Number_Rows()}) {
    std::ranges::move(rows, std::back_inserter(methods));
  }
  std::ranges::sort(methods, {}, &Method::slot);
  Check_Slots(methods);
  return methods;
}

char Lower(char letter) {
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool Same_Name(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, {}, Lower, Lower);
}

}  // namespace

std::span<const Method> Catalogue() {
  static const std::vector<Method> methods = Make_Catalogue();
  return methods;
}

const Method* Find_Method(std::string_view name) {
  const auto methods = Catalogue();
  const auto found = std::ranges::find_if(
      methods, [&](const Method& method) { return Same_Name(method.name, name); });
  return found == methods.end() ? nullptr : &*found;
}

Call_Result Invoke(cls_Quorvex& engine, const Method& method, std::vector<HostValue> arguments) {
  if (arguments.size() > method.parameters.size()) {
    throw std::invalid_argument(std::string(method.name) + " takes fewer arguments.");
  }
  arguments.resize(method.parameters.size());
  return Invoke_In_Place(engine, method, arguments);
}

Call_Result Invoke_In_Place(cls_Quorvex& engine, const Method& method,
                            std::span<HostValue> arguments) {
  if (arguments.size() != method.parameters.size()) {
    throw std::invalid_argument(std::string(method.name) + " takes another count of arguments.");
  }
  return With_Memory_Failures([&] { return method.invoke(engine, arguments); });
}

}  // namespace quorvex
