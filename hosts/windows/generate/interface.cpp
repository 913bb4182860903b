#include <ostream>
#include <string>

#include "frame/catalogue.h"
#include "identity.h"
#include "parts.h"

namespace quorvex::windows {
namespace {

constexpr std::string_view records = R"(
  typedef [uuid(@options), version(1.0)] struct type_Restrictionator {
    short FormatNegative;
    VARIANT_BOOL FormatThousands;
    VARIANT_BOOL FormatCurrency;
    VARIANT_BOOL ExponentialNotation;
    double maxSD;
    VARIANT_BOOL InsertFunctionDialog;
    VARIANT_BOOL IncluderExcluderFunctions;
    VARIANT FormatDecimalPlace;
    VARIANT_BOOL PreserveTrailingZerosAfterDecimal;
  } type_Restrictionator;

  typedef [uuid(@quotient), version(1.0)] struct type_Division_Recip {
    BSTR digits;
    long powerOfTen;
  } type_Division_Recip;
)";

std::string Replaced(std::string text, std::string_view mark, std::string_view by) {
  text.replace(text.find(mark), mark.size(), by);
  return text;
}

// A text in quotes.
std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  for (const char character : text) {
    if (character == '"' || character == '\\') quoted += '\\';
    quoted += character;
  }
  return quoted + '"';
}

std::string_view Type_Of(Parameter_Kind kind) {
  switch (kind) {
    case Parameter_Kind::text:
      return "BSTR";
    case Parameter_Kind::number:
      return "double";
    case Parameter_Kind::integer:
      return "long";
    case Parameter_Kind::boolean:
      return "VARIANT_BOOL";
    case Parameter_Kind::list:
      return "SAFEARRAY(VARIANT)";
    case Parameter_Kind::object:
      return "IDispatch *";
    case Parameter_Kind::value:
      break;
  }
  return "VARIANT";
}

std::string Attributes_Of(const Parameter& parameter) {
  if (parameter.passing == Passing::by_value) return parameter.optional ? "in,optional" : "in";
  std::string attributes = "in,out";
  if (!parameter.optional) return attributes;
  attributes += ",optional";
  const bool has_default =
      parameter.kind == Parameter_Kind::number || parameter.kind == Parameter_Kind::boolean;
  return has_default ? attributes + ",defaultvalue(0)" : attributes;
}

std::string Result_Type(const Method& method) {
  switch (method.result) {
    case Result_Kind::text:
      return "BSTR";
    case Result_Kind::value:
      return "VARIANT";
    case Result_Kind::boolean:
      return "VARIANT_BOOL";
    case Result_Kind::record:
      return std::string(method.record);
    case Result_Kind::nothing:
      break;
  }
  return {};
}

// Where a list is all that a method takes, callers may write its elements as arguments.
bool Takes_Any_Count(const Method& method) {
  return method.takes_all_as_list && method.parameters.size() == 1;
}

void Write_Method(std::ostream& out, const Method& method) {
  out << "    [id(" << method.slot << ")" << (Takes_Any_Count(method) ? ", vararg" : "")
      << ", helpstring(" << Quoted(method.description) << ")]\n    HRESULT " << method.name << '(';
  Comma comma;
  for (const Parameter& parameter : method.parameters) {
    out << comma() << '[' << Attributes_Of(parameter) << "] " << Type_Of(parameter.kind)
        << (parameter.passing == Passing::by_value ? " " : " *") << parameter.name;
  }
  if (method.result != Result_Kind::nothing)
    out << comma() << "[out,retval] " << Result_Type(method) << " *result";
  out << ");\n";
}

}  // namespace

void Write_Interface(std::ostream& out) {
  out << "import \"automation.idl\";\n\n[uuid(" << library_id << "), version(" << major_version
      << '.' << minor_version << "), helpstring(" << Quoted(class_title) << ")]\nlibrary "
      << library_name << " {\n  importlib(\"stdole2.tlb\");\n";
  out << Replaced(Replaced(std::string(records), "@options", options_record_id), "@quotient",
                  quotient_record_id);
  out << "\n  [object, dual, oleautomation, nonextensible, hidden, uuid(" << interface_id
      << ")]\n  interface " << interface_name << " : IDispatch {\n";
  for (const Method& method : Catalogue()) Write_Method(out, method);
  out << "  };\n\n  [uuid(" << class_id << "), helpstring(" << Quoted(class_title)
      << ")]\n  coclass " << class_name << " {\n    [default] interface " << interface_name
      << ";\n  };\n};\n";
}

}  // namespace quorvex::windows
