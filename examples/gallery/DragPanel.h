#pragma once

#include <functional>
#include <string>

#include "Src/HXUI/HXPanel.h"

/// A small square that can be dragged about. The pointer is captured meanwhile,
/// so the square follows it beyond the panel, as far as the edge. With the
/// panel clicked, keys are written down as well. Owned by its parent.
class DragPanel : public HXPanel {
 public:
  /// `writeLine` hears of the press, the release and the keys.
  DragPanel(HXObject* parent, HXPoint position, HXSize size,
            std::function<void(const std::string&)> writeLine);

  /// The middle of the square, in the panel's coordinates.
  HXPoint GetHandle() const { return handle; }

  void Draw() override;
  void OnMouse(MouseKind kind) override;
  bool OnKeyDown(int key) override;

 private:
  void FollowPointer();

  std::function<void(const std::string&)> write;
  HXPoint handle;
};
