#include <gtest/gtest.h>

#include <array>

#include "Src/HXUI/HXControlFloatList.h"

namespace {

/// The list never looks into its fields, so any addresses will do.
class HXControlFloatListTest : public ::testing::Test {
 protected:
  HXControlFloat* Field(std::size_t index) {
    return reinterpret_cast<HXControlFloat*>(&places.at(index));
  }

  HXControlFloatList list;

 private:
  std::array<long, 4> places{};
};

TEST_F(HXControlFloatListTest, BeginsWithOneEmptyGroup) {
  EXPECT_EQ(list.GetGroupCount(), 1U);
  EXPECT_EQ(list.GetFieldCount(0), 0U);
  EXPECT_EQ(list.GetCurrentIndex(), 0);
  EXPECT_EQ(list.GetField(0, 0), nullptr);
}

TEST_F(HXControlFloatListTest, AppendsToTheLastGroup) {
  EXPECT_EQ(list.Append(Field(0)), 0);
  EXPECT_EQ(list.Append(Field(1)), 1);
  list.BeginGroup();
  EXPECT_EQ(list.Append(Field(2)), 0);
  EXPECT_EQ(list.GetGroupCount(), 2U);
  EXPECT_EQ(list.GetFieldCount(0), 2U);
  EXPECT_EQ(list.GetFieldCount(1), 1U);
  EXPECT_EQ(list.GetField(0, 1), Field(1));
  EXPECT_EQ(list.GetField(1, 0), Field(2));
}

TEST_F(HXControlFloatListTest, GivesNothingBeyondItsEnds) {
  list.Append(Field(0));
  EXPECT_EQ(list.GetField(0, -1), nullptr);
  EXPECT_EQ(list.GetField(0, 1), nullptr);
  EXPECT_EQ(list.GetField(1, 0), nullptr);
  EXPECT_EQ(list.GetFieldCount(1), 0U);
}

TEST_F(HXControlFloatListTest, ARemovedFieldLeavesItsPlaceEmpty) {
  list.Append(Field(0));
  list.Append(Field(1));
  list.BeginGroup();
  list.Append(Field(0));
  list.Remove(Field(0));
  EXPECT_EQ(list.GetField(0, 0), nullptr);
  EXPECT_EQ(list.GetField(0, 1), Field(1));
  EXPECT_EQ(list.GetField(1, 0), nullptr);
  EXPECT_EQ(list.GetFieldCount(0), 2U);
  EXPECT_EQ(list.Append(Field(3)), 1);
}

TEST_F(HXControlFloatListTest, KeepsTheCurrentIndex) {
  list.SetCurrentIndex(3);
  EXPECT_EQ(list.GetCurrentIndex(), 3);
}

}  // namespace
