// Writes from the catalogue what the office must be told of the functions before it loads them.
//
//     quorvex_calc_tables idl|methods|configuration > FILE
#include <iostream>
#include <string>
#include <string_view>

#include "functions.h"

namespace {

using quorvex::Method;
using quorvex::Parameter;

std::string Escaped(std::string_view text) {
  std::string escaped;
  for (const char character : text) {
    switch (character) {
      case '&':
        escaped += "&amp;";
        break;
      case '<':
        escaped += "&lt;";
        break;
      case '>':
        escaped += "&gt;";
        break;
      default:
        escaped += character;
    }
  }
  return escaped;
}

// Separates the items of a list.
class Comma {
 public:
  std::string_view operator()() {
    const std::string_view before = first_ ? "" : ", ";
    first_ = false;
    return before;
  }

 private:
  bool first_ = true;
};

void Write_Idl(std::ostream& out) {
  out << "module quorvex { module calc {\n  interface XFunctions {\n";
  for (const Method* method : quorvex::calc::Offered_Functions()) {
    out << "    any " << method->worksheet_name << "(";
    if (method->takes_all_as_list) {
      out << "[in] sequence<any> p1";
    } else {
      Comma comma;
      for (std::size_t place = 1; place <= method->parameters.size(); ++place) {
        out << comma() << "[in] any p" << place;
      }
    }
    out << ");\n";
  }
  out << "  };\n}; };\n";
}

void Write_Methods(std::ostream& out) {
  std::size_t index = 0;
  for (const Method* method : quorvex::calc::Offered_Functions()) {
    out << "Any SAL_CALL " << method->worksheet_name << "(";
    if (method->takes_all_as_list) {
      out << "const Sequence<Any>& p1) override { return call_list(" << index << ", p1); }\n";
    } else {
      Comma comma;
      for (std::size_t place = 1; place <= method->parameters.size(); ++place) {
        out << comma() << "const Any& p" << place;
      }
      out << ") override { return call<" << method->parameters.size() << ">(" << index << ", {";
      Comma again;
      for (std::size_t place = 1; place <= method->parameters.size(); ++place) {
        out << again() << "&p" << place;
      }
      out << "}); }\n";
    }
    ++index;
  }
}

void Write_Text(std::ostream& out, int depth, std::string_view property, std::string_view text) {
  const std::string indent(static_cast<std::size_t>(depth) * 2, ' ');
  out << indent << "<prop oor:name=\"" << property << "\" oor:type=\"xs:string\">"
      << "<value xml:lang=\"en\">" << Escaped(text) << "</value></prop>\n";
}

void Write_Function(std::ostream& out, const Method& method) {
  const std::string_view name = method.worksheet_name;
  out << "        <node oor:name=\"" << name << "\" oor:op=\"replace\">\n";
  Write_Text(out, 5, "DisplayName", name);
  Write_Text(out, 5, "Description", method.description);
  out << "          <prop oor:name=\"Category\" oor:type=\"xs:string\">"
      << "<value>Add-In</value></prop>\n";
  Write_Text(out, 5, "CompatibilityName", name);
  out << "          <node oor:name=\"Parameters\">\n";
  std::size_t place = 0;
  for (const Parameter& parameter : method.parameters) {
    out << "            <node oor:name=\"p" << ++place << "\" oor:op=\"replace\">\n";
    Write_Text(out, 7, "DisplayName", parameter.name);
    Write_Text(out, 7, "Description", parameter.help);
    out << "            </node>\n";
    // All arguments of a list arrive as its only parameter.
    if (method.takes_all_as_list) break;
  }
  out << "          </node>\n        </node>\n";
}

void Write_Configuration(std::ostream& out) {
  out << R"(<?xml version="1.0" encoding="UTF-8"?>
<oor:component-data xmlns:oor="http://openoffice.org/2001/registry"
    xmlns:xs="http://www.w3.org/2001/XMLSchema" oor:name="CalcAddIns"
    oor:package="org.openoffice.Office">
  <node oor:name="AddInInfo">
    <node oor:name="quorvex.calc.Functions" oor:op="replace">
      <node oor:name="AddInFunctions">
)";
  for (const Method* method : quorvex::calc::Offered_Functions()) Write_Function(out, *method);
  out << "      </node>\n    </node>\n  </node>\n</oor:component-data>\n";
}

}  // namespace

int main(int count, char** arguments) {
  const std::string_view what = count == 2 ? arguments[1] : "";
  if (what == "idl") {
    Write_Idl(std::cout);
  } else if (what == "methods") {
    Write_Methods(std::cout);
  } else if (what == "configuration") {
    Write_Configuration(std::cout);
  } else {
    std::cerr << "usage: quorvex_calc_tables idl|methods|configuration\n";
    return 2;
  }
  return std::cout.flush() ? 0 : 1;
}
