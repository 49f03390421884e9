#include "Src/HXUI/HXMenu.h"

#include "Src/HXUI/Cocoa/NativeMenu.h"
#include "Src/HXUI/HXObject.h"

namespace {

constexpr std::int32_t kPopupOffset = 10;

std::int32_t chosenIndex = 0;
bool menuOpen = false;

}  // namespace

HXMenu::HXMenu(HXObject* ownerWidget) : owner(ownerWidget), menu(NativeMenu::Create()) {
  chosenIndex = 0;
}

HXMenu::~HXMenu() { NativeMenu::Destroy(menu); }

void HXMenu::AddItem(std::int32_t index, const std::string& text, bool checked, bool enabled) {
  NativeMenu::AddItem(menu, {index, &chosenIndex, text, checked, enabled});
}

void HXMenu::AddSubmenu(const HXMenu& submenu, std::int32_t index, const std::string& text,
                        bool checked, bool enabled) {
  AddItem(index, text, checked, enabled);
  NativeMenu::SetSubmenuOfLastItem(menu, submenu.menu);
}

void HXMenu::AddSeparator() { NativeMenu::AddSeparator(menu); }

std::int32_t HXMenu::Popup(HXPoint point) {
  menuOpen = true;
  chosenIndex = 0;
  NSView* view = owner == nullptr ? nullptr : owner->GetNativeView();
  NativeMenu::Popup(menu, view, {point.x + kPopupOffset, point.y + kPopupOffset, 1, 1});
  menuOpen = false;
  return chosenIndex;
}

bool HXMenu::IsOpen() { return menuOpen; }
