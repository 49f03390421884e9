#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "Src/HXUI/Cocoa/NativeTypes.h"
#include "Src/HXUI/HXEventSinkRecord.h"
#include "Src/HXUI/HXTypes.h"
#include "Src/HXUI/MouseKind.h"

class HXLayout;

/// The root of every widget and window. Keeps the widget tree, the state that
/// all widgets share, and the virtual operations through which native events
/// arrive; an owner hears of its widgets through the notification hook.
///
/// Ownership: a widget is created on the heap with its parent, belongs to the
/// parent from then on, and is deleted with it; deleting it earlier is allowed
/// at any time, also from within its own callbacks. Windows belong to whoever
/// constructs them. Everything here runs on the main thread, except `Redraw`,
/// which any thread may call while the widget lives.
class HXObject {
 public:
  /// A member function of an owner that hears of a widget's mouse events;
  /// the code is a `MouseKind`.
  using NotificationHook = void (HXObject::*)(std::uint32_t eventCode);

  enum Edge : std::uint32_t { kBottom = 0, kRight = 1 };

  virtual ~HXObject();
  HXObject(const HXObject&) = delete;
  HXObject& operator=(const HXObject&) = delete;

  // The virtual operations, in slot order.

  /// Gives up the keyboard and leaves the screen. Works once; cannot be undone.
  virtual void Close();
  /// Background colour. Does not redraw.
  virtual void SetColor(HXColor newColor);
  /// Origin of the widget in its parent's coordinates, in pixels.
  virtual HXPoint GetPosition() const = 0;
  virtual void SetPosition(HXPoint position) = 0;
  /// Extent in pixels.
  virtual HXSize GetSize() const = 0;
  virtual void SetSize(HXSize size) = 0;
  /// A stored value only; windows also impose it on the user's resizing.
  virtual HXSize GetMinSize() const;
  virtual void SetMinSize(HXSize size);
  /// Hiding also takes the keyboard and the mouse capture from the widget and
  /// everything below it.
  virtual void SetVisible(bool show);
  /// Takes the keyboard, unless the widget has it already.
  virtual void SetFocus();
  /// True when the widget has the keyboard and its window is the key window.
  virtual bool HasFocus() const;
  /// Owns `newLayout` (or none) and applies it at once and on every resize.
  virtual void SetLayout(std::unique_ptr<HXLayout> newLayout);
  virtual void ExtraHook1();
  virtual void ExtraHook2();
  /// The window that this widget is, or is in, is about to close.
  virtual void OnClose();
  /// A native text field of this widget got the keyboard.
  virtual void OnFocusGained();
  /// The keyboard went elsewhere, the window stopped being key, or text editing ended.
  virtual void OnFocusLost();
  /// Paints the widget; called by the platform when needed. The default fills
  /// the widget with its colour, unless that is the transparent key.
  virtual void Draw();
  /// A key (`KeyCode` or UTF-16 unit) while the widget has the keyboard.
  /// False swallows it; true, the default, lets the platform interpret it.
  virtual bool OnKeyDown(int key);
  virtual void ExtraHook3();
  virtual void OnMouse(MouseKind kind);
  /// The size has changed, or the position; layout and anchors have been applied
  /// already. May delete this widget, but not a parent that is just laying it out.
  virtual void OnSize();
  virtual void OnTimer(int timerId);
  /// A file was dropped; the path is absolute, in UTF-8. True accepts it.
  virtual bool OnDropFile(const char* path);
  /// An event that is about to reach some widget; see `AddEventSink`.
  virtual void OnEventSink(HXEventSinkRecord& record);

  // The tree.

  HXObject* GetParent() const { return parent; }
  /// In creation order.
  const std::vector<HXObject*>& GetChildren() const { return children; }
  /// The view that this widget draws into; null before it is built and after it is gone.
  NSView* GetNativeView() const { return nativeView; }
  /// Adds `view` inside this widget's view, which retains it.
  void AddChildView(NSView* view);

  // State.

