#pragma once

#include <deque>
#include <string>

#include "Src/HXUI/HXPanel.h"

class HXSystemButton;

/// The last lines of what the controls have told their owners, the newest at
/// the bottom, with a button that clears them. Owned by its parent.
class EventLog : public HXPanel {
 public:
  EventLog(HXObject* parent, HXPoint position, HXSize size);

  /// One line of UTF-8. Lines are counted, so that two equal ones in a row can
  /// be told apart.
  void Add(const std::string& line);

  void Draw() override;

 private:
  void OnClear(std::uint32_t eventCode);

  std::deque<std::string> lines;
  int count = 0;
};
