#pragma once

#include <cstdint>
#include <string>

#include "Src/HXUI/Cocoa/NativeTypes.h"
#include "Src/HXUI/HXTypes.h"

class HXObject;

/// A popup menu over the platform's own menu. Made on the stack of whoever
/// shows it, filled, and run once with `Popup`. Only one menu can be open at a
/// time: the chosen index is one for the whole toolkit. Main thread only.
class HXMenu {
 public:
  /// `ownerWidget` is where the menu opens; not owned, may be null for a submenu.
  explicit HXMenu(HXObject* ownerWidget);
  ~HXMenu();
  HXMenu(const HXMenu&) = delete;
  HXMenu& operator=(const HXMenu&) = delete;

  /// `index` is what `Popup` returns when this item is chosen: anything but 0,
  /// which stands for none. An empty text, or one that is not valid UTF-8,
  /// becomes "Menu Item".
  void AddItem(std::int32_t index, const std::string& text, bool checked, bool enabled);
  /// An item that opens `submenu`; the platform keeps what it needs of it.
  void AddSubmenu(const HXMenu& submenu, std::int32_t index, const std::string& text, bool checked,
                  bool enabled);
  void AddSeparator();

  /// Opens the menu 10 pixels right of and below `point` (in the owner's
  /// coordinates) and waits until it closes. Returns the chosen item's index,
  /// or 0 when nothing was chosen. The owner may be gone by then.
  std::int32_t Popup(HXPoint point);

  /// While `Popup` of some menu runs.
  static bool IsOpen();

  NSMenu* GetNativeMenu() const { return menu; }

 private:
  HXObject* owner;
  NSMenu* menu;
};
