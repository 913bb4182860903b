// The public class: every worksheet function as a method, in an order that stays fixed.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

#include "arith/division/reciprocal.h"
#include "host/application.h"
#include "host/export.h"
#include "host/host_value.h"
#include "text/options.h"

namespace quorvex {

/// The worksheet functions.
///
/// Operands are numbers as text or as any host value: digits with one decimal separator, a leading
/// minus or parentheses, thousands separators, currency symbol, E notation (1.5E+3), matching
/// quote marks around. Separators and symbol are those of the user's locale at the time of the
/// call. A result is text formatted by the options, or an error token: "#VALUE!", "#NUM!",
/// "#DIV/0!".
///
/// The options, all optional, in this order: `format_negative` 0 (no sign), 1 (leading minus, the
/// default) or 2 (parentheses); `format_thousands`, `format_currency`, `exponential_notation`,
/// true or false; `maximum_significant_digits`, `Default_MaxSD` if missing;
/// `format_decimal_place`, a fixed count of places; `preserve_decimal_place`, without effect.
///
/// Instances keep no state of their own: they share the default limit and the host. A calculation
/// that the host breaks off throws `Run_Time_Failure` number 18 from any of them.
class QUORVEX_API cls_Quorvex {
 public:
  /// Loads the default limit from the user's settings, which get 100 where they have none, and has
  /// the functions described to the host as soon as that is idle. Throws `Run_Time_Failure` 13 or 6
  /// for a stored limit that is no number.
  cls_Quorvex();

  /// Tells the add-in the host that it runs in; null changes nothing.
  void SetExcelApp(const std::shared_ptr<Host_Application>& excel_app);

  /// Where the help file belongs: beside this library. Nobody looks whether it is there.
  NumberText qvxHelpfilePath();

  /// `Restrictionator` with the last two arguments missing.
  type_Restrictionator PublicRestrictionatorCaller(
      const HostValue& format_negative = Missing, const HostValue& format_thousands = Missing,
      const HostValue& format_currency = Missing, const HostValue& exponential_notation = Missing,
      const HostValue& maximum_significant_digits = Missing);

  /// The options as every function resolves them. Throws `Run_Time_Failure` 13 for an option that
  /// can't be read.
  type_Restrictionator Restrictionator(const HostValue& format_negative = Missing,
                                       const HostValue& format_thousands = Missing,
                                       const HostValue& format_currency = Missing,
                                       const HostValue& exponential_notation = Missing,
                                       const HostValue& maximum_significant_digits = Missing,
                                       const HostValue& format_decimal_place = Missing,
                                       const HostValue& preserve_decimal_place = Missing);

  /// The place of a quotient's separator by the lengths of two digit strings. Despite their names
  /// the first is the number that is divided, and the second the one divided by.
  HostValue DivisionDecimalPosition(const NumberText& divisor, const NumberText& dividend);

  /// The quotient of two whole numbers to `Precision` significant digits. Tokens, as `digits`: that
  /// of an operand that is no number, "#DIV/0!", "#VALUE!" where products can't be formed.
  type_Division_Recip Recip_Divide(NumberText& iBig, NumberText& kBig, std::int32_t Precision);

  /// `p` digits of the reciprocal of a whole number, from below: that of 2 is a 4 and nines.
  type_Division_Recip myInverse5(const NumberText& kBig, std::int32_t p);

  /// The lesser, or the greater, of two values as numbers; the second one where they are equal.
  HostValue Min(const HostValue& num1, const HostValue& num2);
  HostValue Max(const HostValue& num1, const HostValue& num2);

  /// The half of a 32-bit number, rounded down.
  HostValue GetHalfofLong(std::int32_t num_as_long);

  /// Number text as a mantissa below 1 and a power of ten, and the two joined again in 64-bit
  /// floats. No sign is treated: a leading minus counts as a digit. `as_integer` gives the digits
  /// of the mantissa alone. Joining throws `Run_Time_Failure` 13 for what is no number, 6 beyond
  /// floats and 32-bit exponents.
  NumberText Get_Mantissa(const HostValue& num, bool as_integer = false);
  NumberText Get_Exponent(const HostValue& num);
  NumberText Combine_Mantissa_And_Exponent(const NumberText& mantissa, const NumberText& exponent);
  NumberText Test_Mantissa_And_Exponent(const HostValue& num);

