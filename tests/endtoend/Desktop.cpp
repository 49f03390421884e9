#include "tests/endtoend/Desktop.h"

#include <gtest/gtest.h>

#include <cstring>

// After the others: it defines short words as macros.
#include <X11/Xatom.h>
#include <X11/Xutil.h>

namespace {

/// Windows vanish while they are asked about; that is no reason to end.
int PassOver(Display*, XErrorEvent*) { return 0; }

Color ColorOf(unsigned long pixel) {
  return {static_cast<std::uint8_t>(pixel >> 16U), static_cast<std::uint8_t>(pixel >> 8U),
          static_cast<std::uint8_t>(pixel)};
}

}  // namespace

Desktop::Desktop(const std::string& displayName) : display(XOpenDisplay(displayName.c_str())) {
  XSetErrorHandler(PassOver);
  EXPECT_NE(display, nullptr) << displayName;
}

Desktop::~Desktop() {
  if (display != nullptr) XCloseDisplay(display);
}

Window Desktop::WindowNamedByRoot(const char* property) const {
  Atom type = None;
  int format = 0;
  unsigned long count = 0;
  unsigned long rest = 0;
  unsigned char* value = nullptr;
  XGetWindowProperty(display, DefaultRootWindow(display), XInternAtom(display, property, False), 0,
                     1, False, XA_WINDOW, &type, &format, &count, &rest, &value);
  Window window = None;
  if (count == 1) std::memcpy(&window, value, sizeof window);
  if (value != nullptr) XFree(value);
  return window;
}

bool Desktop::HasWindowManager() const {
  return WindowNamedByRoot("_NET_SUPPORTING_WM_CHECK") != None;
}

std::vector<Window> Desktop::FindWindows(const std::string& title) const {
  std::vector<Window> found;
  CollectWindows(DefaultRootWindow(display), title, &found);
  return found;
}

std::optional<Window> Desktop::FindWindow(const std::string& title) const {
  const std::vector<Window> found = FindWindows(title);
  return found.empty() ? std::nullopt : std::optional(found.front());
}

void Desktop::CollectWindows(Window parent, const std::string& title,
                             std::vector<Window>* found) const {
  Window root = None;
  Window grandparent = None;
  Window* children = nullptr;
  unsigned count = 0;
  if (XQueryTree(display, parent, &root, &grandparent, &children, &count) == 0) return;
  const std::vector<Window> windows(children, children + count);
  if (children != nullptr) XFree(children);
  for (const Window window : windows) {
    if (TitleOf(window) == title && IsShown(window)) found->push_back(window);
    CollectWindows(window, title, found);
  }
}

std::string Desktop::TitleOf(Window window) const {
  XTextProperty name{};
  if (XGetWMName(display, window, &name) == 0 || name.value == nullptr) return {};
  std::string title(reinterpret_cast<const char*>(name.value), name.nitems);
  XFree(name.value);
  return title;
}

bool Desktop::IsShown(Window window) const {
  XWindowAttributes attributes{};
  return XGetWindowAttributes(display, window, &attributes) != 0 &&
         attributes.map_state == IsViewable;
}

bool Desktop::IsActive(Window window) const {
  Window focused = None;
  int revert = 0;
  XGetInputFocus(display, &focused, &revert);
  return focused == window && WindowNamedByRoot("_NET_ACTIVE_WINDOW") == window;
}

std::optional<Area> Desktop::FindContent(Window window) const {
  XWindowAttributes attributes{};
  int x = 0;
  int y = 0;
  Window child = None;
  if (XGetWindowAttributes(display, window, &attributes) == 0 ||
      XTranslateCoordinates(display, window, DefaultRootWindow(display), 0, 0, &x, &y, &child) ==
          0) {
    return std::nullopt;
  }
  return Area{x, y, attributes.width, attributes.height};
}

Picture Desktop::Capture(Window window) const {
  const std::optional<Area> content = FindContent(window);
  return content ? Capture(*content) : Picture();
}

Picture Desktop::Capture() const {
  return Capture(Area{0, 0, DisplayWidth(display, DefaultScreen(display)),
                      DisplayHeight(display, DefaultScreen(display))});
}

Picture Desktop::Capture(Area area) const {
  XImage* image = XGetImage(display, DefaultRootWindow(display), area.x, area.y,
                            static_cast<unsigned>(area.width), static_cast<unsigned>(area.height),
                            AllPlanes, ZPixmap);
  if (image == nullptr) return {};
  Picture picture(area.width, area.height);
  for (int y = 0; y < area.height; ++y) {
    for (int x = 0; x < area.width; ++x) picture.At(x, y) = ColorOf(XGetPixel(image, x, y));
  }
  XDestroyImage(image);
  return picture;
}

void Desktop::PressCloseButton(Window window) const {
  XEvent event{};
  event.xclient.type = ClientMessage;
  event.xclient.window = window;
  event.xclient.message_type = XInternAtom(display, "_NET_CLOSE_WINDOW", False);
  event.xclient.format = 32;
  constexpr long kFromTheUser = 2;
  event.xclient.data.l[1] = kFromTheUser;
  XSendEvent(display, DefaultRootWindow(display), False,
             SubstructureNotifyMask | SubstructureRedirectMask, &event);
  XFlush(display);
}
