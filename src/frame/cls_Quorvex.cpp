#include "frame/cls_Quorvex.h"

#include "arith/do_operation.h"
#include "arith/mod_function.h"
#include "arith/parity.h"
#include "arith/recip_divide.h"
#include "arith/reduce_fraction.h"
#include "arith/round_function.h"
#include "arith/signs.h"
#include "arith/whole_part.h"
#include "elementary/angle_units.h"
#include "elementary/constants.h"
#include "elementary/square_root.h"
#include "host/conversions.h"
#include "host/run_time_failure.h"
#include "lists/even_odd.h"
#include "lists/frac_function.h"
#include "lists/gcd_lcm_function.h"
#include "lists/is_error.h"
#include "lists/max_min_function.h"
#include "lists/product_function.h"
#include "lists/shown_fraction.h"
#include "lists/sum_array.h"
#include "lists/sum_function.h"
#include "text/compare_numbers.h"
#include "text/format_result.h"
#include "text/recognition.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

// The answer of a comparison as a cell shows it: a boolean as its word, a token as it is.
HostValue Shown(const HostValue& answer) {
  return To_Text(answer);
}

HostValue Compare(const HostValue& number1, const HostValue& number2, bool testEqual,
                  bool testGreater) {
  return With_Memory_Failures([&] {
    std::string scratch1;
    std::string scratch2;
    return Compare_Numbers(Text_Of(number1, scratch1), Text_Of(number2, scratch2), testEqual,
                           testGreater);
  });
}

bool Is_Restricted(const HostValue& restrict_input_lengths) {
  return !restrict_input_lengths.is_missing() && To_Boolean(restrict_input_lengths);
}

NumberText Round(const HostValue& num, const HostValue& num_digits, Rounding_Direction direction,
                 const Format_Arguments& format) {
  return With_Memory_Failures([&] {
    std::string scratch;
    return Round_Function(Text_Of(num, scratch), Places_Of(num_digits), direction, format);
  });
}

}  // namespace

type_Restrictionator cls_Quorvex::PublicRestrictionatorCaller(
    const HostValue& format_negative, const HostValue& format_thousands,
    const HostValue& format_currency, const HostValue& exponential_notation,
    const HostValue& maximum_significant_digits) {
  return Restrictionator(format_negative, format_thousands, format_currency, exponential_notation,
                         maximum_significant_digits);
}

type_Restrictionator cls_Quorvex::Restrictionator(const HostValue& format_negative,
                                                  const HostValue& format_thousands,
                                                  const HostValue& format_currency,
                                                  const HostValue& exponential_notation,
                                                  const HostValue& maximum_significant_digits,
                                                  const HostValue& format_decimal_place,
                                                  const HostValue& preserve_decimal_place) {
  return quorvex::Restrictionator({format_negative, format_thousands, format_currency,
                                   exponential_notation, maximum_significant_digits,
                                   format_decimal_place, preserve_decimal_place});
}

HostValue cls_Quorvex::DivisionDecimalPosition(const NumberText& divisor,
                                               const NumberText& dividend) {
  return quorvex::DivisionDecimalPosition(divisor, dividend);
}

type_Division_Recip cls_Quorvex::Recip_Divide(NumberText& iBig, NumberText& kBig,
                                              std::int32_t Precision) {
  return quorvex::Recip_Divide(iBig, kBig, Precision);
}

type_Division_Recip cls_Quorvex::myInverse5(const NumberText& kBig, std::int32_t p) {
  return quorvex::myInverse5(kBig, p);
}

HostValue cls_Quorvex::Min(const HostValue& num1, const HostValue& num2) {
  return quorvex::Min(num1, num2);
}

HostValue cls_Quorvex::Max(const HostValue& num1, const HostValue& num2) {
  return quorvex::Max(num1, num2);
}

HostValue cls_Quorvex::GetHalfofLong(std::int32_t num_as_long) {
  return quorvex::GetHalfofLong(num_as_long);
}

NumberText cls_Quorvex::qvxSUM(const HostValue& rngArray, const HostValue& format_negative,
                               const HostValue& format_thousands, const HostValue& format_currency,
                               const HostValue& exponential_notation,
                               const HostValue& maximum_significant_digits) {
  return With_Memory_Failures([&] {
    return Sum_Array(rngArray, {format_negative, format_thousands, format_currency,
                                exponential_notation, maximum_significant_digits});
  });
}