  /// The workers of the functions of the same names further down, for a host's macros. What those
  /// give as the text "0" without a calculation is a number here.
  HostValue Cos_Function(const HostValue& num, const HostValue& maxSD = Missing);
  HostValue Tan_Function(const HostValue& num, const HostValue& maxSD = Missing);
  HostValue ATan_Function(const HostValue& num, const HostValue& maxSD = Missing);
  HostValue ASin_Function(const HostValue& num, const HostValue& maxSD = Missing);
  HostValue ACos_Function(const HostValue& num, const HostValue& maxSD = Missing);

  /// The sum of the cells of an array or range, each addition with the limit. A cell that is no
  /// number makes it a token; blank cells are 0. Throws `Run_Time_Failure` 13 for what is no
  /// two-dimensional array, such as a single cell, and 9 for an array without a row or column 1.
  NumberText qvxSUM(const HostValue& rngArray, const HostValue& format_negative = Missing,
                    const HostValue& format_thousands = Missing,
                    const HostValue& format_currency = Missing,
                    const HostValue& exponential_notation = Missing,
                    const HostValue& maximum_significant_digits = Missing);

  /// The square root of a number, and of a number times pi, to `maxSD` digits (`Default_MaxSD` if
  /// missing or empty). "#NUM!" for a number that begins with a minus or a parenthesis, and beyond
  /// the digits of pi. Throws `Run_Time_Failure` 13 for an error value and for an option that can't
  /// be read.
  NumberText qvxSQRT(const HostValue& num, const HostValue& format_thousands = Missing,
                     const HostValue& format_currency = Missing,
                     const HostValue& exponential_notation = Missing,
                     const HostValue& maxSD = Missing);
  NumberText qvxSQRTPI(const HostValue& num, const HostValue& format_thousands = Missing,
                       const HostValue& format_currency = Missing,
                       const HostValue& exponential_notation = Missing,
                       const HostValue& maxSD = Missing);
  /// Whether the whole part of `num` is odd, or even. An empty one is even. The text "#NUM!" for
  /// what is no number. Throws `Run_Time_Failure` 13 as `qvxISNUMBER` does.
  HostValue qvxISODD(const HostValue& num);
  HostValue qvxISEVEN(const HostValue& num);

  /// The next whole number that is even, or odd: away from zero, or with a 2 towards zero. The
  /// second argument sends negative numbers the other way. An empty `num` is 0, and 0 counts as
  /// positive; "#VALUE!" for what is no number. Throws `Run_Time_Failure` 13 for an option that
  /// can't be read and for a `num` without text.
  NumberText qvxEVEN(const HostValue& num, bool RoundNegTowardZero = false,
                     const HostValue& format_negative = Missing,
                     const HostValue& format_thousands = Missing,
                     const HostValue& format_currency = Missing,
                     const HostValue& exponential_notation = Missing);
  NumberText qvxODD(const HostValue& num, bool RoundNegTowardZero = false,
                    const HostValue& format_negative = Missing,
                    const HostValue& format_thousands = Missing,
                    const HostValue& format_currency = Missing,
                    const HostValue& exponential_notation = Missing);
  NumberText qvxEVEN2(const HostValue& num, bool RoundNegAwayFromZero = false,
                      const HostValue& format_negative = Missing,
                      const HostValue& format_thousands = Missing,
                      const HostValue& format_currency = Missing,
                      const HostValue& exponential_notation = Missing);
  NumberText qvxODD2(const HostValue& num, bool RoundNegAwayFromZero = false,
                     const HostValue& format_negative = Missing,
                     const HostValue& format_thousands = Missing,
                     const HostValue& format_currency = Missing,
                     const HostValue& exponential_notation = Missing);

  /// Whether `num` is an error value of the host or a text that holds "#". "DIV/0!" and "VALUE!",
  /// which some functions give, are no errors by it.
  bool qvxISERROR(const HostValue& num);

