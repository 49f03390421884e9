#include <gtest/gtest.h>

#include <csignal>

#include "Src/HXUI/Assert.h"

namespace {

TEST(AssertTest, SaysWhatIsWrongWhereAndAborts) {
  EXPECT_EXIT(HXAssertFailed("Begin", "depth > 0", "Src/HXUI/Cocoa/Thing", 17),
              ::testing::KilledBySignal(SIGABRT),
              "^Assertion failed: \\(depth > 0\\), function Begin, file Src/HXUI/Cocoa/Thing, "
              "line 17\\.\n");
}

}  // namespace
