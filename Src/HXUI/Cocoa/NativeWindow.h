#pragma once

#include <cstdint>
#include <string>

#include "Src/HXUI/Cocoa/NativeTypes.h"
#include "Src/HXUI/HXTypes.h"

class HXWindow;

/// What the plain C++ `HXWindow` asks of a platform window. A null window is
/// taken everywhere; nothing happens then, or zeros come back. Main thread only.
namespace NativeWindow {

struct Style {
  bool resizable = false;
  bool borderless = false;
  bool floating = false;
  bool worksWhenModal = false;
};

/// A hidden window with a content view of its own, both held by the caller
/// through one reference to the window. `contentBottom` counts from the top of
/// the screen.
NSWindow* Create(HXWindow* owner, HXPoint contentBottom, HXSize size, const std::string& title,
                 Style style);
/// A delegate that forwards to `owner` until `Release`.
HXWindowDelegate* Attach(NSWindow* window, HXWindow* owner);
/// Takes delegate and widget off the window and gives both references back.
void Release(NSWindow* window, HXWindowDelegate* windowDelegate);

NSView* GetContentView(NSWindow* window);
void Close(NSWindow* window);
HXPoint GetFrameOrigin(NSWindow* window);
void SetFrameOrigin(NSWindow* window, HXPoint origin);
void SetContentSize(NSWindow* window, HXSize size);
void SetContentMinSize(NSWindow* window, HXSize size);
/// Key and to the front, or off the screen.
void SetVisible(NSWindow* window, bool show);
void OrderFront(NSWindow* window);
void SetAlpha(NSWindow* window, float alpha);
void Center(NSWindow* window);
void Zoom(NSWindow* window);
bool IsZoomed(NSWindow* window);
bool IsKey(NSWindow* window);

/// Of the first screen, cut to an integer; 0 without a screen.
std::int32_t GetScreenHeight();

/// The platform's modal session, in front of the window that `ownerView` is in;
/// `ownerView` may be nil. The handle goes to the calls below.
void* BeginModal(NSWindow* window, NSView* ownerView);
/// Serves the events that are there. False when the session has been stopped.
bool ServeModalEvents(void* session);
/// Waits in the default mode for the next input or timer and lets it act.
void WaitForInput();
/// Stops the session of `window` if it is the innermost one, and ends a wait for
/// input; the session must not be ended before the calls above have returned.
void StopModal(NSWindow* window);
void EndModal(void* session);

}  // namespace NativeWindow