  /// Functions of a list: single values, arrays and ranges, in order. Blanks are passed over, and
  /// so is text that is no number. How the result is formatted stands in the list as well, as text:
  /// "format:" and any of the words negative, thousands, currency, exponent, MSD=n, in any case and
  /// order. MSD= limits the digits from where it stands on; without it nothing is cut, whatever the
  /// default limit.
  ///
  /// The mean is "#VALUE!" without MSD=, unless the sum is 0. No numbers: the sum, the mean and the
  /// count are "0", the product is "1". `qvxMAX` and `qvxMIN` keep the spelling of a number but
  /// for E notation and parentheses. They take the first element as it is: where it is no number,
  /// it is the result, in capitals; without elements the result is empty text.
  ///
  /// Throws `Run_Time_Failure` 13 for MSD= without digits and for a list within the list, 6 for
  /// more digits behind MSD= than a number can have and for a mean of a sum beyond 64-bit floats.
  NumberText qvxAVERAGE(const List& numlist);

  /// The number in the middle of a list, and the one that occurs most often, the first such; they
  /// read the list as the functions above and below do. With an even count of numbers the median is
  /// half the sum of two, and so "#VALUE!" without MSD=. Without numbers `qvxMODE` gives empty
  /// text, and `qvxMEDIAN` throws `Run_Time_Failure` 9.
  ///
  /// The option string of `qvxMODE` may also say TABLE, which gives an array with a row for each
  /// number, its count and itself, and with it BLANK=, which lays that array into a block of `rows`
  /// by `cols` cells and fills those left with the text up to the next "&". A count that is missing
  /// is that of the table; one below 1, and a table of no numbers, throw `Run_Time_Failure` 9.
  NumberText qvxMEDIAN(const List& numlist);
  HostValue qvxMODE(const List& numlist, std::optional<double> rows = std::nullopt,
                    std::optional<double> cols = std::nullopt);

  /// The cells of an array or range as a selection sort with swaps arranges them by value, column
  /// by column, or row by row if `left_to_right`: numbers first in either direction, equal ones not
  /// always in their old order, then whatever is no number. They keep their places in a block of
  /// `rows` by `cols` cells, or are poured into it if `fit_to_array`; `blank_text` fills the rest.
  /// A count that is missing is that of `numlist`. Throws `Run_Time_Failure` 9 for a count below 1,
  /// 13 for what is no two-dimensional array, such as a single cell, and for an array within it.
  HostValue qvxSORT(const HostValue& numlist, bool descending = false, bool left_to_right = false,
                    bool fit_to_array = false,
                    std::optional<std::string_view> blank_text = std::nullopt,
                    std::optional<double> rows = std::nullopt,
                    std::optional<double> cols = std::nullopt);

  /// The number at place `k` of the block, from the greatest on or from the least, as it is
  /// written. "#NUM!" for an empty `k`, one beyond the block, and a place without a number. Throws
  /// as `qvxSORT`, and `Run_Time_Failure` 13 for a `k` that is no number.
  NumberText qvxLARGE(const HostValue& numlist, const NumberText& k);
  NumberText qvxSMALL(const HostValue& numlist, const NumberText& k);

  /// The place of `num` in the block, counted from the greatest on, or from the least if
  /// `ascending`: the first of equal ones, or with `tie_compensation` the mean of their places. A
  /// number that isn't there ranks as the count of cells. "NUM!", spelt so, for a `num` that is no
  /// number. Throws as `qvxSORT`.
  NumberText qvxRANK(const NumberText& num, const HostValue& numlist, bool ascending = false,
                     bool tie_compensation = false);

  /// Functions of a text: the first element that isn't empty. The others, but for option strings,
  /// are the entries that are deleted from it until none is left, or that are kept of it; capitals
  /// and small letters differ. `qvxEXCLUDENOTNUM` keeps one number of what is left, and
  /// `qvxEXTRACTNUM` one number of what stands beside the entries: its digits, first separator,
  /// leading minus or parentheses, and exponent. What comes out is formatted by the options, also
  /// where it is no number. Throws as the other functions of a list.
  NumberText qvxEXCLUDE(const List& numlist);
  NumberText qvxEXCLUDENOTNUM(const List& numlist);
  NumberText qvxEXTRACT(const List& numlist);
  NumberText qvxEXTRACTNUM(const List& numlist);

