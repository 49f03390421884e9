#include <gtest/gtest.h>

#include "Src/HXUI/RtfFontSizes.h"

namespace {

TEST(RtfFontSizesTest, SizesAreKeptBetweenOneAnd1638Points) {
  const std::pair<const char*, const char*> rows[] = {
      {"\\fs24 a", "\\fs24 a"},
      {"\\fs2", "\\fs2"},
      {"\\fs3276", "\\fs3276"},
      {"\\fs1", "\\fs2"},
      {"\\fs0", "\\fs2"},
      {"\\fs-7 a", "\\fs2 a"},
      {"\\fs3277", "\\fs3276"},
      {"\\fs2147483647", "\\fs3276"},
      {"\\fs-99999999999999999999", "\\fs2"},
      {"{\\fs99999999999999999999\\b}", "{\\fs3276\\b}"},
  };
  for (const auto& [rtf, bounded] : rows) EXPECT_EQ(RtfFontSizes::Bound(rtf), bounded);
}

TEST(RtfFontSizesTest, NothingElseChanges) {
  for (const char* rtf :
       {"", "\\fs", "\\fs a", "\\fsx0", "\\f0", "fs0", "\\\\fs0", "\\fs-", "\\*\\fs \\'660"}) {
    EXPECT_EQ(RtfFontSizes::Bound(rtf), rtf);
  }
}

}  // namespace
