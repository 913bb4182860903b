// The rows of each family, in files of their own.
#pragma once

#include <vector>

#include "frame/rows/method.h"

namespace quorvex::catalogue {

std::vector<Method> Arithmetic_Rows();
std::vector<Method> Comparison_Rows();
std::vector<Method> Constant_Rows();
std::vector<Method> Division_Rows();
std::vector<Method> Extraction_Rows();
std::vector<Method> Formatting_Rows();
std::vector<Method> Fraction_Rows();
std::vector<Method> List_Rows();
std::vector<Method> Logarithm_Rows();
std::vector<Method> Order_Rows();
std::vector<Method> Power_And_Root_Rows();
std::vector<Method> Probability_Rows();
std::vector<Method> Rounding_Rows();
std::vector<Method> Shell_Rows();
std::vector<Method> Trigonometry_Rows();
std::vector<Method> Whole_Number_Rows();

}  // namespace quorvex::catalogue
