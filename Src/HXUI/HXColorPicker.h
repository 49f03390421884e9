#pragma once

#include "Src/HXUI/HXPanelControl.h"

/// A swatch of a colour of its owner; a press opens the colour dialog, which
/// edits the colour in place. Owned by its parent.
///
/// The owner hears `kChangeBegins` before the dialog opens, `kChangeStep` for
/// each live change and once more when it is cancelled, and `kChangeDone` when
/// it is accepted.
class HXColorPicker : public HXPanelControl {
 public:
  /// 30 by 14 pixels. `boundColor` may be null, which makes the swatch inert,
  /// and otherwise must outlive it.
  HXColorPicker(HXObject* parent, HXPoint position, HXColor* boundColor);

  void Draw() override;
  void OnMouse(MouseKind kind) override;

 private:
  void OpenDialog();
  static void OnDialogChange(HXObject* target, std::uint32_t command, HXControl* sender,
                             int notification);

  HXColor* color;
  bool hover = false;
};
