// Rows of pi and e.
#include "frame/rows/result_texts.h"
#include "frame/rows/row.h"

namespace quorvex::catalogue {

std::vector<Method> Constant_Rows() {
  const Parameters digits = {Optional(
      "digits", "the digits wanted, of 32,767 that there are; left out, the default limit")};
  return {
      Row<&cls_Quorvex::qvxPi>({
          .name = "qvxPi",
          .worksheet_name = "qvxPI",
          .slot = 79,
          .family = "Constants",
          .category = math,
          .description =
              "Returns the mathematical constant Pi, the ratio of circumference of a circle "
              "divided by its diameter, with up to 32,767 significant digits of precision. Pi is "
              "the same for all circles. Pi's decimal places continue infinitely and never repeat.",
          .example = "qvxPi(50)",
          .parameters = digits,
          .results = {digits_cut, {beyond_pi, unread_count}},
      }),
      Row<&cls_Quorvex::qvxE>({
          .name = "qvxE",
          .slot = 80,
          .family = "Constants",
          .category = math,
          .description = "Returns the mathematical constant e, the base of natural logarithms, "
                         "with up to 32,767 significant digits of precision. e's decimal places "
                         "continue infinitely and never repeat.",
          .example = "qvxE(50)",
          .parameters = digits,
          .results = {digits_cut, {beyond_pi, unread_count}},
      }),
  };
}

}  // namespace quorvex::catalogue
