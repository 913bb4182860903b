#include "formula/truth.h"

#include "formula/literals.h"

namespace quorvex {

namespace {

HostValue Truth_Of_Text(cls_Quorvex& engine, const HostValue& text) {
  if (Same_Word(text.text(), "TRUE")) return true;
  if (Same_Word(text.text(), "FALSE")) return false;
  if (!engine.qvxISNUMBER(text)) return Error_Code::value;
  const HostValue is_zero = engine.qvxISEQUAL(text, 0);
  return is_zero.is_text() && is_zero.text() == "False";
}

}  // namespace

HostValue Truth_Of(cls_Quorvex& engine, const HostValue& value) {
  if (Is_Error(value)) return value;
  switch (value.kind()) {
    case HostValue::Kind::boolean:
      return value;
    case HostValue::Kind::number:
      return value.number() != 0;
    case HostValue::Kind::text:
      return Truth_Of_Text(engine, value);
    case HostValue::Kind::missing:
    case HostValue::Kind::empty:
      return false;
    default:
      return Error_Code::value;
  }
}

}  // namespace quorvex
