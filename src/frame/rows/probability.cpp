// Rows of factorials and the Poisson distribution.
#include "frame/rows/result_texts.h"
#include "frame/rows/row.h"

namespace quorvex::catalogue {
namespace {

Parameters Poisson_Parameters() {
  Parameters parameters = With_Notation(
      {Operand_Parameter("target_num", "the number of events"),
       Operand_Parameter("average_num", "the number of events to be expected"),
       {.name = "is_cumulative",
        .help = "TRUE for the probability of so many events at most, FALSE for that of "
                "exactly so many; no other kind of value is accepted",
        .is_truth_value = true}});
  parameters.push_back(Truth_Option("restrict_input_lengths",
                                    "TRUE, or left out, refuses numbers of more than 1,073,741,824 "
                                    "digits"));
  return parameters;
}

}  // namespace

std::vector<Method> Probability_Rows() {
  return {
      Row<&cls_Quorvex::qvxFACT>({
          .name = "qvxFACT",
          .slot = 49,
          .family = "Probability",
          .category = math,
          .description =
              "Returns the factorial of a number, with up to 32,767 significant digits of "
              "precision. The factorial of a number is the product of the whole numbers from 1 to "
              "the number, which is cut to a whole number and can be 9,273 at most.",
          .example = "qvxFACT(50)",
          .parameters = With_Digits({Operand_Parameter("num", "a number from 0 to 9273")}),
          .results = {"The factorial, formatted.",
                      {signed_is_num, "\"#NUM!\" above 9273.", factorial_fails}},
      }),
      Row<&cls_Quorvex::qvxFACTDOUBLE>({
          .name = "qvxFACTDOUBLE",
          .slot = 50,
          .family = "Probability",
          .category = math,
          .description = "Returns the double factorial of a number, with up to 32,767 significant "
                         "digits of precision. The double factorial of a number is the product of "
                         "every other whole number from the number down to 1 or 2; it is cut to a "
                         "whole number and can be 17,234 at most.",
          .example = "qvxFACTDOUBLE(51)",
          .parameters = With_Digits({Operand_Parameter("num", "a number from 0 to 17234")}),
          .results = {"The double factorial, formatted.",
                      {signed_is_num, "\"#NUM!\" above 17234.", factorial_fails}},
      }),
      Row<&cls_Quorvex::qvxPOISSON>({
          .name = "qvxPOISSON",
          .slot = 93,
          .family = "Probability",
          .category = statistical,
          .place = 2,
          .description =
              "Returns the Poisson distribution, with up to 32,767 significant digits of "
              "precision. Can return cumulative or non-cumulative Poisson distribution.",
          .example = "qvxPOISSON(2, \"3.5\", TRUE, , 30)",
          .parameters = Poisson_Parameters(),
          .results = {"The probability, as text, in E notation if wanted.",
                      {"\"#NUM!\" for a negative number, a target above 9273 and more than 32,768 "
                       "digits. \"#VALUE!\" for text that is no number and for a truth value given "
                       "as anything else.",
                       "The call fails for an array, for digits beyond 32 bits or below -1, and "
                       "for a sum at so few digits that its count comes to rest."}},
      }),
  };
}

}  // namespace quorvex::catalogue