  HXColor GetColor() const { return color; }
  bool IsVisible() const { return visible; }
  bool IsHovered() const { return hovered; }
  bool IsClosed() const { return closed; }
  /// A disabled object is left out as an event sink. Controls decide for
  /// themselves how they look while disabled; they go on receiving events.
  void SetEnabled(bool enable) { enabled = enable; }
  bool IsEnabled() const { return enabled; }
  /// Freezing this widget and everything below it stops drawing and mouse
  /// events. Counts: it takes as many calls with false to undo.
  void SetFrozen(bool freeze);
  bool IsFrozen() const { return freezeDepth > 0; }

  // Notification.

  /// Binds `hook` of `owner`, which must outlive this widget or be unbound
  /// with a null owner, and gives the widget its command id `newId`.
  template <class Owner>
  void SetHook(Owner* owner, void (Owner::*newHook)(std::uint32_t), std::uint32_t newId) {
    hookTarget = owner;
    hook = static_cast<NotificationHook>(newHook);
    commandId = newId;
  }
  /// Runs the hook with `eventCode`; the owner reads `GetSender` meanwhile.
  void Notify(std::uint32_t eventCode);
  std::uint32_t GetId() const { return commandId; }
  /// Of the owner: the widget that notified last, and its command id.
  HXObject* GetSender() const { return sender; }
  std::uint32_t GetSenderId() const { return senderId; }

  // Drawing.

  /// Asks for a redraw at the end of the current event. Any thread.
  void Redraw();
  /// Draws now what has been asked for.
  void RedrawNow();

  // Mouse and keyboard.

  /// All mouse events of the process go to this widget until `ReleaseMouse`.
  /// Also takes the keyboard.
  void CaptureMouse();
  void ReleaseMouse();
  /// False as well when the window took the capture back behind our back.
  bool HasMouseCapture();
  /// The pointer in pixels: in this widget's coordinates, or with `screen` in
  /// the screen's, whose y grows upward.
  HXPoint GetMousePosition(bool screen) const;
  /// From this widget's coordinates to the screen's (y grows upward).
  HXPoint ClientToScreen(HXPoint point) const;
  /// The widget that has the keyboard of the key window; null when none, or a native text field,
  /// has it.
  static HXObject* GetFocusedObject();
  /// Whether files may be dropped onto this widget.
  void SetAcceptsFileDrops(bool accept);

  // Placement.

  /// Keeps `child` at `margin` pixels from the given edge on every resize.
  void AddAnchor(HXObject* child, Edge edge, std::int32_t margin);
  /// Applies layout and anchors at the present size, then calls `OnSize`.
  void ResizeContent();

  /// From now on `sink` sees keys, wheel turns and uncaptured mouse events
  /// before the widgets do; the sink added last sees them first. Ends with the
  /// sink's destruction.
  static void AddEventSink(HXObject* sink);

 protected:
  explicit HXObject(HXObject* parentObject);

  /// Calls `OnClose` here and on everything below in the same window, parents first.
  void NotifyClose();

  /// Ends the capture if this widget or one below it holds it: whoever leaves
  /// the screen must not keep the pointer.
  void GiveUpCapture();

  /// Set by the subclass that builds the native side.
  NSView* nativeView = nullptr;
  HXColor color;
  HXSize minSize;
  bool visible = false;
  bool closed = false;

 private:
  friend class HXMouseRouter;

  struct Anchor {
    HXObject* child;
    Edge edge;
    std::int32_t margin;
  };

  void RemoveChild(HXObject* child);
  void ApplyAnchors();

  NotificationHook hook = nullptr;
  HXObject* hookTarget = nullptr;
  HXObject* sender = nullptr;
  std::uint32_t commandId = 0;
  std::uint32_t senderId = 0;
  bool pressed = false;
  bool hovered = false;
  bool enabled = true;
  std::vector<HXObject*> children;
  HXObject* parent;
  std::unique_ptr<HXLayout> layout;
  std::vector<Anchor> anchors;
  std::int32_t freezeDepth = 0;
};
