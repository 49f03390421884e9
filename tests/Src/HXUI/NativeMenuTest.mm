#include "Src/HXUI/Cocoa/NativeMenu.h"

#import <AppKit/AppKit.h>
#include <gtest/gtest.h>

namespace {

class NativeMenuTest : public ::testing::Test {
 protected:
  NativeMenuTest() : menu(NativeMenu::Create()) {}
  ~NativeMenuTest() override { NativeMenu::Destroy(menu); }

  NSMenu* menu;
  std::int32_t chosen = 0;
};

TEST_F(NativeMenuTest, ClickedItemWritesItsIndex) {
  NativeMenu::AddItem(menu, {.index = 5, .indexPtr = &chosen, .text = "Five"});
  NativeMenu::AddItem(menu, {.index = 6, .indexPtr = &chosen, .text = "Six"});
  [menu performActionForItemAtIndex:1];
  EXPECT_EQ(chosen, 6);
}

TEST_F(NativeMenuTest, DisabledItemStaysDisabled) {
  NativeMenu::AddItem(menu, {.index = 5, .indexPtr = &chosen, .text = "Five", .enabled = false});
  [menu update];
  EXPECT_FALSE([[menu itemAtIndex:0] isEnabled]);
  [menu performActionForItemAtIndex:0];
  EXPECT_EQ(chosen, 0);
}

TEST_F(NativeMenuTest, SubmenuOfAnEmptyMenuIsRefused) {
  NSMenu* submenu = NativeMenu::Create();
  NativeMenu::SetSubmenuOfLastItem(menu, submenu);
  EXPECT_EQ([submenu supermenu], nil);
  NativeMenu::Destroy(submenu);
}

TEST_F(NativeMenuTest, SubmenuGoesToTheLastItemAndOutlivesItsCreator) {
  NativeMenu::AddItem(menu, {.index = 1, .indexPtr = &chosen, .text = "One"});
  NativeMenu::AddItem(menu, {.index = 2, .indexPtr = &chosen, .text = "Two"});
  NSMenu* submenu = NativeMenu::Create();
  NativeMenu::AddItem(submenu, {.index = 3, .indexPtr = &chosen, .text = "Three"});
  NativeMenu::SetSubmenuOfLastItem(menu, submenu);
  NativeMenu::Destroy(submenu);
  EXPECT_FALSE([[menu itemAtIndex:0] hasSubmenu]);
  [[[menu itemAtIndex:1] submenu] performActionForItemAtIndex:0];
  EXPECT_EQ(chosen, 3);
}

TEST_F(NativeMenuTest, PopupWithoutAViewInAWindowReturnsAtOnce) {
  NativeMenu::AddItem(menu, {.index = 1, .indexPtr = &chosen, .text = "One"});
  NativeMenu::Popup(menu, nil, {0, 0, 1, 1});
  NSView* loose = [[[NSView alloc] initWithFrame:NSMakeRect(0, 0, 10, 10)] autorelease];
  NativeMenu::Popup(menu, loose, {0, 0, 1, 1});
  EXPECT_EQ(chosen, 0);
}

}  // namespace
