#include "formula/render.h"

#include <cmath>

#include "formula/formula.h"
#include "host/conversions.h"

namespace quorvex {

std::string Render(const HostValue& value) {
  switch (value.kind()) {
    case HostValue::Kind::text:
      return value.text();
    case HostValue::Kind::number:
      return std::isfinite(value.number()) ? Number_To_Text(value.number()) : "#NUM!";
    default:
      return Constant_Text(value);
  }
}

}  // namespace quorvex
