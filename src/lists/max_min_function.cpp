#include "lists/max_min_function.h"

#include <compare>
#include <string>
#include <string_view>
#include <utility>

#include "lists/list_result.h"
#include "lists/list_walk.h"
#include "text/comparable_number.h"

namespace quorvex {
namespace {

// The best element so far, read once.
class Best {
 public:
  explicit Best(Extreme extreme) : extreme_(extreme) {}

  void offer(std::string_view element) {
    if (!taken_) {
      take(element);
      comparable_ = number_.read(text_);
      return;
    }
    if (!comparable_ || !other_.read(element)) return;
    const auto order = other_ <=> number_;
    if (extreme_ == Extreme::greatest ? std::is_lteq(order) : std::is_gteq(order)) return;
    take(element);
    number_.read(text_);
  }

  NumberText text() && { return std::move(text_); }

 private:
  void take(std::string_view element) {
    taken_ = true;
    text_ = element;
  }

  Extreme extreme_;
  bool taken_ = false;
  bool comparable_ = false;
  NumberText text_;
  Comparable_Number number_;  // looks into the text
  Comparable_Number other_;
};

}  // namespace

NumberText MaxMin_Function(const List& list, Extreme extreme) {
  List_Options options;
  Best best(extreme);
  Walk_List(list, options, [&](const List_Element& element) {
    best.offer(element.text);
    return Walk::on;
  });
  return Finish_List(std::move(best).text(), options);
}

}  // namespace quorvex
