#include "host/host_value.h"

#include "host/platform.h"

namespace quorvex {

Range::~Range() = default;

void Range::visit_used(const std::function<bool(const HostValue&)>& visit) const {
  std::size_t cells = 0;
  for (std::size_t row = 1; row <= rows(); ++row) {
    for (std::size_t column = 1; column <= columns(); ++column) {
      if (++cells % steps_between_yields == 0) Yield();
      if (!visit(cell(row, column))) return;
    }
  }
}

HostValue::HostValue(Array array) : data_(std::make_shared<const Array>(std::move(array))) {}

HostValue::HostValue(List list) : data_(std::make_shared<const List>(std::move(list))) {}

HostValue HostValue::Empty() noexcept {
  return HostValue(Blank{});
}

bool Is_Single_Cell(const HostValue& value) {
  return value.kind() == HostValue::Kind::range && value.range().rows() == 1 &&
         value.range().columns() == 1;
}

}  // namespace quorvex
