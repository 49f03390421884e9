#include "Src/HXUI/HXColorPicker.h"

#include "Src/HXUI/Cocoa/HXCocoaDC.h"
#include "Src/HXUI/HXColorDialog.h"
#include "Src/HXUI/HXObjectGuard.h"

namespace {

constexpr HXSize kSize{30, 14};
constexpr HXColor kUnbound{100, 100, 100, 255};
constexpr HXColor kWhite{255, 255, 255, 255};
constexpr HXColor kBlack{0, 0, 0, 255};
constexpr HXColor kRed{255, 0, 0, 255};

}  // namespace

HXColorPicker::HXColorPicker(HXObject* parentObject, HXPoint position, HXColor* boundColor)
    : HXPanelControl(parentObject, position, kSize), color(boundColor) {}

void HXColorPicker::Draw() {
  HXCocoaDC dc(this);
  const HXSize size = GetSize();
  dc.SetFillColor(color == nullptr ? kUnbound
                                   : HXColor{color->red, color->green, color->blue, 255});
  dc.SetStroke(hover ? kWhite : kBlack, 1);
  dc.DrawRect({0, 0, size.width, size.height});
  if (color != nullptr) return;

  const std::int32_t left = (size.width - size.height) / 2;
  const std::int32_t right = left + size.height;
  dc.SetStroke(kBlack, 2);
  dc.DrawLine({left, 1}, {right, size.height + 1});
  dc.SetStroke(kRed, 2);
  dc.DrawLine({left, 0}, {right, size.height});
}

void HXColorPicker::OnMouse(MouseKind kind) {
  const HXObjectGuard guard(this);
  switch (kind) {
    case kMouseEntered:
      hover = true;
      break;
    case kMouseExited:
      hover = false;
      break;
    case kLeftDown:
      if (color != nullptr) OpenDialog();
      break;
    default:
      return;
  }
  if (guard.IsAlive()) Redraw();
}

void HXColorPicker::OpenDialog() {
  // Belongs to this widget, which may be deleted while the dialog runs.
  auto* dialog = new HXColorDialog(this, color);
  const HXObjectGuard guard(dialog);
  dialog->SetChangeHandler(&HXColorPicker::OnDialogChange, this, 0);
  if (!NotifyOwner(kChangeBegins) || !guard.IsAlive()) return;
  dialog->RunModal();
  delete guard.Get();
}

void HXColorPicker::OnDialogChange(HXObject* target, std::uint32_t, HXControl*, int notification) {
  auto* picker = static_cast<HXColorPicker*>(target);
  if (picker->NotifyOwner(notification)) picker->Redraw();
}
