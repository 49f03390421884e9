#include "Src/HXUI/HXWindow.h"

#include "Src/HXUI/Cocoa/NativeView.h"
#include "Src/HXUI/Cocoa/NativeWindow.h"
#include "Src/HXUI/HXObjectGuard.h"

HXWindow::HXWindow(HXObject* parentObject, HXPoint position, HXSize size, const std::string& title,
                   std::uint32_t flags)
    : HXObject(parentObject) {
  const NativeWindow::Style style{.resizable = (flags & kResizable) != 0,
                                  .borderless = (flags & kBorderless) != 0,
                                  .floating = (flags & kFloating) != 0,
                                  .worksWhenModal = (flags & kWorksWhenModal) != 0};
  window = NativeWindow::Create(this, position, size, title, style);
  windowDelegate = NativeWindow::Attach(window, this);
  nativeView = NativeWindow::GetContentView(window);
  HXWindow::SetMinSize(size);
}

HXWindow::HXWindow(NSWindow* existingWindow)
    : HXObject(nullptr), window(existingWindow), ownsWindow(false) {
  nativeView = NativeWindow::GetContentView(window);
  closed = true;
}

HXWindow::~HXWindow() {
  HXWindow::Close();
  // Close has done nothing to a window that is not ours.
  GiveUpCapture();
  if (ownsWindow) NativeWindow::Release(window, windowDelegate);
  nativeView = nullptr;
}

void HXWindow::Close() {
  if (closed) return;
  closed = true;
  GiveUpCapture();
  NativeWindow::Close(window);
}

HXPoint HXWindow::GetPosition() const { return NativeWindow::GetFrameOrigin(window); }
void HXWindow::SetPosition(HXPoint position) { NativeWindow::SetFrameOrigin(window, position); }
HXSize HXWindow::GetSize() const { return NativeView::GetSize(nativeView); }
void HXWindow::SetSize(HXSize size) { NativeWindow::SetContentSize(window, size); }

void HXWindow::SetMinSize(HXSize size) {
  HXObject::SetMinSize(size);
  NativeWindow::SetContentMinSize(window, size);
}

void HXWindow::SetVisible(bool show) {
  visible = show;
  if (!show) GiveUpCapture();
  NativeWindow::SetVisible(window, show);
}

bool HXWindow::CanClose() { return true; }

void HXWindow::Show() {
  visible = true;
  NativeWindow::OrderFront(window);
}

void HXWindow::SetRect(HXRect rect) {
  SetSize({rect.width, rect.height});
  SetPosition({rect.x, rect.y});
}

void HXWindow::SetAlpha(float alpha) { NativeWindow::SetAlpha(window, alpha); }
void HXWindow::Center() { NativeWindow::Center(window); }
void HXWindow::Zoom() { NativeWindow::Zoom(window); }
bool HXWindow::IsZoomed() const { return NativeWindow::IsZoomed(window); }
bool HXWindow::IsKeyWindow() const { return NativeWindow::IsKey(window); }

HXPoint HXWindow::GetOffsetOf(const HXObject& child) const {
  return NativeView::GetOffset(child.GetNativeView(), nativeView);
}

int HXWindow::RunModal() {
  HXObject* const owner = GetParent();
  const HXObjectGuard guard(this);
  const HXObjectGuard ownerGuard(owner);
  visible = true;
  modal = true;
  result = 0;
  if (owner != nullptr) owner->SetEnabled(false);

  void* const session =
      NativeWindow::BeginModal(window, owner == nullptr ? nullptr : owner->GetNativeView());
  while (guard.IsAlive() && modal) {
    // A stopped session serves no more events, so the run is over even when
    // nobody has closed the window.
    const bool running = NativeWindow::ServeModalEvents(session);
    if (!guard.IsAlive()) break;
    if (!running) modal = false;
    if (modal) NativeWindow::WaitForInput();
  }
  NativeWindow::EndModal(session);
  // The end of a run inside this one has brought the window back to the front.
  if (guard.IsAlive() && closed && ownsWindow) NativeWindow::SetVisible(window, false);

  if (ownerGuard.IsAlive()) owner->SetEnabled(true);
  return guard.IsAlive() ? static_cast<int>(result) : 0;
}

void HXWindow::EndModal() {
  if (!modal) return;
  modal = false;
  NativeWindow::StopModal(window);
}

void HXWindow::RequestClose() {
  const HXObjectGuard guard(this);
  if (!CanClose() || !guard.IsAlive()) return;
  result = 1;
  Close();
}

bool HXWindow::CloseButtonPressed() {
  const HXObjectGuard guard(this);
  RequestClose();
  return guard.IsAlive() && closed;
}

void HXWindow::WindowWillClose() {
  const HXObjectGuard guard(this);
  NotifyClose();
  if (guard.IsAlive()) EndModal();
}
