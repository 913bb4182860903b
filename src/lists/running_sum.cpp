#include "lists/running_sum.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "arith/digits/subtract_digits.h"
#include "arith/do_operation.h"
#include "host/run_time_failure.h"
#include "text/digit_runs.h"
#include "text/format_result.h"
#include "text/guard_digits.h"
#include "text/operand.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

Decimal_Parts Without_Leading_Zeros(Decimal_Parts parts) {
  parts.integer.remove_prefix(Count_Leading_Zeros(parts.integer));
  return parts;
}

}  // namespace

std::size_t Digits_Never_Cut(double msd) {
  if (!(msd > 0)) return 0;
  return static_cast<std::size_t>(With_Guard_Digit(Up_To_Ceiling(msd)));
}

bool Running_Sum::add(std::string_view element, double msd) {
  if (in_chain_) return add_in_chain(element, msd);
  if (Plain_Number plain; Read_Plain(element, plain) && add_plain(plain, msd)) return true;
  bool is_number = false;
  const bool was_in_place = With_Handler(
      [&] {
        const Operand operand(element);
        is_number = operand.is_number();
        return !is_number || add_in_place(operand, msd);
      },
      [&](const Run_Time_Failure&) {
        is_number = false;
        return true;
      });
  return was_in_place ? is_number : add_in_chain(element, msd);
}

// As many as have few carries.
bool Running_Sum::admit(const Decimal_Parts& parts, double msd) {
  if (in_chain_ || !Column_Sum::has_room_for(parts)) return false;
  constexpr std::size_t count = 100'000;
  constexpr std::size_t digits_of_count = 6;
  const std::size_t integer = std::max(admitted_integer_, parts.integer.size());
  const std::size_t fraction = std::max(admitted_fraction_, parts.fraction.size());
  // What is there and what comes have one digit more together than the longer of them.
  const std::size_t most = std::max(integer_digits(), integer + digits_of_count) + 1 +
                           std::max(fraction_digits(), fraction);
  if (most > Digits_Never_Cut(msd)) return false;
  admitted_count_ = count;
  admitted_integer_ = integer;
  admitted_fraction_ = fraction;
  admitted_msd_ = msd;
  return true;
}

// Bounds for a sum of all that has been added so far.
std::size_t Running_Sum::integer_digits() const {
  return std::max({positive_.integer_digits(), negative_.integer_digits(),
                   positive_columns_.integer_digits(), negative_columns_.integer_digits()}) +
         1;
}

std::size_t Running_Sum::fraction_digits() const {
  return std::max({positive_.fraction_digits(), negative_.fraction_digits(),
                   positive_columns_.fraction_digits(), negative_columns_.fraction_digits()});
}

void Running_Sum::pour_columns() {
  const auto pour = [](Column_Sum& columns, Magnitude_Sum& sum) {
    if (columns.is_empty()) return;
    sum.add(Without_Leading_Zeros(columns.parts()));
    columns.clear();
  };
  pour(positive_columns_, positive_);
  pour(negative_columns_, negative_);
}

// False if a limit might cut the sum, or the one before it.
bool Running_Sum::add_in_place(const Operand& element, double msd) {
  admitted_count_ = 0;
  const Decimal_Parts& parts = element.parts();
  const auto may_be_cut = [&] {
    return std::max(integer_digits(), parts.integer.size()) + 1 +
               std::max(fraction_digits(), parts.fraction.size()) >
           Digits_Never_Cut(msd);
  };
  if (may_be_cut()) {
    pour_columns();  // then bounds are narrower
    if (may_be_cut()) return false;
  }
  (element.positive() ? positive_ : negative_).add(parts);
  return true;
}

bool Running_Sum::add_in_chain(std::string_view element, double msd) {
  if (!in_chain_) {
    chain_ = text();
    in_chain_ = true;
  }
  type_Restrictionator options;
  options.maxSD = Up_To_Ceiling(msd);
  NumberText sum =
      Do_Operation_On_Texts(operation::add, chain_, element, options, {.intermediate = true});
  if (Has_Token_Mark(sum)) return false;
  chain_ = std::move(sum);
  return true;
}

NumberText Running_Sum::text() {
  if (in_chain_) return chain_;
  pour_columns();
  admitted_count_ = 0;
  const Decimal_Parts positive = Without_Leading_Zeros(positive_.parts());
  const Decimal_Parts negative = Without_Leading_Zeros(negative_.parts());
  type_Subtraction sum = Subtract_Decimals(positive, negative);
  const std::size_t fraction = std::max(positive.fraction.size(), negative.fraction.size());
  type_Restrictionator options;
  options.maxSD = maximum_digits;
  return Format_Result(
      {std::move(sum.Difference), -static_cast<std::int64_t>(fraction), sum.NegativeSubtraction},
      options, true);
}

}  // namespace quorvex
