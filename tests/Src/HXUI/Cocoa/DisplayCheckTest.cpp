#include <gtest/gtest.h>

#include "Src/HXUI/Cocoa/DisplayCheck.h"
#include "tests/installer/EnvironmentVariable.h"
#include "tests/support/Descriptors.h"

namespace {

TEST(DisplayCheckTest, ADisplayThatAnswersIsAvailable) { EXPECT_TRUE(IsDisplayAvailable()); }

TEST(DisplayCheckTest, WithoutADisplayThereIsNone) {
  const EnvironmentVariable none("DISPLAY", nullptr);
  EXPECT_FALSE(IsDisplayAvailable());
}

TEST(DisplayCheckTest, ADisplayThatDoesNotAnswerIsNone) {
  const EnvironmentVariable gone("DISPLAY", "/nowhere/X:0");
  EXPECT_FALSE(IsDisplayAvailable());
}

TEST(DisplayCheckTest, NoConnectionIsLeftOpen) {
  const int free = LowestFreeDescriptor();
  IsDisplayAvailable();
  EXPECT_EQ(LowestFreeDescriptor(), free);
}

}  // namespace
