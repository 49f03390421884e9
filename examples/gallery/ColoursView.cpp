#include "examples/gallery/ColoursView.h"

#include <array>
#include <cstdio>

#include "Src/HXUI/Cocoa/HXCocoaDC.h"
#include "Src/HXUI/HXColorPicker.h"
#include "examples/gallery/GalleryStyle.h"

namespace {

enum Command : std::uint32_t { kWarm, kCool };

std::string Hex(HXColor color) {
  std::array<char, 16> text{};
  std::snprintf(text.data(), text.size(), "#%02X%02X%02X", color.red, color.green, color.blue);
  return text.data();
}

}  // namespace

ColoursView::ColoursView(HXObject* parentObject, EventLog& log) : GalleryView(parentObject, log) {
  AddHeading({20, 14}, "HXColorPicker and HXColorDialog");
  AddCaption({20, 46}, "Warm");
  auto* warmPicker = new HXColorPicker(this, {150, 44}, &warm);
  warmPicker->SetChangeHandler(&ColoursView::OnColour, this, kWarm);
  AddCaption({20, 76}, "Cool");
  auto* coolPicker = new HXColorPicker(this, {150, 74}, &cool);
  coolPicker->SetChangeHandler(&ColoursView::OnColour, this, kCool);
  AddCaption({20, 106}, "Unbound: inert");
  new HXColorPicker(this, {150, 104}, nullptr);
  AddCaption({20, 136}, "Larger");
  auto* larger = new HXColorPicker(this, {150, 134}, &warm);
  larger->SetSize({60, 24});
  larger->SetChangeHandler(&ColoursView::OnColour, this, kWarm);
  AddCaption({260, 46}, "The colours are edited live while the dialog is open:");
}

void ColoursView::OnColour(HXObject* target, std::uint32_t command, HXControl*, int notification) {
  auto* view = static_cast<ColoursView*>(target);
  const char* name = command == kWarm ? "Warm" : "Cool";
  view->Log(std::string(name) + ": notification " + std::to_string(notification));
  // The gradient and the other pickers of the same colour know nothing of the
  // change.
  view->Redraw();
}

void ColoursView::Draw() {
  GalleryView::Draw();
  HXCocoaDC dc(this);
  dc.FillGradient({260, 74, 460, 84}, warm, cool, false);
  dc.SetStroke(GalleryStyle::kFrame, 1);
  dc.DrawRect({260, 74, 460, 84});
}

std::string ColoursView::Values() const {
  return Line("warm", Hex(warm)) + Line("cool", Hex(cool));
}
