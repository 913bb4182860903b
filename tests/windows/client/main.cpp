#include <gtest/gtest.h>

#include "com.h"

int main(int count, char** arguments) {
  testing::InitGoogleTest(&count, arguments);
  if (FAILED(::CoInitialize(nullptr))) return 2;
  const int result = RUN_ALL_TESTS();
  ::CoUninitialize();
  return result;
}
