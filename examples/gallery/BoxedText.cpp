#include "examples/gallery/BoxedText.h"

#include <utility>

#include "Src/HXUI/Cocoa/HXCocoaDC.h"
#include "Src/HXUI/HXTextBox.h"
#include "Src/HXUI/KeyCode.h"
#include "examples/gallery/GalleryStyle.h"

BoxedText::BoxedText(HXObject* parentObject, HXPoint position, HXSize size,
                     std::function<void(const std::string&)> writeLine)
    : HXPanel(parentObject, position, size), write(std::move(writeLine)) {
  SetColor(GalleryStyle::kPanel);
  // The box finds its owner by itself: its parent.
  auto* box = new HXTextBox(this, {4, 4}, {size.width - 8, size.height - 8}, taken,
                            HXTextControl::kNoFocusRing);
  box->SetColor(GalleryStyle::kPanel);
  box->SetTextColor(GalleryStyle::kWhite);
}

void BoxedText::Draw() {
  HXCocoaDC dc(this);
  const HXSize size = GetSize();
  dc.SetFillColor(GetColor());
  dc.SetStroke(GalleryStyle::kAccent, 1);
  dc.DrawRect({0, 0, size.width, size.height});
}

void BoxedText::OnTextBoxFocusLost(HXTextBox& box) {
  taken = box.GetText();
  write("Box: left with \"" + taken + "\"");
}

bool BoxedText::OnTextBoxKeyDown(HXTextBox& box, int key) {
  if (key == kKeyInsertNewline) {
    taken = box.GetText();
    write("Box: took \"" + taken + "\"");
    return false;
  }
  if (key == kKeyEscape) {
    box.SetText(taken);
    write("Box: back to \"" + taken + "\"");
    return false;
  }
  if (key < '0' || key > '9') return true;
  write("Box: no digits");
  return false;
}
