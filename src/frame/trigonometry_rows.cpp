// Rows of the functions of angles.
#include "frame/catalogue_rows.h"
#include "frame/result_texts.h"

namespace quorvex::catalogue {
namespace {

constexpr std::string_view angle = "an angle in radians";
constexpr std::string_view part_of_1 = "a number from -1 to 1";

Parameters With_Limit(std::string_view help) {
  return {Operand_Parameter("num", help),
          Optional("maxSD",
                   "the limit of significant digits, that of pi and of every step as "
                   "well; left out, the default limit")};
}

}  // namespace

std::vector<Method> Angle_Worker_Rows() {
  return {
      Row<&cls_Quorvex::Cos_Function>(
          "Cos_Function", "Trigonometry", not_offered,
          "Returns the cosine of an angle as qvxCOS does, but the number 0 for the text \"0\".",
          "Cos_Function(1, 30)", With_Limit(angle), {worker_result, {angle_fails}}),
      Row<&cls_Quorvex::Tan_Function>(
          "Tan_Function", "Trigonometry", not_offered,
          "Returns the tangent of an angle as qvxTAN does, but the number 0 for the text \"0\".",
          "Tan_Function(1, 30)", With_Limit(angle), {worker_result, {angle_fails}}),
      Row<&cls_Quorvex::ATan_Function>(
          "ATan_Function", "Trigonometry", not_offered,
          "Returns the arc tangent of a number as qvxATAN does.", "ATan_Function(0.5, 30)",
          With_Limit(first_number),
          {angle_in_radians, {arc_beyond_pi, arc_fails, endless_series_fails}}),
      Row<&cls_Quorvex::ASin_Function>(
          "ASin_Function", "Trigonometry", not_offered,
          "Returns the arc sine of a number as qvxASIN does.", "ASin_Function(0.5, 30)",
          With_Limit(part_of_1),
          {angle_in_radians, {beyond_1, arc_beyond_pi, arc_fails, near_1_fails}}),
      Row<&cls_Quorvex::ACos_Function>(
          "ACos_Function", "Trigonometry", not_offered,
          "Returns the arc cosine of a number as qvxACOS does, but the number 0 for 1.",
          "ACos_Function(0.5, 30)", With_Limit(part_of_1),
          {"The angle in radians, not formatted; of 1 the number 0.",
           {beyond_1, arc_beyond_pi, arc_fails, beyond_floats}}),
  };
}

std::vector<Method> Sine_Rows() {
  return {
      Row<&cls_Quorvex::qvxSIN>(
          "qvxSIN", "Trigonometry", math,
          "Returns the sine of an angle, with up to 32,767 significant digits of precision. For "
          "any given angle in a right triangle, the angle's sine is the length of the side "
          "opposite the angle divided by the length of the side opposite the right angle.",
          "qvxSIN(1, 50)", With_Limit(angle), {angle_value, {angle_fails, endless_series_fails}}),
      Row<&cls_Quorvex::qvxCOS>(
          "qvxCOS", "Trigonometry", math,
          "Returns the cosine of an angle, with up to 32,767 significant digits of precision. For "
          "any given angle in a right triangle, the angle's cosine is the length of the side "
          "adjacent to the angle divided by that of the hypotenuse. The angle 0 gives 0.",
          "qvxCOS(1, 50)", With_Limit(angle), {angle_value, {angle_fails}}),
      Row<&cls_Quorvex::qvxTAN>(
          "qvxTAN", "Trigonometry", math,
          "Returns the tangent of an angle, with up to 32,767 significant digits of precision. For "
          "any given angle in a right triangle, the angle's tangent is the length of the side "
          "opposite the angle divided by the length of the side adjacent to the angle.",
          "qvxTAN(1, 50)", With_Limit(angle), {angle_value, {angle_fails}}),
  };
}

std::vector<Method> Arc_Rows() {
  return {
      Row<&cls_Quorvex::qvxATAN>(
          "qvxATAN", "Trigonometry", math,
          "Returns the arc tangent of a number, with up to 32,767 significant digits of "
          "precision. The arc tangent is the angle, in radians, whose tangent is the number.",
          "qvxATAN(0.5, 50)", With_Limit(first_number),
          {angle_in_radians, {arc_beyond_pi, arc_fails, endless_series_fails}}),
      Row<&cls_Quorvex::qvxASIN>(
          "qvxASIN", "Trigonometry", math,
          "Returns the arc sine of a number, with up to 32,767 significant digits of precision. "
          "The arc sine is the angle, in radians, whose sine is the number.",
          "qvxASIN(0.5, 50)", With_Limit(part_of_1),
          {angle_in_radians, {beyond_1, arc_beyond_pi, arc_fails, near_1_fails}}),
      Row<&cls_Quorvex::qvxACOS>(
          "qvxACOS", "Trigonometry", math,
          "Returns the arc cosine of a number, with up to 32,767 significant digits of precision. "
          "The arc cosine is the angle, in radians, whose cosine is the number.",
          "qvxACOS(0.5, 50)", With_Limit(part_of_1),
          {angle_in_radians, {beyond_1, arc_beyond_pi, arc_fails, beyond_floats}}),
  };
}

}  // namespace quorvex::catalogue
