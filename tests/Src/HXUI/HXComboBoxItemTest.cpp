#include <gtest/gtest.h>

#include "Src/HXUI/HXComboBoxItem.h"

namespace {

using Items = std::vector<HXComboBoxItem>;

TEST(HXComboBoxItemTest, ItemsWithoutNumberGetTheirPosition) {
  EXPECT_EQ(HXComboBoxItem::Parse("Low|Medium|High"),
            (Items{{0, "Low"}, {1, "Medium"}, {2, "High"}}));
}

TEST(HXComboBoxItemTest, NumberBeforeTheSlashIsTheValue) {
  EXPECT_EQ(HXComboBoxItem::Parse("10/Ten|20/Twenty|Other"),
            (Items{{10, "Ten"}, {20, "Twenty"}, {2, "Other"}}));
}

TEST(HXComboBoxItemTest, EmptySpecificationIsOneEmptyItem) {
  EXPECT_EQ(HXComboBoxItem::Parse(""), (Items{{0, ""}}));
}

TEST(HXComboBoxItemTest, EveryBarMakesAnItem) {
  EXPECT_EQ(HXComboBoxItem::Parse("|A||"), (Items{{0, ""}, {1, "A"}, {2, ""}, {3, ""}}));
}

TEST(HXComboBoxItemTest, OnlyTheFirstSlashDivides) {
  EXPECT_EQ(HXComboBoxItem::Parse("5/a/b|/c|/"), (Items{{5, "a/b"}, {0, "c"}, {0, ""}}));
}

TEST(HXComboBoxItemTest, NumbersAreReadUpToTheFirstOtherCharacter) {
  EXPECT_EQ(HXComboBoxItem::Parse("12px/a| 7/b|-3/c|+4/d|x9/e"),
            (Items{{12, "a"}, {7, "b"}, {-3, "c"}, {4, "d"}, {0, "e"}}));
}

TEST(HXComboBoxItemTest, NumbersOutOfRangeAreLimited) {
  EXPECT_EQ(HXComboBoxItem::Parse("99999999999/a|-99999999999/b"),
            (Items{{2147483647, "a"}, {-2147483647 - 1, "b"}}));
}

TEST(HXComboBoxItemTest, TextsAreKeptByteForByte) {
  EXPECT_EQ(HXComboBoxItem::Parse("größer | 32-bit"), (Items{{0, "größer "}, {1, " 32-bit"}}));
}

}  // namespace
