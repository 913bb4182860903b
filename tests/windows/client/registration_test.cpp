// What a program meets where the library is not, or not whole. The script that runs these brings
// each state about.
#include <gtest/gtest.h>

#include "automation.h"

namespace quorvex::windows {
namespace {

TEST(Unregistered, ClassIsUnknown) {
  HRESULT status = S_OK;
  EXPECT_FALSE(Make_Object(&status));
  EXPECT_EQ(status, CO_E_CLASSSTRING);
}

TEST(Gone, LibraryFailsAtOnce) {
  HRESULT status = S_OK;
  EXPECT_FALSE(Make_Object(&status));
  EXPECT_TRUE(FAILED(status));
}

TEST(Alone, LibraryMakesNoProductsAndEverythingElse) {
  const auto object = Make_Object();
  ASSERT_TRUE(object);
  EXPECT_EQ(Text_Of_Call(*object.get(), "qvxADD", {Number(1), Text("2.5")}), "3.5");
  EXPECT_EQ(Text_Of_Call(*object.get(), "qvxMULTIPLY", {Number(2), Number(3)}), "#VALUE!");
  const std::string help = Text_Of_Call(*object.get(), "qvxHelpfilePath", {});
  EXPECT_TRUE(help.ends_with("\\alone\\Quorvex.chm")) << help;
}

}  // namespace
}  // namespace quorvex::windows
