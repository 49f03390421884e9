#include "Src/HXUI/HXPanel.h"

#include "Src/HXUI/Cocoa/NativeView.h"

HXPanel::HXPanel(HXObject* parentObject, HXPoint position, HXSize size) : HXObject(parentObject) {
  Adopt(NativeView::Create(this, {position.x, position.y, size.width, size.height}), size);
}

HXPanel::HXPanel(HXObject* parentObject, NSView* view, HXSize size) : HXObject(parentObject) {
  Adopt(view, size);
}

void HXPanel::Adopt(NSView* view, HXSize size) {
  nativeView = view;
  if (GetParent() != nullptr) GetParent()->AddChildView(nativeView);
  HXPanel::SetMinSize(size);
  HXPanel::SetVisible(true);
}

HXPanel::~HXPanel() {
  HXPanel::Close();
  NativeView::Destroy(nativeView);
  nativeView = nullptr;
}

HXPoint HXPanel::GetPosition() const { return NativeView::GetPosition(nativeView); }
void HXPanel::SetPosition(HXPoint position) { NativeView::SetPosition(nativeView, position); }
HXSize HXPanel::GetSize() const { return NativeView::GetSize(nativeView); }
void HXPanel::SetSize(HXSize size) { NativeView::SetSize(nativeView, size); }
