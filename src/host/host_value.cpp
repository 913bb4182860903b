#include "host/host_value.h"

namespace quorvex {

Range::~Range() = default;

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
