#pragma once

#include <vector>

#include "Src/HXUI/Cocoa/HXCocoaTimer.h"
#include "Src/HXUI/HXWindow.h"

class EventLog;
class GalleryView;
class HXPanel;
class HXSystemButton;
class ValuesPanel;

/// The gallery's only window: buttons on the left that choose a view, the view
/// itself, and below it the values that its controls edit beside the log of
/// their notifications. Owned by the application delegate; starts hidden.
class GalleryWindow : public HXWindow {
 public:
  GalleryWindow();

  void Draw() override;
  /// Gives every view the room that the layout has left for them.
  void OnSize() override;
  /// Whatever changes a bound value tells nobody; so they are read again and again.
  void OnTimer(int timerId) override;

 private:
  void BuildPanels();
  void BuildViews();
  void AddView(GalleryView* view, const char* name);
  /// The hook of the buttons on the left.
  void OnChooseView(std::uint32_t eventCode);
  void ShowView(std::size_t index);
  void ShowValues();

  HXPanel* navigation = nullptr;
  HXPanel* pages = nullptr;
  ValuesPanel* values = nullptr;
  EventLog* log = nullptr;
  std::vector<HXSystemButton*> buttons;
  std::vector<GalleryView*> views;
  std::size_t shown = 0;
  /// Stops by itself when the window is destroyed.
  HXCocoaTimer valuesTimer;
};
