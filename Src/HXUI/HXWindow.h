#pragma once

#include <cstdint>
#include <string>

#include "Src/HXUI/HXObject.h"

/// A top-level window: a widget whose native side is a platform window with
/// one content view. The wizard and every dialog derive from it. Belongs to
/// whoever constructs it; with a parent it is also deleted with the parent.
/// Main thread only; lengths in pixels.
class HXWindow : public HXObject {
 public:
  /// Creation flags, to be added.
  enum Flags : std::uint32_t {
    kResizable = 1,
    /// No title bar and no close button; can become key all the same.
    kBorderless = 2,
    /// Above ordinary windows (level 101).
    kFloating = 4,
    /// Passed by the wizard; changes nothing.
    kWizard = 8,
    /// Stays usable while another window runs modally.
    kWorksWhenModal = 16,
  };

  /// The window starts hidden. `position.y` is where the bottom edge of the
  /// content lands, counted from the top of the screen: callers centre or
  /// place the window afterwards. `title` is UTF-8.
  HXWindow(HXObject* parent, HXPoint position, HXSize size, const std::string& title,
           std::uint32_t flags);
  /// Around a window that somebody else owns: it is neither closed nor released by this object.
  explicit HXWindow(NSWindow* existingWindow);
  ~HXWindow() override;

  /// Closes the platform window, once. Asks nobody; see `RequestClose`.
  void Close() override;
  /// The frame's origin in screen coordinates (bottom left, y upward), cut to integers.
  HXPoint GetPosition() const override;
  void SetPosition(HXPoint position) override;
  /// The content's size.
  HXSize GetSize() const override;
  void SetSize(HXSize size) override;
  /// Also the smallest size that the user can give the content.
  void SetMinSize(HXSize size) override;
  /// True makes the window key and brings it to the front.
  void SetVisible(bool show) override;

  /// Asked before the window closes on the user's request.
  virtual bool CanClose();

  /// To the front without becoming key.
  void Show();
  void SetRect(HXRect rect);
  /// 0 is invisible, 1 is opaque.
  void SetAlpha(float alpha);
  /// Where the platform puts a centred window: in the middle, or somewhat above it.
  void Center();
  void Zoom();
  bool IsZoomed() const;
  bool IsKeyWindow() const;
  /// Where the child's origin lies in the content, in pixels from its top left.
  HXPoint GetOffsetOf(const HXObject& child) const;

  /// Runs the window modally: disables the parent, shows the window and serves
  /// events and default-mode timers until the window closes or `EndModal` is
  /// called. Returns the result flag: 1 when the user closed the window, or
  /// what a dialog has set. May be nested.
  int RunModal();
  /// Ends the modal run, if there is one; the window itself stays as it is.
  void EndModal();

  /// Closes the window as the user's own request: asks `CanClose` first.
  void RequestClose();

  // What the window's delegate forwards.

  /// The close button. True lets the platform close the window.
  bool CloseButtonPressed();
  void WindowWillClose();

 protected:
  void SetResult(std::uint32_t newResult) { result = newResult; }

 private:
  NSWindow* window = nullptr;
  HXWindowDelegate* windowDelegate = nullptr;
  bool ownsWindow = true;
  bool modal = false;
  std::uint32_t result = 0;
};