NumberText cls_Quorvex::qvxSQRT(const HostValue& num, const HostValue& format_thousands,
                                const HostValue& format_currency,
                                const HostValue& exponential_notation, const HostValue& maxSD) {
  return With_Memory_Failures([&] {
    return Sqrt_Function(num, Radicand::number,
                         {Missing, format_thousands, format_currency, exponential_notation, maxSD});
  });
}

NumberText cls_Quorvex::qvxSQRTPI(const HostValue& num, const HostValue& format_thousands,
                                  const HostValue& format_currency,
                                  const HostValue& exponential_notation, const HostValue& maxSD) {
  return With_Memory_Failures([&] {
    return Sqrt_Function(num, Radicand::multiple_of_pi,
                         {Missing, format_thousands, format_currency, exponential_notation, maxSD});
  });
}

HostValue cls_Quorvex::qvxISODD(const HostValue& num) {
  return With_Memory_Failures([&] {
    std::string scratch;
    return IsOdd_Function(Text_Of(num, scratch));
  });
}

HostValue cls_Quorvex::qvxISEVEN(const HostValue& num) {
  return With_Memory_Failures([&] {
    std::string scratch;
    return IsEven_Function(Text_Of(num, scratch));
  });
}

NumberText cls_Quorvex::qvxEVEN(const HostValue& num, bool RoundNegTowardZero,
                                const HostValue& format_negative, const HostValue& format_thousands,
                                const HostValue& format_currency,
                                const HostValue& exponential_notation) {
  return With_Memory_Failures([&] {
    std::string scratch;
    return Even_Function(
        Text_Of(num, scratch), Parity::even, RoundNegTowardZero,
        {format_negative, format_thousands, format_currency, exponential_notation});
  });
}

NumberText cls_Quorvex::qvxODD(const HostValue& num, bool RoundNegTowardZero,
                               const HostValue& format_negative, const HostValue& format_thousands,
                               const HostValue& format_currency,
                               const HostValue& exponential_notation) {
  return With_Memory_Failures([&] {
    std::string scratch;
    return Even_Function(
        Text_Of(num, scratch), Parity::odd, RoundNegTowardZero,
        {format_negative, format_thousands, format_currency, exponential_notation});
  });
}

NumberText cls_Quorvex::qvxEVEN2(const HostValue& num, bool RoundNegAwayFromZero,
                                 const HostValue& format_negative,
                                 const HostValue& format_thousands,
                                 const HostValue& format_currency,
                                 const HostValue& exponential_notation) {
  return With_Memory_Failures([&] {
    std::string scratch;
    return Odd_Function(Text_Of(num, scratch), Parity::even, RoundNegAwayFromZero,
                        {format_negative, format_thousands, format_currency, exponential_notation});
  });
}

NumberText cls_Quorvex::qvxODD2(const HostValue& num, bool RoundNegAwayFromZero,
                                const HostValue& format_negative, const HostValue& format_thousands,
                                const HostValue& format_currency,
                                const HostValue& exponential_notation) {
  return With_Memory_Failures([&] {
    std::string scratch;
    return Odd_Function(Text_Of(num, scratch), Parity::odd, RoundNegAwayFromZero,
                        {format_negative, format_thousands, format_currency, exponential_notation});
  });
}

bool cls_Quorvex::qvxISERROR(const HostValue& num) {
  return With_Memory_Failures([&] { return IsError_Function(num); });
}

NumberText cls_Quorvex::qvxAVERAGE(const List& numlist) {
  return With_Memory_Failures([&] { return Sum_Function(numlist, Sum_Kind::average); });
}

NumberText cls_Quorvex::qvxPRODUCT(const List& numlist) {
  return With_Memory_Failures([&] { return Product_Function(numlist); });
}

NumberText cls_Quorvex::qvxSUM2(const List& numlist) {
  return With_Memory_Failures([&] { return Sum_Function(numlist, Sum_Kind::sum); });
}

NumberText cls_Quorvex::qvxCOUNT(const List& numlist) {
  return With_Memory_Failures([&] { return Sum_Function(numlist, Sum_Kind::count); });
}

NumberText cls_Quorvex::qvxMAX(const List& numlist) {
  return With_Memory_Failures([&] { return MaxMin_Function(numlist, Extreme::greatest); });
}

NumberText cls_Quorvex::qvxMIN(const List& numlist) {
  return With_Memory_Failures([&] { return MaxMin_Function(numlist, Extreme::least); });
}

bool cls_Quorvex::qvxISNUMBER(const HostValue& num) {
  return With_Memory_Failures([&] {
    std::string scratch;
    return Is_Number_Text(Text_Of(num, scratch));
  });
}

