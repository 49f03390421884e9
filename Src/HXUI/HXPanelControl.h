#pragma once

#include "Src/HXUI/HXControl.h"
#include "Src/HXUI/HXPanel.h"

/// A panel that edits a value: the base of the check boxes, the combo box, the
/// numeric field and the colour picker. Owned by its parent.
class HXPanelControl : public HXPanel, public HXControl {
 public:
  using HXPanel::HXPanel;

 protected:
  /// Reports a change; false when the owner's callback has deleted this control.
  bool NotifyOwner(int notification) { return NotifyChange(this, notification); }
};
