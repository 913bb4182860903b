// What the catalogue says of results.
#include <gtest/gtest.h>

#include "frame/catalogue.h"

namespace quorvex {
namespace {

TEST(Catalogue, SaysOfEveryMethodWhatItGivesAndHowItFails) {
  for (const Method& method : Catalogue()) {
    EXPECT_TRUE(method.results.returns.ends_with('.')) << method.name;
    EXPECT_FALSE(method.results.failures.empty()) << method.name;
    for (const std::string_view sentence : method.results.failures)
      EXPECT_TRUE(sentence.ends_with('.')) << method.name << ": " << sentence;
  }
}

}  // namespace
}  // namespace quorvex
