#pragma once

#include <cstdint>

#include "Src/HXUI/Cocoa/HXBitmap.h"
#include "Src/HXUI/HXPanel.h"

/// A button whose face is a picture; a white frame shows that the pointer is
/// over it. Owned by its parent. The owner binds a notification hook and takes
/// `kLeftUp` as the click.
class HXButton : public HXPanel {
 public:
  /// `bytes` hold a picture as `HXBitmap::LoadFromBytes` takes it and are
  /// copied. The widget takes the picture's size in pixels, whatever `size`
  /// says; with `twoFaces` the picture holds two faces of equal width side by
  /// side and the widget is half as wide. An undecodable picture gives a widget
  /// of 0 by 0.
  HXButton(HXObject* parent, HXPoint position, HXSize size, const unsigned char* bytes,
           std::uint32_t length, bool twoFaces);

  /// A dark veil over the face, in place of the hover frame. Like the two
  /// setters below this does not redraw.
  void SetDimmed(bool dim) { dimmed = dim; }
  /// 0 shows the left face, 1 the right one, when there are two.
  void SetFace(std::int32_t newFace) { face = newFace; }
  /// Normally follows the pointer.
  void SetHover(bool newHover) { hover = newHover; }

  void Draw() override;
  void OnMouse(MouseKind kind) override;

 private:
  HXBitmap image;
  bool twoFaces;
  bool hover = false;
  bool dimmed = false;
  std::int32_t face = 0;
};
