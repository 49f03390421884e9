#pragma once

#include <optional>
#include <string>
#include <vector>

#include "tests/endtoend/Picture.h"

/// Xlib's own names collide with those of others, so its header stays out of this one.
struct _XDisplay;
using WindowId = unsigned long;

/// The screen of a display server with the windows on it, as a person sees them.
class Desktop {
 public:
  explicit Desktop(const std::string& displayName);
  ~Desktop();
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;

  _XDisplay* Connection() const { return display; }

  bool HasWindowManager() const;
  /// The windows with this title that are shown; their content, without the frame.
  std::vector<WindowId> FindWindows(const std::string& title) const;
  std::optional<WindowId> FindWindow(const std::string& title) const;
  /// Whether keys go to the window, and the window manager shows it so.
  bool IsActive(WindowId window) const;
  /// The content of a window, in pixels of the screen; nothing if it has gone.
  std::optional<Area> FindContent(WindowId window) const;
  /// What is seen where the window is; empty if it has gone.
  Picture Capture(WindowId window) const;
  /// What is seen everywhere.
  Picture Capture() const;
  /// What is seen in an area of the screen, which must be inside.
  Picture Capture(Area area) const;
  /// Asks the window manager to close the window, as its close button does.
  void PressCloseButton(WindowId window) const;

 private:
  void CollectWindows(WindowId parent, const std::string& title,
                      std::vector<WindowId>* found) const;
  /// The window that a property of the root window names, or none.
  WindowId WindowNamedByRoot(const char* property) const;
  std::string TitleOf(WindowId window) const;
  bool IsShown(WindowId window) const;

  _XDisplay* display;
};
