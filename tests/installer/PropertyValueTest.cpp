#include <gtest/gtest.h>

#include "installer/PropertyValue.h"

namespace {

TEST(PropertyValueTest, AStringHasItsTextAndNoEntries) {
  const PropertyValue value = PropertyValue::String("FXTC");
  ASSERT_NE(value.AsString(), nullptr);
  EXPECT_EQ(*value.AsString(), "FXTC");
  EXPECT_FALSE(value.IsDictionary());
  EXPECT_TRUE(value.Entries().empty());
  EXPECT_EQ(value.Find("FXTC"), nullptr);
}

TEST(PropertyValueTest, AnotherValueIsNeitherStringNorDictionary) {
  const PropertyValue value;
  EXPECT_EQ(value.AsString(), nullptr);
  EXPECT_FALSE(value.IsDictionary());
  EXPECT_EQ(value.FindString("a"), nullptr);
}

TEST(PropertyValueTest, ADictionaryFindsKeysExactlyAndKeepsTheirOrder) {
  const PropertyValue value = PropertyValue::Dictionary(
      {{"b", PropertyValue::String("1")}, {"a", PropertyValue()}, {"B", PropertyValue()}});
  EXPECT_TRUE(value.IsDictionary());
  EXPECT_EQ(value.AsString(), nullptr);
  ASSERT_EQ(value.Entries().size(), 3U);
  EXPECT_EQ(value.Entries()[0].key, "b");
  EXPECT_EQ(value.Entries()[1].key, "a");
  EXPECT_EQ(value.Entries()[2].key, "B");
  ASSERT_NE(value.FindString("b"), nullptr);
  EXPECT_EQ(*value.FindString("b"), "1");
  EXPECT_NE(value.Find("a"), nullptr);
  EXPECT_EQ(value.FindString("a"), nullptr);
  EXPECT_EQ(value.Find("c"), nullptr);
}

TEST(PropertyValueTest, ACopyOutlivesItsOrigin) {
  PropertyValue copy;
  {
    const PropertyValue origin = PropertyValue::Dictionary(
        {{"a", PropertyValue::String("long enough for the heap, surely")}});
    copy = origin;
  }
  ASSERT_NE(copy.FindString("a"), nullptr);
  EXPECT_EQ(*copy.FindString("a"), "long enough for the heap, surely");
}

}  // namespace