  /// As told of `qvxAVERAGE`.
  NumberText qvxPRODUCT(const List& numlist);
  NumberText qvxSUM2(const List& numlist);
  NumberText qvxCOUNT(const List& numlist);
  NumberText qvxMAX(const List& numlist);
  NumberText qvxMIN(const List& numlist);

  /// Whether addition would accept the value as a number. Throws `Run_Time_Failure` 13 for a
  /// missing value and for an array, which have no text.
  bool qvxISNUMBER(const HostValue& num);

  /// `num` rounded down to a whole number, and `num` cut to `num_digits` places towards zero, all
  /// digits kept. An empty one is 0. "#VALUE!" for what is no number, whichever token it is. Throws
  /// `Run_Time_Failure` 13 for a count or an option that can't be read and for a `num` without
  /// text.
  NumberText qvxINT(const HostValue& num, const HostValue& format_negative = Missing,
                    const HostValue& format_thousands = Missing,
                    const HostValue& format_currency = Missing,
                    const HostValue& exponential_notation = Missing);
  NumberText qvxTRUNC(const HostValue& num, const HostValue& num_digits = Missing,
                      const HostValue& format_negative = Missing,
                      const HostValue& format_thousands = Missing,
                      const HostValue& format_currency = Missing,
                      const HostValue& exponential_notation = Missing);

  /// The product of the whole numbers up to `num`, and of every other one down from its whole part;
  /// a `num` of less than 1 gives 1. Every product on the way is cut to the limit. "#NUM!" for a
  /// number that begins with a minus or a parenthesis and above 9273, or 17234. Throws
  /// `Run_Time_Failure` 13 or 6 for what is no number and for an option that can't be read.
  NumberText qvxFACT(const HostValue& num, const HostValue& format_negative = Missing,
                     const HostValue& format_thousands = Missing,
                     const HostValue& format_currency = Missing,
                     const HostValue& exponential_notation = Missing,
                     const HostValue& maximum_significant_digits = Missing);
  NumberText qvxFACTDOUBLE(const HostValue& num, const HostValue& format_negative = Missing,
                           const HostValue& format_thousands = Missing,
                           const HostValue& format_currency = Missing,
                           const HostValue& exponential_notation = Missing,
                           const HostValue& maximum_significant_digits = Missing);

  /// What stands right of the separator, unchecked; with `as_int` as a whole number. "0" for text
  /// without a separator. `sign` 1 (the default) gives the sign of `num`, 2 none, 3 a minus. Throws
  /// `Run_Time_Failure` 13 or 6 for an argument that can't be read, 13 for a `num` without text or,
  /// with `sign` 1, without a sign.
  NumberText qvxFRAC(const HostValue& num, const HostValue& as_int = Missing,
                     const HostValue& sign = Missing, const HostValue& format_negative = Missing,
                     const HostValue& format_thousands = Missing,
                     const HostValue& format_currency = Missing,
                     const HostValue& exponential_notation = Missing,
                     const HostValue& maximum_significant_digits = Missing);

