#include <ostream>
#include <string>

#include "frame/catalogue.h"
#include "parts.h"

namespace quorvex::windows {
namespace {

std::string Type_Of(const Parameter& parameter) {
  const std::string star = parameter.passing == Passing::by_value ? "" : "*";
  switch (parameter.kind) {
    case Parameter_Kind::text:
      return "BSTR" + star;
    case Parameter_Kind::number:
      return "double" + star;
    case Parameter_Kind::integer:
      return "LONG" + star;
    case Parameter_Kind::boolean:
      return "VARIANT_BOOL" + star;
    case Parameter_Kind::list:
      return "SAFEARRAY**";
    case Parameter_Kind::object:
      return "IDispatch**";
    case Parameter_Kind::value:
      break;
  }
  return "VARIANT" + star;
}

std::string Result_Type(const Method& method) {
  switch (method.result) {
    case Result_Kind::text:
      return "BSTR*";
    case Result_Kind::value:
      return "VARIANT*";
    case Result_Kind::boolean:
      return "VARIANT_BOOL*";
    case Result_Kind::record:
      return std::string(method.record) + "*";
    case Result_Kind::nothing:
      break;
  }
  return {};
}

}  // namespace

void Write_Methods(std::ostream& out) {
  for (const Method& method : Catalogue()) {
    out << "STDMETHOD(" << method.name << ")(";
    Comma comma;
    for (const Parameter& parameter : method.parameters)
      out << comma() << Type_Of(parameter) << ' ' << parameter.name;
    const bool gives = method.result != Result_Kind::nothing;
    if (gives) out << comma() << Result_Type(method) << " result_";
    out << ") { return by_slot(" << method.slot << ", {";
    Comma again;
    for (const Parameter& parameter : method.parameters) {
      out << again() << (parameter.optional ? "Optional_Argument(" : "Argument(") << parameter.name
          << ')';
    }
    out << "}, " << (gives ? "result_" : "nullptr") << "); }\n";
  }
}

}  // namespace quorvex::windows
