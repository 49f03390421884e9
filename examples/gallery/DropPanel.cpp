#include "examples/gallery/DropPanel.h"

#include <utility>

#include "Src/HXUI/Cocoa/HXCocoaDC.h"
#include "examples/gallery/GalleryStyle.h"

DropPanel::DropPanel(HXObject* parentObject, HXPoint position, HXSize size,
                     std::function<void(const std::string&)> writeLine)
    : HXPanel(parentObject, position, size), write(std::move(writeLine)) {
  SetColor(GalleryStyle::kPanel);
  SetAcceptsFileDrops(true);
}

void DropPanel::Draw() {
  HXCocoaDC dc(this);
  const HXSize size = GetSize();
  dc.SetFillColor(GetColor());
  dc.SetStroke(GalleryStyle::kFrame, 1);
  dc.DrawRect({0, 0, size.width, size.height});
  dc.SetTextColor(GalleryStyle::kText);
  dc.SetFont(GalleryStyle::kFont, 0, GalleryStyle::kTextSize);
  dc.DrawText(path.empty() ? "Drop a file here" : path, {8, 8, size.width - 16, size.height - 16},
              0);
}

bool DropPanel::OnDropFile(const char* droppedPath) {
  path = droppedPath;
  write("Dropped: " + path.substr(path.rfind('/') + 1));
  Redraw();
  return true;
}
