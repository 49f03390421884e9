#pragma once

#include "Src/HXUI/HXObject.h"

/// A widget with a native view of its own inside its parent's view. The base
/// of every control, and useful by itself as a coloured area that holds
/// others. Owned by its parent.
class HXPanel : public HXObject {
 public:
  /// Position in the parent's coordinates and size in pixels; the size also
  /// becomes the minimum size. The panel is visible at once.
  HXPanel(HXObject* parent, HXPoint position, HXSize size);
  ~HXPanel() override;

  HXPoint GetPosition() const override;
  void SetPosition(HXPoint position) override;
  HXSize GetSize() const override;
  void SetSize(HXSize size) override;

 protected:
  /// For panels around a platform control: takes over one reference to `view`,
  /// which is added to the parent's view as it is.
  HXPanel(HXObject* parent, NSView* view, HXSize size);

 private:
  void Adopt(NSView* view, HXSize size);
};