NumberText cls_Quorvex::qvxINT(const HostValue& num, const HostValue& format_negative,
                               const HostValue& format_thousands, const HostValue& format_currency,
                               const HostValue& exponential_notation) {
  return With_Memory_Failures([&] {
    std::string scratch;
    return Int_Function(Text_Of(num, scratch),
                        {format_negative, format_thousands, format_currency, exponential_notation});
  });
}

NumberText cls_Quorvex::qvxTRUNC(const HostValue& num, const HostValue& num_digits,
                                 const HostValue& format_negative,
                                 const HostValue& format_thousands,
                                 const HostValue& format_currency,
                                 const HostValue& exponential_notation) {
  return With_Memory_Failures([&] {
    std::string scratch;
    return Trunc_Function(
        Text_Of(num, scratch), num_digits,
        {format_negative, format_thousands, format_currency, exponential_notation});
  });
}

NumberText cls_Quorvex::qvxFRAC(const HostValue& num, const HostValue& as_int,
                                const HostValue& sign, const HostValue& format_negative,
                                const HostValue& format_thousands, const HostValue& format_currency,
                                const HostValue& exponential_notation,
                                const HostValue& maximum_significant_digits) {
  return With_Memory_Failures([&] {
    return Frac_Function(num, as_int, sign,
                         {format_negative, format_thousands, format_currency, exponential_notation,
                          maximum_significant_digits});
  });
}

NumberText cls_Quorvex::qvxMOD(const HostValue& dividend, const HostValue& divisor,
                               const HostValue& sign, const HostValue& format_negative,
                               const HostValue& format_thousands, const HostValue& format_currency,
                               const HostValue& exponential_notation,
                               const HostValue& maximum_significant_digits) {
  return With_Memory_Failures([&] {
    return Mod_Function(dividend, divisor, false, sign,
                        {format_negative, format_thousands, format_currency, exponential_notation,
                         maximum_significant_digits});
  });
}

NumberText cls_Quorvex::qvxMODTRUNC(const HostValue& dividend, const HostValue& divisor,
                                    const HostValue& sign, const HostValue& format_negative,
                                    const HostValue& format_thousands,
                                    const HostValue& format_currency,
                                    const HostValue& exponential_notation,
                                    const HostValue& maximum_significant_digits) {
  return With_Memory_Failures([&] {
    return Mod_Function(dividend, divisor, true, sign,
                        {format_negative, format_thousands, format_currency, exponential_notation,
                         maximum_significant_digits});
  });
}

NumberText cls_Quorvex::qvxREMAINDER(const HostValue& dividend, const HostValue& divisor,
                                     const HostValue& sign, const HostValue& format_negative,
                                     const HostValue& format_thousands,
                                     const HostValue& format_currency,
                                     const HostValue& exponential_notation,
                                     const HostValue& maximum_significant_digits) {
  // Every argument goes one place to the left. That is how the function has always read them.
  return With_Memory_Failures([&] {
    return Mod_Function(
        dividend, divisor, sign, format_negative,
        {format_thousands, format_currency, exponential_notation, maximum_significant_digits});
  });
}

NumberText cls_Quorvex::qvxABS(const HostValue& num, const HostValue& format_negative,
                               const HostValue& format_thousands, const HostValue& format_currency,
                               const HostValue& exponential_notation) {
  return With_Memory_Failures([&] {
    std::string scratch;
    return Abs_Function(Text_Of(num, scratch),
                        {format_negative, format_thousands, format_currency, exponential_notation});
  });
}

HostValue cls_Quorvex::qvxSIGN(const HostValue& num) {
  return With_Memory_Failures([&] { return Sign_Function(num); });
}

NumberText cls_Quorvex::qvxNEG(const HostValue& num, const HostValue& format_negative,
                               const HostValue& format_thousands, const HostValue& format_currency,
                               const HostValue& exponential_notation) {
  return With_Memory_Failures([&] {
    std::string scratch;
    return Neg_Function(Text_Of(num, scratch),
                        {format_negative, format_thousands, format_currency, exponential_notation});
  });
}

NumberText cls_Quorvex::qvxCHANGESIGN(const HostValue& num, const HostValue& format_negative,
                                      const HostValue& format_thousands,
                                      const HostValue& format_currency,
                                      const HostValue& exponential_notation) {
  return With_Memory_Failures([&] {
    std::string scratch;
    return ChangeSign_Function(Text_Of(num, scratch), {format_negative, format_thousands,
                                                       format_currency, exponential_notation});
  });
}