  /// What is left of `dividend` by `divisor`: the quotient is rounded down by `qvxMOD`, cut towards
  /// zero by `qvxMODTRUNC`. The sign of the result is set apart from that: `sign` 1 leaves it as
  /// it comes out, 2 gives that of the dividend, 3 (the default) that of the divisor, 4 none, 5 a
  /// minus. "#VALUE!" for an empty operand and a dividend that is no number, "DIV/0!" for a divisor
  /// of 0. Throws `Run_Time_Failure` 13 for a divisor that is no number and an option that can't be
  /// read.
  ///
  /// `qvxREMAINDER` reads its arguments one place on: `sign` says whether the quotient is cut
  /// towards zero (it must be given, or the call throws 13), `format_negative` is its sign,
  /// `format_thousands` its style of negatives, and so on up to `maximum_significant_digits`, which
  /// asks for E notation; the limit is the default one. Worksheets are written to that, so it
  /// stays.
  NumberText qvxMOD(const HostValue& dividend, const HostValue& divisor,
                    const HostValue& sign = Missing, const HostValue& format_negative = Missing,
                    const HostValue& format_thousands = Missing,
                    const HostValue& format_currency = Missing,
                    const HostValue& exponential_notation = Missing,
                    const HostValue& maximum_significant_digits = Missing);
  NumberText qvxMODTRUNC(const HostValue& dividend, const HostValue& divisor,
                         const HostValue& sign = Missing,
                         const HostValue& format_negative = Missing,
                         const HostValue& format_thousands = Missing,
                         const HostValue& format_currency = Missing,
                         const HostValue& exponential_notation = Missing,
                         const HostValue& maximum_significant_digits = Missing);
  NumberText qvxREMAINDER(const HostValue& dividend, const HostValue& divisor,
                          const HostValue& sign = Missing,
                          const HostValue& format_negative = Missing,
                          const HostValue& format_thousands = Missing,
                          const HostValue& format_currency = Missing,
                          const HostValue& exponential_notation = Missing,
                          const HostValue& maximum_significant_digits = Missing);

  /// The number without its sign, all digits kept. An empty one is 0. The token of what is no
  /// number: "#NUM!" or "#VALUE!", or itself. Throws `Run_Time_Failure` 13 for an option that can't
  /// be read and for a `num` without text.
  NumberText qvxABS(const HostValue& num, const HostValue& format_negative = Missing,
                    const HostValue& format_thousands = Missing,
                    const HostValue& format_currency = Missing,
                    const HostValue& exponential_notation = Missing);

  /// The number 1, 0 or -1 by the sign of `num`; "0" as text for a blank cell or empty text,
  /// "#VALUE!" for what is no number. The sign is looked for at the very start of the value:
  /// *'-5'*, in quote marks, gives 1. Throws `Run_Time_Failure` 13 as `qvxISNUMBER` does.
  HostValue qvxSIGN(const HostValue& num);

  /// The number with a negative sign, whichever it had, and with the opposite one; otherwise as
  /// `qvxABS`. But `qvxNEG` of an empty one is "VALUE!".
  NumberText qvxNEG(const HostValue& num, const HostValue& format_negative = Missing,
                    const HostValue& format_thousands = Missing,
                    const HostValue& format_currency = Missing,
                    const HostValue& exponential_notation = Missing);
  NumberText qvxCHANGESIGN(const HostValue& num, const HostValue& format_negative = Missing,
                           const HostValue& format_thousands = Missing,
                           const HostValue& format_currency = Missing,
                           const HostValue& exponential_notation = Missing);

  /// The sum, or the difference `number1` less `number2`. Any operand or option that can't be read
  /// gives "#VALUE!"; an operand that is an error token gives that token.
  NumberText qvxADD(const HostValue& number1, const HostValue& number2,
                    const HostValue& format_negative = Missing,
                    const HostValue& format_thousands = Missing,
                    const HostValue& format_currency = Missing,
                    const HostValue& exponential_notation = Missing,
                    const HostValue& maximum_significant_digits = Missing,
                    const HostValue& format_decimal_place = Missing,
                    const HostValue& preserve_decimal_place = Missing);
  NumberText qvxSUBTRACT(const HostValue& number1, const HostValue& number2,
                         const HostValue& format_negative = Missing,
                         const HostValue& format_thousands = Missing,
                         const HostValue& format_currency = Missing,
                         const HostValue& exponential_notation = Missing,
                         const HostValue& maximum_significant_digits = Missing,
                         const HostValue& format_decimal_place = Missing,
                         const HostValue& preserve_decimal_place = Missing);

