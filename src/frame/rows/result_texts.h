// What functions give and how they fail, for users to read: the sentences that several rows of the
// catalogue share.
#pragma once

#include <string_view>

namespace quorvex::catalogue {

using Sentence = std::string_view;

inline constexpr Sentence true_or_false = "TRUE or FALSE.";
inline constexpr Sentence true_or_false_text = "The text True or False.";
inline constexpr Sentence whole_number = "The whole number with all its digits, formatted.";
inline constexpr Sentence rounded_number = "The rounded number with all its digits, formatted.";
inline constexpr Sentence root = "The root, formatted.";
inline constexpr Sentence remainder = "The remainder, formatted.";
inline constexpr Sentence digits_cut = "The digits, cut and not rounded.";
inline constexpr Sentence divisor =
    "The divisor, worked out with all digits, formatted; empty text where there is no number.";
inline constexpr Sentence multiple =
    "The multiple, worked out with all digits, formatted; empty text where there is no number.";
inline constexpr Sentence lesser_or_greater =
    "The value itself, unchanged; the second one of two equal ones.";
inline constexpr Sentence extreme =
    "The number as it was written, but for E notation and parentheses, formatted; empty text where "
    "there is no element.";
inline constexpr Sentence angle_in_radians = "The angle in radians, not formatted.";
inline constexpr Sentence angle_value = "The value, not formatted.";
inline constexpr Sentence worker_result = "The value, not formatted; of the text 0 the number 0.";
inline constexpr Sentence logarithm =
    "The logarithm, as text, in E notation if wanted; of 1 always 0.";
inline constexpr Sentence text_left = "What is left of the text, formatted as a number.";
inline constexpr Sentence text_kept = "What is kept of the text, formatted as a number.";
inline constexpr Sentence options_record =
    "A record: FormatNegative, FormatThousands, FormatCurrency, ExponentialNotation, maxSD, "
    "InsertFunctionDialog and IncluderExcluderFunctions (always TRUE), FormatDecimalPlace, "
    "PreserveTrailingZerosAfterDecimal.";

inline constexpr Sentence nothing_fails = "None.";
inline constexpr Sentence token_passes = "An error token gives itself.";
inline constexpr Sentence array_fails = "The call fails for an array.";
inline constexpr Sentence option_fails =
    "The call fails for an array and for an option that can't be read.";
inline constexpr Sentence unread_option_fails = "The call fails for an option that can't be read.";
inline constexpr Sentence no_number_fails = "The call fails for what is no number.";

inline constexpr Sentence unread_is_value =
    "\"#VALUE!\" for an operand or an option that can't be read.";
inline constexpr Sentence unread_number_is_value = "\"#VALUE!\" for what is no number.";
inline constexpr Sentence unread_option_is_value = "\"#VALUE!\" for an option that can't be read.";
inline constexpr Sentence no_number_is_num_or_value =
    "\"#NUM!\" or \"#VALUE!\" for what is no number.";
inline constexpr Sentence no_number_is_num =
    "\"#NUM!\" for what is no number, a blank cell included.";
inline constexpr Sentence no_number_is_value =
    "\"#VALUE!\" for what is no number, an error token included.";

inline constexpr Sentence restricted =
    "\"#NUM!\" for operands that restrict_input_lengths refuses; the call fails where that "
    "argument can't be read.";
inline constexpr Sentence parity_of_no_number =
    "\"#NUM!\" for what is no number; a blank cell is even.";
inline constexpr Sentence rounding_of_no_number =
    "\"#VALUE!\" for what is no number, a blank cell and an error token included, and for a count "
    "below -32767.";
inline constexpr Sentence remainder_by_zero =
    "\"DIV/0!\", without a #, for a divisor of 0. \"#VALUE!\" for a dividend that is no number and "
    "for a blank operand.";
inline constexpr Sentence remainder_fails =
    "The call fails for a divisor that is no number and for an option that can't be read.";
inline constexpr Sentence signed_is_num =
    "\"#NUM!\" for a number that begins with a minus or a parenthesis.";
inline constexpr Sentence root_fails =
    "The call fails for an error value, an array and an option that can't be read.";

inline constexpr Sentence list_fails =
    "The call fails for MSD= without digits right behind it or with more of them than a 64-bit "
    "float reaches, for a list within the list and for an array within an array.";
inline constexpr Sentence first_element_stays =
    "A first element that is no number is the result, in capitals, and an error value there is "
    "\"#VALUE!\".";
inline constexpr Sentence first_text_stays =
    "A first element that is no number stays the result, in capitals.";
inline constexpr Sentence negative_is_num = "\"#NUM!\" at once for a negative number.";
inline constexpr Sentence scaling_fails = "The call fails where qvxREDUCEFRACTION fails.";

inline constexpr Sentence beyond_pi = "\"#NUM!\" beyond 32,768 digits.";
inline constexpr Sentence unread_count =
    "\"#NUM!\" also for text that is no number. The call fails for a count below -1.";
inline constexpr Sentence angle_of_no_number = "\"#VALUE!\" for an angle that is no number.";
inline constexpr Sentence unread_digits_fail =
    "The call fails for a maxSD that can't be read or is below -1.";

inline constexpr Sentence angle_fails =
    "No token. The call fails for an angle that is no number, a blank cell included, and for a "
    "maxSD that can't be read or is not from 0 to 32768. The text 0 is answered at any.";
inline constexpr Sentence endless_series_fails =
    "It fails, too, for 0.0 and other zeros than the text 0, whose series would never end.";
inline constexpr Sentence near_1_fails =
    "It fails, too, for a number so near to 1 or -1 that maxSD digits can't tell its square "
    "from 1.";
inline constexpr Sentence beyond_1 = "\"#NUM!\" for a number above 1 or below -1.";
inline constexpr Sentence arc_beyond_pi = "\"#NUM!\" beyond 32,768 digits where pi is needed.";
inline constexpr Sentence arc_fails =
    "The call fails for what is no number and for a maxSD that can't be read or is below -1.";

inline constexpr Sentence block_fails =
    "The call fails for a single cell or value and for an array within the block.";
inline constexpr Sentence place_is_num =
    "\"#NUM!\" for an empty k, one beyond the block, and a place without a number.";
inline constexpr Sentence place_fails =
    "It fails, too, for a k that is no number or beyond 64-bit floats, and for one that is rounded "
    "to place 0, such as 0.5.";
inline constexpr Sentence text_unchecked =
    "A result that is no number comes back unchecked; but \"#VALUE!\" where it has more characters "
    "than MSD= allows digits and can't be rounded.";

inline constexpr Sentence factorial_fails =
    "The call fails for what is no number, an error token and empty text included, and for an "
    "option that can't be read. A blank cell is 0.";
inline constexpr Sentence logarithm_of_negative = "\"#NUM!\" for a number that is not above 0.";
inline constexpr Sentence logarithm_fails =
    "\"#VALUE!\" for any failure: what is no number, an error token included, a number beyond "
    "64-bit floats, an option that can't be read.";
inline constexpr Sentence beyond_floats = "It fails, too, beyond 64-bit floats.";

}  // namespace quorvex::catalogue
