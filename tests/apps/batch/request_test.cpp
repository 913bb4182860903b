// Requests: what the reader takes, and what it refuses with which words.
#include "batch/request.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quorvex {
namespace {

struct Refused_Case {
  std::string line;
  std::string problem;  // some words of it
};

TEST(Request, IsRefusedWithTheReason) {
  const std::string deep(65, '[');
  const std::vector<Refused_Case> cases = {
      {"", "not well-formed JSON"},
      {R"({"call":"qvxADD")", "not well-formed JSON at byte 17"},
      {R"({"call":"qvxADD"} x)", "not well-formed JSON"},
      {"{\"call\":\"qvx\xFF\"}", "not well-formed JSON"},
      {"{\"call\":\"qvx\xED\xA0\x80\"}", "not well-formed JSON"},
      {std::string("{\"call\":\"a\0\"}", 13), "not well-formed JSON"},
      {R"({"call":"qvxADD","args":[1e999}])", "not well-formed JSON at byte 31"},
      {R"({"call":"qvxADD","args":[1e999,01e999]})", "not well-formed JSON at byte 37"},
      {R"({"call":"qvxADD","args":[1e999,1.e999]})", "not well-formed JSON at byte 34"},
      {R"({"call":"qvxADD","args":[1e999-1]})", "not well-formed JSON at byte 32"},
      {R"({"call":"qvxADD","args":[-1e999,"a])", "not well-formed JSON at byte 36"},
      {R"({"call":"qvxADD","args":[NaN]})", "not well-formed JSON"},
      {"[1]", "a request is an object"},
      {"3", "a request is an object"},
      {"{}", "\"call\" is missing"},
      {"{\"call\":5}", "\"call\" has to be the name"},
      {R"({"call":"qvxADDD"})", "there is no function \"qvxADDD\"; did you mean qvxADD?"},
      {R"({"call":")" + std::string(1000, 'x') + "\"}", "x...\""},
      {R"({"call":"qvxADD","arg":[]})", "the key \"arg\" is not known"},
      {R"({"call":"qvxADD","call":"qvxADD"})", "\"call\" is given twice"},
      {R"({"id":1,"id":1,"call":"qvxSIGN"})", "\"id\" is given twice"},
      {R"({"call":"qvxADD","named":{"number1":1,"number1":1}})", "is given twice"},
      {R"({"call":"qvxADD","args":[1],"named":{"number1":1}})", "\"number1\" is given twice"},
      {R"({"call":"qvxADD","named":{"number3":1}})", "no argument \"number3\""},
      {R"({"call":"qvxADD","named":[1]})", "\"named\" has to be an object"},
      {R"({"call":"qvxADD","args":1})", "\"args\" has to be an array"},
      {R"({"call":"qvxSIGN","args":[1,2,3]})", "at most 1 argument, and 3 are given"},
      {R"({"call":"qvxSUM2","args":[1,2,3]})", R"( is one, {"list": [value, ...]})"},
      {R"({"call":"qvxADD","args":[[1]]})", "number1: a bare [...] is no value"},
      {R"({"call":"qvxADD","args":[1,{}]})", "number2: an object is one of"},
      {R"({"call":"qvxADD","args":[{"missing":false}]})", "an object is one of"},
      {R"({"call":"qvxADD","args":[{"missing":true,"list":[]}]})", "an object is one of"},
      {R"({"call":"qvxADD","args":[{"error":2041}]})", "one of the codes"},
      {R"({"call":"qvxADD","args":[{"error":2042.0}]})", "one of the codes"},
      {R"({"call":"qvxADD","args":[{"error":1e999}]})", "one of the codes"},
      {R"({"call":"qvxADD","args":[{"array":[1]}]})", "number1[0]: a row is given as"},
      {R"({"call":"qvxADD","args":[{"array":[[1,2],[3]]}]})", "of the same length"},
      {R"({"call":"qvxADD","args":[{"list":[1,[2]]}]})", "number1[1]: a bare [...]"},
      {deep, "more than 64 levels"},
      {"{\"id\":" + deep, "more than 64 levels"},
  };
  for (const auto& [line, problem] : cases) {
    const Request request = Read_Request(line);
    EXPECT_NE(request.problem.find(problem), std::string::npos)
        << line << "\n  gives: " << request.problem;
    EXPECT_LT(request.problem.size(), 300U) << line;
  }
}

TEST(Request, IdComesBackAsItWasSent) {
  const std::vector<std::string> ids = {"1",
                                        R"("a\"b")",
                                        "null",
                                        "true",
                                        "-7",
                                        "1.50",
                                        "123456789012345678901234567890",
                                        "[1,1e999,-2e999]",
                                        R"({"z":[1,{}],"a":[[],"x"],"m":null})",
                                        "[]"};
  for (const std::string& id : ids) {
    EXPECT_EQ(Read_Request("{\"call\":\"qvxSIGN\",\"id\":" + id + ",\"args\":[1]}").id, id);
    EXPECT_EQ(Read_Request("{\"id\":" + id + ",\"call\":").id, id) << "though the line is broken";
  }
  EXPECT_EQ(Read_Request("{\"call\":\"qvxSIGN\"}").id, "");
  EXPECT_EQ(Read_Request("{\"id\":[1,").id, "") << "half an id is none";
}

TEST(Request, NamedArgumentsFindTheirPlace) {
  const Request request = Read_Request(
      R"({"call":"QVXadd","args":["1"],"named":{"format_thousands":true,"number2":"2"}})");
  ASSERT_EQ(request.problem, "");
  EXPECT_EQ(request.method->name, "qvxADD");
  ASSERT_EQ(request.arguments.size(), 4U);
  EXPECT_EQ(request.arguments[0].text(), "1");
  EXPECT_EQ(request.arguments[1].text(), "2");
  EXPECT_TRUE(request.arguments[2].is_missing());
  EXPECT_TRUE(request.arguments[3].boolean());
}

TEST(Request, SixtyFourLevelsAreFine) {
  std::string line = R"({"call":"qvxSIGN","args":[)";
  for (int level = 0; level < 31; ++level) line += R"({"list":[)";
  for (int level = 0; level < 31; ++level) line += "]}";
  EXPECT_EQ(Read_Request(line + "]}").problem, "");
}

}  // namespace
}  // namespace quorvex