NumberText cls_Quorvex::qvxADD(const HostValue& number1, const HostValue& number2,
                               const HostValue& format_negative, const HostValue& format_thousands,
                               const HostValue& format_currency,
                               const HostValue& exponential_notation,
                               const HostValue& maximum_significant_digits,
                               const HostValue& format_decimal_place,
                               const HostValue& preserve_decimal_place) {
  return Do_Operation(operation::add, number1, number2,
                      {format_negative, format_thousands, format_currency, exponential_notation,
                       maximum_significant_digits, format_decimal_place, preserve_decimal_place});
}

NumberText cls_Quorvex::qvxSUBTRACT(
    const HostValue& number1, const HostValue& number2, const HostValue& format_negative,
    const HostValue& format_thousands, const HostValue& format_currency,
    const HostValue& exponential_notation, const HostValue& maximum_significant_digits,
    const HostValue& format_decimal_place, const HostValue& preserve_decimal_place) {
  return Do_Operation(operation::subtract, number1, number2,
                      {format_negative, format_thousands, format_currency, exponential_notation,
                       maximum_significant_digits, format_decimal_place, preserve_decimal_place});
}

NumberText cls_Quorvex::qvxMULTIPLY(
    const HostValue& number1, const HostValue& number2, const HostValue& format_negative,
    const HostValue& format_thousands, const HostValue& format_currency,
    const HostValue& exponential_notation, const HostValue& maximum_significant_digits,
    const HostValue& format_decimal_place, const HostValue& preserve_decimal_place) {
  return Do_Operation(operation::multiply, number1, number2,
                      {format_negative, format_thousands, format_currency, exponential_notation,
                       maximum_significant_digits, format_decimal_place, preserve_decimal_place});
}

NumberText cls_Quorvex::qvxDIVIDE(
    const HostValue& number1, const HostValue& number2, const HostValue& format_negative,
    const HostValue& format_thousands, const HostValue& format_currency,
    const HostValue& exponential_notation, const HostValue& maximum_significant_digits,
    const HostValue& format_decimal_place, const HostValue& preserve_decimal_place) {
  return Do_Operation(operation::divide, number1, number2,
                      {format_negative, format_thousands, format_currency, exponential_notation,
                       maximum_significant_digits, format_decimal_place, preserve_decimal_place});
}

NumberText cls_Quorvex::qvxROOT(const HostValue& number1, const HostValue& number2,
                                const HostValue& format_negative, const HostValue& format_thousands,
                                const HostValue& format_currency,
                                const HostValue& exponential_notation,
                                const HostValue& maximum_significant_digits,
                                const HostValue& restrict_input_lengths,
                                const HostValue& format_decimal_place,
                                const HostValue& preserve_decimal_place) {
  return Do_Operation(operation::root, number1, number2,
                      {format_negative, format_thousands, format_currency, exponential_notation,
                       maximum_significant_digits, format_decimal_place, preserve_decimal_place},
                      {.restrict_input_lengths = Is_Restricted(restrict_input_lengths)});
}

NumberText cls_Quorvex::qvxPOWER(
    const HostValue& number1, const HostValue& number2, const HostValue& format_negative,
    const HostValue& format_thousands, const HostValue& format_currency,
    const HostValue& exponential_notation, const HostValue& maximum_significant_digits,
    const HostValue& restrict_input_lengths, const HostValue& format_decimal_place,
    const HostValue& preserve_decimal_place) {
  return Do_Operation(operation::power, number1, number2,
                      {format_negative, format_thousands, format_currency, exponential_notation,
                       maximum_significant_digits, format_decimal_place, preserve_decimal_place},
                      {.restrict_input_lengths = Is_Restricted(restrict_input_lengths)});
}

HostValue cls_Quorvex::qvxISEQUAL(const HostValue& number1, const HostValue& number2) {
  return Shown(Compare(number1, number2, true, false));
}

HostValue cls_Quorvex::qvxISNOTEQUAL(const HostValue& number1, const HostValue& number2) {
  const HostValue answer = Compare(number1, number2, true, false);
  const bool is_no_number = answer.is_text() && answer.text() == num_token;
  return Shown(is_no_number ? answer : HostValue(!Is_True(answer)));
}

HostValue cls_Quorvex::qvxISGREATER(HostValue& number1, HostValue& number2) {
  if (!number1.is_text()) number1 = To_Text(number1);
  if (!number2.is_text()) number2 = To_Text(number2);
  return Shown(Compare_Numbers(number1.text(), number2.text(), false, true));
}