  /// The product, in full before the limit cuts it, and the quotient `number1` by `number2`, to the
  /// limit and one digit more. "#DIV/0!" for a divisor of 0; "#NUM!" where an operand of a quotient
  /// is no number, "#VALUE!" where one of a product is none; "#VALUE!" also where the library of
  /// products can't be found.
  NumberText qvxMULTIPLY(const HostValue& number1, const HostValue& number2,
                         const HostValue& format_negative = Missing,
                         const HostValue& format_thousands = Missing,
                         const HostValue& format_currency = Missing,
                         const HostValue& exponential_notation = Missing,
                         const HostValue& maximum_significant_digits = Missing,
                         const HostValue& format_decimal_place = Missing,
                         const HostValue& preserve_decimal_place = Missing);
  NumberText qvxDIVIDE(const HostValue& number1, const HostValue& number2,
                       const HostValue& format_negative = Missing,
                       const HostValue& format_thousands = Missing,
                       const HostValue& format_currency = Missing,
                       const HostValue& exponential_notation = Missing,
                       const HostValue& maximum_significant_digits = Missing,
                       const HostValue& format_decimal_place = Missing,
                       const HostValue& preserve_decimal_place = Missing);

  /// The root of `number1` of the degree `number2`, which may be fractional or negative. "DIV/0!",
  /// spelt so, for a degree of 0; "#NUM!" for a root of a negative number whose degree isn't an odd
  /// whole number, and for what is no number. `restrict_input_lengths` as for `qvxPOWER`.
  NumberText qvxROOT(const HostValue& number1, const HostValue& number2,
                     const HostValue& format_negative = Missing,
                     const HostValue& format_thousands = Missing,
                     const HostValue& format_currency = Missing,
                     const HostValue& exponential_notation = Missing,
                     const HostValue& maximum_significant_digits = Missing,
                     const HostValue& restrict_input_lengths = Missing,
                     const HostValue& format_decimal_place = Missing,
                     const HostValue& preserve_decimal_place = Missing);

  /// `number1` to the power `number2`; every step is rounded at the limit. A fractional exponent is
  /// reduced to a fraction, and the power is a whole power of a root. An exponent of 0 gives 1, and
  /// a base of 0 gives 0 otherwise. "#NUM!" for a base that is no number, a negative base with a
  /// fractional exponent, and a power with more integer digits than a cell can hold; "#VALUE!" for
  /// an exponent that is no number. `restrict_input_lengths` refuses, with "#NUM!", operands of
  /// more than half the ceiling of digits together; throws `Run_Time_Failure` 13 where it can't be
  /// read.
  NumberText qvxPOWER(const HostValue& number1, const HostValue& number2,
                      const HostValue& format_negative = Missing,
                      const HostValue& format_thousands = Missing,
                      const HostValue& format_currency = Missing,
                      const HostValue& exponential_notation = Missing,
                      const HostValue& maximum_significant_digits = Missing,
                      const HostValue& restrict_input_lengths = Missing,
                      const HostValue& format_decimal_place = Missing,
                      const HostValue& preserve_decimal_place = Missing);

  /// Comparisons, at any length: the text "True" or "False". "#NUM!" for what is no number, and an
  /// error token for itself; but `qvxISNOTEQUAL` answers "True" to "#VALUE!" and "#DIV/0!".
  /// Operands that have no text (missing, arrays) throw `Run_Time_Failure` 13.
  HostValue qvxISEQUAL(const HostValue& number1, const HostValue& number2);
  HostValue qvxISNOTEQUAL(const HostValue& number1, const HostValue& number2);
  /// Replaces the caller's values by their text.
  HostValue qvxISGREATER(HostValue& number1, HostValue& number2);
  HostValue qvxISGREATEROREQUAL(const HostValue& number1, const HostValue& number2);
  HostValue qvxISLESS(const HostValue& number1, const HostValue& number2);
  HostValue qvxISLESSOREQUAL(const HostValue& number1, const HostValue& number2);

