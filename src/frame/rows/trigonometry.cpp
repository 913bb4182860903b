// Rows of the functions of angles, and the workers of them that macros reach.
#include "frame/rows/result_texts.h"
#include "frame/rows/row.h"

namespace quorvex::catalogue {
namespace {

constexpr std::string_view angle = "an angle in radians";
constexpr std::string_view part_of_1 = "a number from -1 to 1";

Parameters With_Limit(std::string_view help) {
  return {Operand_Parameter("num", help),
          Optional("maxSD",
                   "the limit of significant digits, that of pi and of every step as well; left "
                   "out, the default limit")};
}

}  // namespace

std::vector<Method> Trigonometry_Rows() {
  const Parameter digits = Optional("maxSD", "the limit of significant digits, that of pi as well");
  return {
      Row<&cls_Quorvex::Cos_Function>({
          .name = "Cos_Function",
          .slot = 15,
          .family = "Trigonometry",
          .description =
              "Returns the cosine of an angle as qvxCOS does, but the number 0 for the text \"0\".",
          .example = "Cos_Function(1, 30)",
          .parameters = With_Limit(angle),
          .results = {worker_result, {angle_fails}},
      }),
      Row<&cls_Quorvex::Tan_Function>({
          .name = "Tan_Function",
          .slot = 16,
          .family = "Trigonometry",
          .description = "Returns the tangent of an angle as qvxTAN does, but the number 0 for the "
                         "text \"0\".",
          .example = "Tan_Function(1, 30)",
          .parameters = With_Limit(angle),
          .results = {worker_result, {angle_fails}},
      }),
      Row<&cls_Quorvex::ATan_Function>({
          .name = "ATan_Function",
          .slot = 17,
          .family = "Trigonometry",
          .description = "Returns the arc tangent of a number as qvxATAN does.",
          .example = "ATan_Function(0.5, 30)",
          .parameters = With_Limit(first_number),
          .results = {angle_in_radians, {arc_beyond_pi, arc_fails, endless_series_fails}},
      }),
      Row<&cls_Quorvex::ASin_Function>({
          .name = "ASin_Function",
          .slot = 18,
          .family = "Trigonometry",
          .description = "Returns the arc sine of a number as qvxASIN does.",
          .example = "ASin_Function(0.5, 30)",
          .parameters = With_Limit(part_of_1),
          .results = {angle_in_radians, {beyond_1, arc_beyond_pi, arc_fails, near_1_fails}},
      }),
      Row<&cls_Quorvex::ACos_Function>({
          .name = "ACos_Function",
          .slot = 19,
          .family = "Trigonometry",
          .description =
              "Returns the arc cosine of a number as qvxACOS does, but the number 0 for 1.",
          .example = "ACos_Function(0.5, 30)",
          .parameters = With_Limit(part_of_1),
          .results = {"The angle in radians, not formatted; of 1 the number 0.",
                      {beyond_1, arc_beyond_pi, arc_fails, beyond_floats}},
      }),
      Row<&cls_Quorvex::qvxRADIANS>({
          .name = "qvxRADIANS",
          .slot = 85,
          .family = "Trigonometry",
          .category = math,
          .description =
              "Converts degrees to radians, with up to 32,767 significant digits of precision.",
          .example = "qvxRADIANS(\"90\", 30)",
          .parameters = {Operand_Parameter("degrees", "an angle in degrees"), digits},
          .results = {angle_in_radians,
                      {beyond_pi, angle_of_no_number, token_passes, unread_digits_fail}},
      }),
      Row<&cls_Quorvex::qvxDEGREES>({
          .name = "qvxDEGREES",
          .slot = 86,
          .family = "Trigonometry",
          .category = math,
          .description =
              "Converts radians to degrees, with up to 32,767 significant digits of precision.",
          .example = "qvxDEGREES(\"0.5\", 30)",
          .parameters = {Operand_Parameter("radians", "an angle in radians"), digits},
          .results = {"The angle in degrees, not formatted.",
                      {beyond_pi, angle_of_no_number, token_passes, unread_digits_fail}},
      }),
      Row<&cls_Quorvex::qvxSIN>({
          .name = "qvxSIN",
          .slot = 87,
          .family = "Trigonometry",
          .category = math,
          .description =
              "Returns the sine of an angle, with up to 32,767 significant digits of precision. "
              "For any given angle in a right triangle, the angle's sine is the length of the side "
              "opposite the angle divided by the length of the side opposite the right angle.",
          .example = "qvxSIN(1, 50)",
          .parameters = With_Limit(angle),
          .results = {angle_value, {angle_fails, endless_series_fails}},
      }),
      Row<&cls_Quorvex::qvxCOS>({
          .name = "qvxCOS",
          .slot = 88,
          .family = "Trigonometry",
          .category = math,
          .description =
              "Returns the cosine of an angle, with up to 32,767 significant digits of precision. "
              "For any given angle in a right triangle, the angle's cosine is the length of the "
              "side adjacent to the angle divided by that of the hypotenuse. The angle 0 gives 0.",
          .example = "qvxCOS(1, 50)",
          .parameters = With_Limit(angle),
          .results = {angle_value, {angle_fails}},
      }),
      Row<&cls_Quorvex::qvxTAN>({
          .name = "qvxTAN",
          .slot = 89,
          .family = "Trigonometry",
          .category = math,
          .description =
              "Returns the tangent of an angle, with up to 32,767 significant digits of precision. "
              "For any given angle in a right triangle, the angle's tangent is the length of the "
              "side opposite the angle divided by the length of the side adjacent to the angle.",
          .example = "qvxTAN(1, 50)",
          .parameters = With_Limit(angle),
          .results = {angle_value, {angle_fails}},
      }),
      Row<&cls_Quorvex::qvxATAN>({
          .name = "qvxATAN",
          .slot = 90,
          .family = "Trigonometry",
          .category = math,
          .description =
              "Returns the arc tangent of a number, with up to 32,767 significant digits of "
              "precision. The arc tangent is the angle, in radians, whose tangent is the number.",
          .example = "qvxATAN(0.5, 50)",
          .parameters = With_Limit(first_number),
          .results = {angle_in_radians, {arc_beyond_pi, arc_fails, endless_series_fails}},
      }),
      Row<&cls_Quorvex::qvxASIN>({
          .name = "qvxASIN",
          .slot = 91,
          .family = "Trigonometry",
          .category = math,
          .description =
              "Returns the arc sine of a number, with up to 32,767 significant digits of "
              "precision. The arc sine is the angle, in radians, whose sine is the number.",
          .example = "qvxASIN(0.5, 50)",
          .parameters = With_Limit(part_of_1),
          .results = {angle_in_radians, {beyond_1, arc_beyond_pi, arc_fails, near_1_fails}},
      }),
      Row<&cls_Quorvex::qvxACOS>({
          .name = "qvxACOS",
          .slot = 92,
          .family = "Trigonometry",
          .category = math,
          .description =
              "Returns the arc cosine of a number, with up to 32,767 significant digits of "
              "precision. The arc cosine is the angle, in radians, whose cosine is the number.",
          .example = "qvxACOS(0.5, 50)",
          .parameters = With_Limit(part_of_1),
          .results = {angle_in_radians, {beyond_1, arc_beyond_pi, arc_fails, beyond_floats}},
      }),
  };
}

}  // namespace quorvex::catalogue
