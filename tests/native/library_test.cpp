// The library as its callers load it.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "products.h"

namespace quorvex::native {
namespace {

using Routine = int (*)(const char*, const char*, char*, const char*);

constexpr const char* right_code = "7305918264";

class Library : public testing::Test {
 protected:
  void SetUp() override {
    library_.reset(dlopen(QUORVEX_NATIVE_LIBRARY, RTLD_NOW | RTLD_LOCAL));
    ASSERT_NE(library_, nullptr) << dlerror();
    multiply_ = reinterpret_cast<Routine>(dlsym(library_.get(), "Multiply"));
    ASSERT_NE(multiply_, nullptr);
  }

  // What stands in a buffer of the right size between two guards afterwards.
  std::string call(const std::string& a, const std::string& b, const char* code = right_code) {
    const std::size_t room = 2 * std::max(a.size(), b.size());
    std::string buffer = "[" + std::string(room, ' ') + "]";
    multiply_(a.c_str(), b.c_str(), buffer.data() + 1, code);
    return buffer;
  }

 private:
  struct Close {
    void operator()(void* library) const { dlclose(library); }
  };
  std::unique_ptr<void, Close> library_;
  Routine multiply_ = nullptr;
};

TEST_F(Library, Writes_The_Product_And_Leaves_The_Rest) {
  EXPECT_EQ(call("2", "3"), "[6 ]");
  EXPECT_EQ(call("99", "99"), "[9801]");
  EXPECT_EQ(call("00", "5"), "[0   ]");
  EXPECT_EQ(call("0007", "12"), "[84      ]");
  const std::string long_one = Hard_Digits(100'000, 0, 1);
  EXPECT_EQ(call("1", long_one), "[" + long_one + std::string(100'000, ' ') + "]");
}

TEST_F(Library, Leaves_The_Buffer_To_Those_Who_May_Not_Or_Err) {
  for (const char* code : {"", "7305918265", "730591826", "73059182640"})
    EXPECT_EQ(call("12", "34", code), "[    ]") << code;
  EXPECT_EQ(call("1x", "34"), "[    ]");
  EXPECT_EQ(call("12", "#VALUE!"), "[              ]");
  EXPECT_EQ(call("-1", "0"), "[    ]");
}

TEST_F(Library, Exports_One_Routine) {
  const std::string command = "nm -D --defined-only " QUORVEX_NATIVE_LIBRARY;
  const std::unique_ptr<FILE, int (*)(FILE*)> listing(popen(command.c_str(), "r"), pclose);
  ASSERT_NE(listing, nullptr);
  std::vector<std::string> names;
  for (std::array<char, 4096> line{}; fgets(line.data(), line.size(), listing.get()) != nullptr;) {
    const std::string text = line.data();
    names.push_back(text.substr(text.rfind(' ') + 1));
  }
  EXPECT_EQ(names, std::vector<std::string>{"Multiply\n"});
}

}  // namespace
}  // namespace quorvex::native