  /// `num` rounded to `num_digits` decimal places: to the nearest by the first dropped digit, away
  /// from zero, or towards it. A negative count acts one place short: -1 rounds to ones, -2 to
  /// tens.
  /// "#VALUE!" for what is no number and for a count below -32767. Throws `Run_Time_Failure` 13 for
  /// a count or an option that can't be read.
  NumberText qvxROUND(const HostValue& num, const HostValue& num_digits,
                      const HostValue& format_negative = Missing,
                      const HostValue& format_thousands = Missing,
                      const HostValue& format_currency = Missing,
                      const HostValue& exponential_notation = Missing);
  NumberText qvxROUNDUP(const HostValue& num, const HostValue& num_digits,
                        const HostValue& format_negative = Missing,
                        const HostValue& format_thousands = Missing,
                        const HostValue& format_currency = Missing,
                        const HostValue& exponential_notation = Missing);
  NumberText qvxROUNDDOWN(const HostValue& num, const HostValue& num_digits,
                          const HostValue& format_negative = Missing,
                          const HostValue& format_thousands = Missing,
                          const HostValue& format_currency = Missing,
                          const HostValue& exponential_notation = Missing);

  /// A fraction of two decimals in lowest terms: an array of four rows and columns, whose first row
  /// and first column hold the fraction as text, its numerator, its divisor and what it was reduced
  /// by; or one of these alone. `simplify_signs` leaves a minus to the numerator at most. A
  /// fraction whose numerator would become larger is reduced only with `always_simplify_fraction`.
  /// All digits are shown, whatever the default limit. What is no number gives its token. Throws
  /// `Run_Time_Failure` 5 where both have decimals, the numerator more, and more digits before its
  /// separator as well.
  HostValue qvxREDUCEFRACTION(const HostValue& Numerator, const HostValue& divisor,
                              bool simplify_signs = false, bool always_simplify_fraction = false,
                              bool return_numerator = false, bool return_divisor = false,
                              bool return_reduced_by = false,
                              std::optional<std::string_view> fraction_separator = std::nullopt);

  /// The greatest common divisor and the least common multiple of a list; its elements are cut to
  /// whole numbers first, or by `qvxGCD2` and `qvxLCM2` taken as they are. A negative element gives
  /// "#NUM!", but not to `qvxGCD2`. They are worked out with all digits; only the result is shown
  /// at MSD=, wherever that stands, and without it at the default limit. No numbers: empty text.
  /// Throws as other lists do, and `qvxGCD2` and `qvxLCM2` as `qvxREDUCEFRACTION`.
  HostValue qvxGCD(const List& numlist);
  HostValue qvxGCD2(const List& numlist);
  HostValue qvxLCM(const List& numlist);
  HostValue qvxLCM2(const List& numlist);

  /// Pi and e, cut to so many digits (`Default_MaxSD` if missing) and not rounded. "#NUM!" beyond
  /// 32768 digits and for text that is no number. Throws `Run_Time_Failure` 5 below -1 digits.
  NumberText qvxPi(const HostValue& digits = Missing);
  NumberText qvxE(const HostValue& digits = Missing);

  /// Shows the About dialog. Throws as the constructor does.
  void qvxABOUT();

  /// The version that the user is shown.
  NumberText qvxVERSION();

  /// The maximum significant digits of a call that gives none, as a host number.
  HostValue qvxDEFAULTMAXSD();

  /// A greeting with the version.
  NumberText qvxTEST();

  /// An angle in the other unit, by a pi of `maxSD` digits. "#NUM!" beyond the digits of pi; an
  /// error token for an angle that is no number. Throws `Run_Time_Failure` 13 for a `maxSD` that
  /// can't be read, 5 for one below -1.
  NumberText qvxRADIANS(const NumberText& degrees, const HostValue& maxSD = Missing);
  NumberText qvxDEGREES(const NumberText& radians, const HostValue& maxSD = Missing);

  /// The sine, cosine and tangent of an angle in radians, each step and pi taken to `maxSD` digits
  /// (`Default_MaxSD` if missing), so that the last digits carry the rounding of all steps, and
  /// more of them the more turns an angle has. What is below 10 to the minus `maxSD` is "0".
  ///
  /// The text "0" gives "0", the cosine too; what else is 0 as a 64-bit float, such as *0.0*, has
  /// a cosine and a tangent of 1. The tangent of a right angle is 1 or -1. Negative angles whose
  /// count of quarter turns, rounded down, is even have a tangent of the wrong sign, and where it
  /// is a multiple of 4 a sine as well.
  ///
  /// Throws `Run_Time_Failure` 13 for an angle that is no number or blank, for a `maxSD` that can't
  /// be read and for one above 32768; 5 for one below -1; 16 for a series that would never end: the
  /// sine of *0.0*.
  NumberText qvxSIN(const HostValue& num, const HostValue& maxSD = Missing);
  NumberText qvxCOS(const HostValue& num, const HostValue& maxSD = Missing);
  NumberText qvxTAN(const HostValue& num, const HostValue& maxSD = Missing);

