#pragma once

#include <cstdint>
#include <string>

#include "Src/HXUI/Cocoa/NativeTypes.h"
#include "Src/HXUI/HXTypes.h"

/// What the plain C++ `HXMenu` asks of a platform menu. Main thread only.
namespace NativeMenu {

struct Item {
  /// Written to `*indexPtr` when the item is clicked; the integer must outlive the menu.
  std::int32_t index = 0;
  std::int32_t* indexPtr = nullptr;
  /// UTF-8; "Menu Item" stands for an empty or invalid text.
  std::string text;
  bool checked = false;
  bool enabled = true;
};

/// An empty menu whose items keep the enabled state that they are given. The
/// caller owns one reference and ends it with `Destroy`.
NSMenu* Create();
void Destroy(NSMenu* menu);

void AddItem(NSMenu* menu, const Item& item);
void SetSubmenuOfLastItem(NSMenu* menu, NSMenu* submenu);
void AddSeparator(NSMenu* menu);

/// Opens `menu` as a popup at `anchor` (in the view's coordinates) and returns
/// when it has closed. Nothing happens without a view in a window.
void Popup(NSMenu* menu, NSView* view, HXRect anchor);

}  // namespace NativeMenu
