#import "Src/HXUI/Cocoa/HXMenuItem.h"

#include <gtest/gtest.h>

namespace {

HXMenuItem* NewItem() {
  return [[[HXMenuItem alloc] initWithTitle:@"Item"
                                     action:@selector(onItemClick:)
                              keyEquivalent:@""] autorelease];
}

TEST(HXMenuItemTest, ClickWritesTheIndex) {
  std::int32_t chosen = 0;
  HXMenuItem* item = NewItem();
  [item setIndex:-7 pointer:&chosen];
  EXPECT_EQ(chosen, 0);
  [item onItemClick:nil];
  EXPECT_EQ(chosen, -7);
}

TEST(HXMenuItemTest, ItemsShareOneInteger) {
  std::int32_t chosen = 0;
  HXMenuItem* first = NewItem();
  HXMenuItem* second = NewItem();
  [first setIndex:1 pointer:&chosen];
  [second setIndex:2 pointer:&chosen];
  [second onItemClick:second];
  EXPECT_EQ(chosen, 2);
  [first onItemClick:first];
  EXPECT_EQ(chosen, 1);
}

TEST(HXMenuItemTest, ClickWithoutAPointerDoesNothing) {
  HXMenuItem* item = NewItem();
  [item onItemClick:item];
  EXPECT_STREQ([[item title] UTF8String], "Item");
}

}  // namespace
