#include "examples/gallery/DragPanel.h"

#include <algorithm>
#include <utility>

#include "Src/HXUI/Cocoa/HXCocoaDC.h"
#include "examples/gallery/GalleryStyle.h"

namespace {

constexpr std::int32_t kHandleSize = 16;

}  // namespace

DragPanel::DragPanel(HXObject* parentObject, HXPoint position, HXSize size,
                     std::function<void(const std::string&)> writeLine)
    : HXPanel(parentObject, position, size),
      write(std::move(writeLine)),
      handle{size.width / 2, size.height / 2} {
  SetColor(GalleryStyle::kPanel);
}

void DragPanel::Draw() {
  HXCocoaDC dc(this);
  const HXSize size = GetSize();
  dc.SetFillColor(GetColor());
  dc.SetStroke(GalleryStyle::kFrame, 1);
  dc.DrawRect({0, 0, size.width, size.height});
  dc.SetTextColor(GalleryStyle::kText);
  dc.SetFont(GalleryStyle::kFont, 0, GalleryStyle::kTextSize);
  dc.DrawText("Drag here; then type", {8, 8, 0, 0}, 0);
  dc.SetStroke(GalleryStyle::kTransparent, 1);
  dc.SetFillColor(GalleryStyle::kAccent);
  dc.DrawRect({handle.x - kHandleSize / 2, handle.y - kHandleSize / 2, kHandleSize, kHandleSize});
}

void DragPanel::OnMouse(MouseKind kind) {
  if (kind == kLeftDown) {
    // From now on all mouse events come here, wherever the pointer is.
    CaptureMouse();
    write("Drag: captured");
    FollowPointer();
  } else if (kind == kMouseMove && HasMouseCapture()) {
    FollowPointer();
  } else if (kind == kLeftUp && HasMouseCapture()) {
    ReleaseMouse();
    write("Drag: released");
  }
}

bool DragPanel::OnKeyDown(int key) {
  write("Drag: key " + std::to_string(key));
  return true;
}

void DragPanel::FollowPointer() {
  // Events carry no position; it is asked for when it is needed.
  const HXPoint pointer = GetMousePosition(false);
  const HXSize size = GetSize();
  constexpr std::int32_t kInset = kHandleSize / 2 + 1;
  handle.x = std::clamp(pointer.x, kInset, size.width - kInset);
  handle.y = std::clamp(pointer.y, kInset, size.height - kInset);
  Redraw();
}
