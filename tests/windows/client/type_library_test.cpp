// The type library says what the catalogue says: tests/frame/interface.txt is the list that both
// are held against.
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <regex>
#include <sstream>

#include "interface_calls.h"

namespace quorvex::windows {
namespace {

std::vector<std::string> Listed_Methods() {
  const char* const file = std::getenv("QUORVEX_INTERFACE");
  std::ifstream stream(file != nullptr ? file : "");
  std::vector<std::string> lines;
  for (std::string line; std::getline(stream, line) && !line.empty();) lines.push_back(line);
  return lines;
}

struct Shape {
  VARTYPE type;
  bool by_reference;
};

// A value unless a kind is named; by reference unless "=" stands behind it.
Shape Listed_Shape(const std::string& kind, const std::string& mark) {
  const std::map<std::string, VARTYPE> types = {
      {"", VT_VARIANT},      {":text", VT_BSTR},      {":number", VT_R8},      {":integer", VT_I4},
      {":boolean", VT_BOOL}, {":list", VT_SAFEARRAY}, {":object", VT_DISPATCH}};
  return {types.at(kind), mark != "="};
}

std::vector<Described_Parameter> Listed_Parameters(const std::string& text) {
  std::vector<Described_Parameter> parameters;
  static const std::regex one(R"((\[?)(\w+)(:\w+)?([=&]?)\]?)");
  for (std::sregex_iterator at(text.begin(), text.end(), one), end; at != end; ++at) {
    const Shape shape = Listed_Shape((*at)[3].str(), (*at)[4].str());
    parameters.push_back({.name = (*at)[2].str(),
                          .type = shape.type,
                          .by_reference = shape.by_reference,
                          .optional = (*at)[1].length() > 0});
  }
  return parameters;
}

std::string Told(const std::vector<Described_Parameter>& parameters) {
  std::ostringstream text;
  for (const Described_Parameter& parameter : parameters) {
    text << parameter.name << ' ' << parameter.type << (parameter.by_reference ? " ref" : " value")
         << (parameter.optional ? " optional" : "") << ", ";
  }
  return text.str();
}

TEST(TypeLibrary, ListsTheMethodsOfTheCatalogueInTheirSlots) {
  const auto object = Make_Object();
  ASSERT_TRUE(object);
  const auto described = Described_Interface(*object.get());
  const auto listed = Listed_Methods();
  ASSERT_EQ(described.size(), listed.size());
  const std::map<std::string, VARTYPE> results = {{"nothing", VT_VOID},
                                                  {"text", VT_BSTR},
                                                  {"value", VT_VARIANT},
                                                  {"boolean", VT_BOOL},
                                                  {"record", VT_RECORD}};
  static const std::regex line(R"((\w+)\((.*)\) (\w+) .*)");
  for (std::size_t i = 0; i < listed.size(); ++i) {
    std::smatch parts;
    ASSERT_TRUE(std::regex_match(listed[i], parts, line)) << listed[i];
    const Described_Method& method = described[i];
    const auto parameters = Listed_Parameters(parts[2].str());
    EXPECT_EQ(method.name, parts[1].str());
    EXPECT_EQ(method.id, static_cast<DISPID>(i + 1));
    EXPECT_EQ(method.offset, static_cast<int>((7 + i) * sizeof(void*))) << method.name;
    EXPECT_EQ(Told(method.parameters), Told(parameters)) << method.name;
    EXPECT_EQ(method.result, results.at(parts[3].str())) << method.name;
    const bool takes_list_alone = parameters.size() == 1 && parameters[0].type == VT_SAFEARRAY;
    EXPECT_EQ(method.takes_any_count, takes_list_alone) << method.name;
    EXPECT_EQ(Id_Of(*object.get(), method.name), method.id);
  }
}

TEST(TypeLibrary, LaysRecordsOutAsTheyAre) {
  const auto object = Make_Object();
  ASSERT_TRUE(object);
  const Outcome options = Call_Late(*object.get(), "Restrictionator", {});
  ASSERT_EQ(options.result->vt, VT_RECORD);
  ULONG size = 0;
  options.result->pRecInfo->GetSize(&size);
  EXPECT_EQ(size, 56u);
  const Outcome quotient = Call_Late(*object.get(), "myInverse5", {Text("7"), Number(5)});
  ASSERT_EQ(quotient.result->vt, VT_RECORD);
  quotient.result->pRecInfo->GetSize(&size);
  EXPECT_EQ(size, 16u);
  Variant field;
  EXPECT_EQ(quotient.result->pRecInfo->GetField(quotient.result->pvRecord, L"digits", &field),
            S_OK);
  EXPECT_EQ(Text_In(*field), "14285");
}

}  // namespace
}  // namespace quorvex::windows
