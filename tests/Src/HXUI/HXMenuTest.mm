#include "Src/HXUI/HXMenu.h"

#include "Src/HXUI/Cocoa/HXMenuItem.h"
#include "Src/HXUI/HXPanel.h"
#include "tests/Src/HXUI/ControlTestHelpers.h"
#include "tests/Src/HXUI/MenuDriver.h"

namespace {

class HXMenuTest : public ToolkitFixture {
 protected:
  HXMenuTest() : owner(new HXPanel(window.get(), {50, 50}, {100, 20})) {
    WarpPointer(*window, {5, 5});
  }

  NSMenuItem* ItemAt(const HXMenu& menu, NSInteger index) {
    return [menu.GetNativeMenu() itemAtIndex:index];
  }

  HXPanel* owner;
};

TEST_F(HXMenuTest, StartsEmptyWithoutTitleOrAutomaticEnabling) {
  const HXMenu menu(owner);
  EXPECT_EQ([menu.GetNativeMenu() numberOfItems], 0);
  EXPECT_EQ([[menu.GetNativeMenu() title] length], 0U);
  EXPECT_FALSE([menu.GetNativeMenu() autoenablesItems]);
}

TEST_F(HXMenuTest, ItemsTargetThemselves) {
  HXMenu menu(owner);
  menu.AddItem(4, "Größe", true, false);
  NSMenuItem* item = ItemAt(menu, 0);
  EXPECT_TRUE([item isKindOfClass:[HXMenuItem class]]);
  EXPECT_EQ([item target], item);
  EXPECT_TRUE(sel_isEqual([item action], @selector(onItemClick:)));
  EXPECT_STREQ([[item title] UTF8String], "Größe");
  EXPECT_EQ([item state], NSOnState);
  EXPECT_FALSE([item isEnabled]);
}

TEST_F(HXMenuTest, UncheckedEnabledItem) {
  HXMenu menu(owner);
  menu.AddItem(1, "One", false, true);
  EXPECT_EQ([ItemAt(menu, 0) state], NSOffState);
  EXPECT_TRUE([ItemAt(menu, 0) isEnabled]);
}

TEST_F(HXMenuTest, EmptyAndInvalidTextsBecomeMenuItem) {
  HXMenu menu(owner);
  menu.AddItem(1, "", false, true);
  menu.AddItem(2, "\xff\xfe", false, true);
  EXPECT_STREQ([[ItemAt(menu, 0) title] UTF8String], "Menu Item");
  EXPECT_STREQ([[ItemAt(menu, 1) title] UTF8String], "Menu Item");
}

TEST_F(HXMenuTest, SeparatorIsThePlatformsOwn) {
  HXMenu menu(owner);
  menu.AddItem(1, "One", false, true);
  menu.AddSeparator();
  EXPECT_TRUE([ItemAt(menu, 1) isSeparatorItem]);
}

TEST_F(HXMenuTest, SubmenuHangsOnItsItem) {
  HXMenu menu(owner);
  menu.AddItem(1, "One", false, true);
  HXMenu submenu(nullptr);
  submenu.AddItem(3, "Three", false, true);
  menu.AddSubmenu(submenu, 2, "More", false, true);
  EXPECT_FALSE([ItemAt(menu, 0) hasSubmenu]);
  EXPECT_EQ([ItemAt(menu, 1) submenu], submenu.GetNativeMenu());
  EXPECT_STREQ([[ItemAt(menu, 1) title] UTF8String], "More");
}

TEST_F(HXMenuTest, PopupReturnsTheChosenItemsIndex) {
  HXMenu menu(owner);
  menu.AddItem(10, "One", false, true);
  menu.AddItem(20, "Two", true, true);
  menu.AddItem(30, "Three", false, true);
  const MenuDriver driver(1);
  EXPECT_EQ(menu.Popup({0, 0}), 20);
  EXPECT_TRUE(driver.wasOpen);
  EXPECT_EQ(driver.titles, (std::vector<std::string>{"One", "Two", "Three"}));
  EXPECT_EQ(driver.ticks, (std::vector<bool>{false, true, false}));
}

TEST_F(HXMenuTest, PopupOpensTenPixelsIntoTheOwnerFromThePoint) {
  // No event is served before the menu opens, so the window manager has not moved it yet.
  HXWindow stage(nullptr, {200, 500}, {300, 200}, "", HXWindow::kBorderless);
  stage.SetVisible(true);
  HXMenu menu(new HXPanel(&stage, {50, 50}, {100, 20}));
  menu.AddItem(1, "One", false, true);
  menu.AddItem(2, "Two", false, true);
  MenuDriver driver(0);
  driver.expectedTopLeft = stage.ClientToScreen({80, 65});
  EXPECT_EQ(menu.Popup({20, 5}), 1);
  EXPECT_TRUE(driver.wasOpen);
}

TEST_F(HXMenuTest, NoItemHasAPictureBesideItsText) {
  HXMenu menu(owner);
  menu.AddItem(10, "One", false, true);
  menu.AddItem(20, "Two", false, true);
  MenuDriver driver(0);
  std::vector<NSImage*> pictures;
  driver.whenOpen = [&] {
    for (NSInteger i = 0; i < 2; ++i) pictures.push_back([ItemAt(menu, i) image]);
  };
  menu.Popup({0, 0});
  EXPECT_EQ(pictures, (std::vector<NSImage*>{nil, nil}));
}

TEST_F(HXMenuTest, ClosingWithoutAChoiceGivesZero) {
  HXMenu menu(owner);
  menu.AddItem(10, "One", false, true);
  const MenuDriver driver(MenuDriver::kOutside);
  EXPECT_EQ(menu.Popup({0, 0}), 0);
  EXPECT_TRUE(driver.wasOpen);
}

TEST_F(HXMenuTest, DisabledItemCannotBeChosen) {
  HXMenu menu(owner);
  menu.AddItem(10, "One", false, true);
  menu.AddItem(20, "Two", false, false);
  const MenuDriver driver(1);
  EXPECT_EQ(menu.Popup({0, 0}), 0);
  EXPECT_TRUE(driver.wasOpen);
}

TEST_F(HXMenuTest, SubmenuItemCanBeChosen) {
  HXMenu submenu(nullptr);
  submenu.AddItem(7, "Seven", false, true);
  submenu.AddItem(8, "Eight", false, true);
  HXMenu menu(owner);
  menu.AddItem(1, "One", false, true);
  menu.AddSubmenu(submenu, 2, "More", false, true);
  const MenuDriver driver(1, 1);
  EXPECT_EQ(menu.Popup({0, 0}), 8);
}

TEST_F(HXMenuTest, EachPopupStartsFromNothing) {
  HXMenu menu(owner);
  menu.AddItem(10, "One", false, true);
  {
    const MenuDriver driver(0);
    EXPECT_EQ(menu.Popup({0, 0}), 10);
  }
  WarpPointer(*window, {5, 5});
  const MenuDriver driver(MenuDriver::kOutside);
  EXPECT_EQ(menu.Popup({0, 0}), 0);
}

TEST_F(HXMenuTest, IsOpenOnlyDuringPopup) {
  HXMenu menu(owner);
  menu.AddItem(10, "One", false, true);
  MenuDriver driver(0);
  bool during = false;
  driver.whenOpen = [&] { during = HXMenu::IsOpen(); };
  EXPECT_FALSE(HXMenu::IsOpen());
  menu.Popup({0, 0});
  EXPECT_TRUE(during);
  EXPECT_FALSE(HXMenu::IsOpen());
}

TEST_F(HXMenuTest, WithoutOwnerNothingOpens) {
  HXMenu menu(nullptr);
  menu.AddItem(10, "One", false, true);
  EXPECT_EQ(menu.Popup({0, 0}), 0);
  EXPECT_FALSE(HXMenu::IsOpen());
}

TEST_F(HXMenuTest, OwnerMayBeDeletedWhileTheMenuIsOpen) {
  HXMenu menu(owner);
  menu.AddItem(10, "One", false, true);
  MenuDriver driver(0);
  driver.whenOpen = [&] { delete owner; };
  EXPECT_EQ(menu.Popup({0, 0}), 10);
}

}  // namespace
