#include "text/decimal_positions.h"

#include <utility>

#include "host/utf8.h"
#include "text/primitives.h"

namespace quorvex {
namespace {

constexpr std::int16_t add = 1;
constexpr std::int16_t subtract = 2;
constexpr std::int16_t multiply = 3;
constexpr std::int16_t divide = 4;

double Length(std::string_view text) {
  return static_cast<double>(Count_Characters(text));
}

void Fill(NumberText& operand, double& position, double to) {
  if (position < to) operand.append(static_cast<std::size_t>(to - position), '0');
  position = to;
}

void Align_Points(type_DecPosFromEnd& aligned) {
  const auto with_separator = [](NumberText& operand, double& position) {
    if (position != 0) return;
    operand += Decimal_Separator();
    position = 1;
  };
  with_separator(aligned.Operand1_Trim, aligned.Position1);
  with_separator(aligned.Operand2_Trim, aligned.Position2);
  aligned.Position = Larger_Of(aligned.Position1, aligned.Position2);
  Fill(aligned.Operand1_Trim, aligned.Position1, aligned.Position);
  Fill(aligned.Operand2_Trim, aligned.Position2, aligned.Position);
}

double Product_Position(double position1, double position2) {
  if (position1 == 0) return position2;
  if (position2 == 0) return position1;
  return (position1 - 1) + (position2 - 1) + 1;
}

}  // namespace

type_DecPosFromEnd Decimal_Positions(NumberText operand1, NumberText operand2,
                                     std::int16_t Operation) {
  type_DecPosFromEnd aligned;
  aligned.Operand1_Trim = std::move(operand1);
  aligned.Operand2_Trim = std::move(operand2);
  if (Operation >= add && Operation <= divide) {
    aligned.Position1 = Decimal_Position_Of(aligned.Operand1_Trim);
    aligned.Position2 = Decimal_Position_Of(aligned.Operand2_Trim);
  }
  if (Operation == add || Operation == subtract) Align_Points(aligned);
  if (Operation == multiply || Operation == divide) {
    aligned.Position = Product_Position(aligned.Position1, aligned.Position2);
  }
  aligned.Operand1_TrimLen = Length(aligned.Operand1_Trim);
  aligned.Operand2_TrimLen = Length(aligned.Operand2_Trim);
  return aligned;
}

type_RemoveDecimals Remove_Decimals(type_DecPosFromEnd aligned) {
  type_RemoveDecimals removed;
  removed.Operand1_TrimLen = aligned.Operand1_TrimLen - (aligned.Position1 == 0 ? 0 : 1);
  removed.Operand2_TrimLen = aligned.Operand2_TrimLen - (aligned.Position2 == 0 ? 0 : 1);
  removed.Operand1_Trim = std::move(aligned.Operand1_Trim);
  removed.Operand2_Trim = std::move(aligned.Operand2_Trim);
  if (aligned.Position1 != 0) Remove_Decimal_Separator(removed.Operand1_Trim);
  if (aligned.Position2 != 0) Remove_Decimal_Separator(removed.Operand2_Trim);
  return removed;
}

}  // namespace quorvex
