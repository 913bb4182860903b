// The worksheet functions of text.
#include "frame/class/cls_Quorvex.h"
#include "frame/class/outer_call.h"
#include "lists/exclude_function.h"
#include "lists/extract_function.h"

namespace quorvex {

NumberText cls_Quorvex::qvxEXCLUDE(const List& numlist) {
  return Outer_Call([&] { return Exclude_Function(numlist, Extraction_Filter::off); });
}

NumberText cls_Quorvex::qvxEXCLUDENOTNUM(const List& numlist) {
  return Outer_Call([&] { return Exclude_Function(numlist, Extraction_Filter::number); });
}

NumberText cls_Quorvex::qvxEXTRACT(const List& numlist) {
  return Outer_Call([&] { return Extract_Function(numlist, Extraction_Filter::off); });
}

NumberText cls_Quorvex::qvxEXTRACTNUM(const List& numlist) {
  return Outer_Call([&] { return Extract_Function(numlist, Extraction_Filter::number); });
}

}  // namespace quorvex