  /// The arc tangent, sine and cosine in radians, each step and pi taken to `maxSD` digits. "#NUM!"
  /// for a sine or cosine above 1 in magnitude, and above 32768 digits for what needs pi. The arc
  /// cosine takes for 1, 0 and -1 whatever is so as a 64-bit float, a blank for 0.
  ///
  /// Throws `Run_Time_Failure` 13 for what is no number, for a `maxSD` that can't be read, and for
  /// the arc sine of a number so near to 1 that `maxSD` digits can't tell its square from 1; 5 for
  /// a `maxSD` below -1; 16 for the arc tangent of *0.0*, whose series would never end.
  NumberText qvxATAN(const HostValue& num, const HostValue& maxSD = Missing);
  NumberText qvxASIN(const HostValue& num, const HostValue& maxSD = Missing);
  NumberText qvxACOS(const HostValue& num, const HostValue& maxSD = Missing);

  /// The probability of `target_num` events, or with `is_cumulative` of so many at most, where
  /// `average_num` are to be expected. The target is cut to a whole number; "TRUE" and "FALSE"
  /// count as 0 for both. Factorials are taken at the default limit, whatever the limit of the
  /// call. "#NUM!" for negative numbers, a target above 9273 and more than 32768 digits; "#VALUE!"
  /// for text that is no number, and for truth values that are no booleans: `is_cumulative` must be
  /// given. Throws `Run_Time_Failure` 13 for arguments without text and error values as digits, 6
  /// and 5 for digits out of range, 16 where so few digits can't count the events.
  NumberText qvxPOISSON(const HostValue& target_num, const HostValue& average_num,
                        const HostValue& is_cumulative,
                        const HostValue& exponential_notation = Missing,
                        const HostValue& maximum_significant_digits = Missing,
                        const HostValue& restrict_input_lengths = Missing);

  /// The logarithm to a base, 10 if missing, with as many guard digits as the base says; the
  /// natural logarithm, without guard digits; and e to the power `num`, with 10 of them. The
  /// logarithm of 1 is "0" and e to the power 0 "1", whatever the base and the notation.
  ///
  /// "#NUM!" for a logarithm of what is not above 0, or to such a base, and beyond the 40051 digits
  /// that there are for the steps; "#DIV/0!" for base 1; "#VALUE!" for any failure: what is no
  /// number, options that can't be read, numbers beyond 64-bit floats.
  NumberText qvxLOG(const HostValue& num, const HostValue& num_base = Missing,
                    const HostValue& exponential_notation = Missing,
                    const HostValue& maximum_significant_digits = Missing);
  NumberText qvxLN(const HostValue& num, const HostValue& exponential_notation = Missing,
                   const HostValue& maximum_significant_digits = Missing);
  NumberText qvxEXP(const HostValue& num, const HostValue& exponential_notation = Missing,
                    const HostValue& maximum_significant_digits = Missing);

  /// `number` with the options applied, cut to the limit plus one digits. An error token, or the
  /// token for what is no number, comes back as it is. Throws `Run_Time_Failure` for an option that
  /// can't be read, and when rounding to fixed places would carry into a thousands separator.
  NumberText qvxFORMAT(const NumberText& number, const HostValue& format_negative = Missing,
                       const HostValue& format_thousands = Missing,
                       const HostValue& format_currency = Missing,
                       const HostValue& exponential_notation = Missing,
                       const HostValue& maximum_significant_digits = Missing,
                       const HostValue& format_decimal_place = Missing,
                       const HostValue& preserve_decimal_place = Missing);
};

}  // namespace quorvex
