#pragma once

#include <cstdint>
#include <string>

#include "Src/HXUI/Cocoa/HXBitmap.h"
#include "Src/HXUI/HXControl.h"
#include "Src/HXUI/HXPanel.h"

class HXBrowserSearchBox;
class HXButton;
class HXCocoaDC;

/// A search bar: a dark strip with a sunken text field, a magnifier while the
/// field is idle and a button that clears it while there is text. Made for a
/// height of 30 pixels. Owned by its parent.
///
/// The owner hears `kChangeDone` when the text has changed, by typing or by
/// clearing, and again when a key comes up in the field: twice for a letter, and
/// once for a key that only moves the caret. Tab, Return and Escape that come up
/// are left out. It hears nothing of the focus.
class HXBrowserSearch : public HXPanel, public HXControl {
 public:
  /// `text` is what the field holds at first, in UTF-8; `flags` are the
  /// field's `HXTextControl::Flags`, to which "no focus ring" is added.
  HXBrowserSearch(HXObject* parent, HXPoint position, HXSize size, const std::string& text,
                  std::uint32_t flags);
  ~HXBrowserSearch() override;

  /// What the field holds: "Search..." while it is empty and idle.
  std::string GetText() const;
  /// Empties the field and takes the keyboard from it.
  void Clear();

  void Draw() override;
  void OnSize() override;
  /// Passes the keyboard on to the field.
  void OnFocusGained() override;

 private:
  static void OnBoxChange(HXObject* target, std::uint32_t command, HXControl* sender,
                          int notification);
  void OnClearButton(std::uint32_t eventCode);
  void OnFocusChanged();
  void OnTextChanged();
  void DrawWell(HXCocoaDC& dc, HXSize size);

  HXBrowserSearchBox* box;
  HXButton* clearButton;
  HXBitmap icon;
  bool showIcon = true;
};
