// Factorials and what is worked out by them.
#include "elementary/factorial.h"
#include "elementary/poisson.h"
#include "frame/class/cls_Quorvex.h"
#include "frame/class/outer_call.h"

namespace quorvex {

NumberText cls_Quorvex::qvxFACT(const HostValue& num, const HostValue& format_negative,
                                const HostValue& format_thousands, const HostValue& format_currency,
                                const HostValue& exponential_notation,
                                const HostValue& maximum_significant_digits) {
  return Outer_Call([&] {
    return Fact_Function(num, {format_negative, format_thousands, format_currency,
                               exponential_notation, maximum_significant_digits});
  });
}

NumberText cls_Quorvex::qvxFACTDOUBLE(const HostValue& num, const HostValue& format_negative,
                                      const HostValue& format_thousands,
                                      const HostValue& format_currency,
                                      const HostValue& exponential_notation,
                                      const HostValue& maximum_significant_digits) {
  return Outer_Call([&] {
    return FactDouble_Function(num, {format_negative, format_thousands, format_currency,
                                     exponential_notation, maximum_significant_digits});
  });
}

NumberText cls_Quorvex::qvxPOISSON(const HostValue& target_num, const HostValue& average_num,
                                   const HostValue& is_cumulative,
                                   const HostValue& exponential_notation,
                                   const HostValue& maximum_significant_digits,
                                   const HostValue& restrict_input_lengths) {
  return Outer_Call([&] {
    return Poisson_Function(target_num, average_num, is_cumulative, exponential_notation,
                            maximum_significant_digits, restrict_input_lengths);
  });
}

}  // namespace quorvex