HostValue cls_Quorvex::qvxISGREATEROREQUAL(const HostValue& number1, const HostValue& number2) {
  return Shown(Compare(number1, number2, true, true));
}

HostValue cls_Quorvex::qvxISLESS(const HostValue& number1, const HostValue& number2) {
  return Shown(Compare(number2, number1, false, true));
}

HostValue cls_Quorvex::qvxISLESSOREQUAL(const HostValue& number1, const HostValue& number2) {
  return Shown(Compare(number2, number1, true, true));
}

NumberText cls_Quorvex::qvxROUND(const HostValue& num, const HostValue& num_digits,
                                 const HostValue& format_negative,
                                 const HostValue& format_thousands,
                                 const HostValue& format_currency,
                                 const HostValue& exponential_notation) {
  return Round(num, num_digits, Rounding_Direction::nearest,
               {format_negative, format_thousands, format_currency, exponential_notation});
}

NumberText cls_Quorvex::qvxROUNDUP(const HostValue& num, const HostValue& num_digits,
                                   const HostValue& format_negative,
                                   const HostValue& format_thousands,
                                   const HostValue& format_currency,
                                   const HostValue& exponential_notation) {
  return Round(num, num_digits, Rounding_Direction::up,
               {format_negative, format_thousands, format_currency, exponential_notation});
}

NumberText cls_Quorvex::qvxROUNDDOWN(const HostValue& num, const HostValue& num_digits,
                                     const HostValue& format_negative,
                                     const HostValue& format_thousands,
                                     const HostValue& format_currency,
                                     const HostValue& exponential_notation) {
  return Round(num, num_digits, Rounding_Direction::down,
               {format_negative, format_thousands, format_currency, exponential_notation});
}

HostValue cls_Quorvex::qvxREDUCEFRACTION(const HostValue& Numerator, const HostValue& divisor,
                                         bool simplify_signs, bool always_simplify_fraction,
                                         bool return_numerator, bool return_divisor,
                                         bool return_reduced_by,
                                         const std::optional<NumberText>& fraction_separator) {
  return With_Memory_Failures([&] {
    std::string scratch1;
    std::string scratch2;
    return Shown_Fraction(Reduce_Fraction(Text_Of(Numerator, scratch1), Text_Of(divisor, scratch2),
                                          {simplify_signs, always_simplify_fraction}),
                          {return_numerator, return_divisor, return_reduced_by},
                          fraction_separator);
  });
}

HostValue cls_Quorvex::qvxGCD(const List& numlist) {
  return With_Memory_Failures([&] { return GCD_Function(numlist, Element_Form::truncated); });
}

HostValue cls_Quorvex::qvxGCD2(const List& numlist) {
  return With_Memory_Failures([&] { return GCD_Function(numlist, Element_Form::whole); });
}

HostValue cls_Quorvex::qvxLCM(const List& numlist) {
  return With_Memory_Failures([&] { return LCM_Function(numlist, Element_Form::truncated); });
}

HostValue cls_Quorvex::qvxLCM2(const List& numlist) {
  return With_Memory_Failures([&] { return LCM_Function(numlist, Element_Form::whole); });
}

NumberText cls_Quorvex::qvxPi(const HostValue& digits) {
  return To_Text(Pi_Digits(Constant_Digits(digits)));
}

NumberText cls_Quorvex::qvxE(const HostValue& digits) {
  return To_Text(E_Digits(Constant_Digits(digits)));
}

HostValue cls_Quorvex::qvxDEFAULTMAXSD() {
  return Default_MaxSD();
}

NumberText cls_Quorvex::qvxRADIANS(const NumberText& degrees, const HostValue& maxSD) {
  return With_Memory_Failures([&] { return Radians_Function(degrees, maxSD); });
}

NumberText cls_Quorvex::qvxDEGREES(const NumberText& radians, const HostValue& maxSD) {
  return With_Memory_Failures([&] { return Degrees_Function(radians, maxSD); });
}

NumberText cls_Quorvex::qvxFORMAT(const NumberText& number, const HostValue& format_negative,
                                  const HostValue& format_thousands,
                                  const HostValue& format_currency,
                                  const HostValue& exponential_notation,
                                  const HostValue& maximum_significant_digits,
                                  const HostValue& format_decimal_place,
                                  const HostValue& preserve_decimal_place) {
  return With_Memory_Failures([&] {
    return Format_Number(
        number, {format_negative, format_thousands, format_currency, exponential_notation,
                 maximum_significant_digits, format_decimal_place, preserve_decimal_place});
  });
}

}  // namespace quorvex
