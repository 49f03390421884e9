#include "tests/gallery/SelectionOwner.h"

#include <gtest/gtest.h>

#include <future>

#include "tests/endtoend/Waiting.h"

// After the others: it defines short words as macros.
#include <X11/Xatom.h>
#include <X11/Xlib.h>

namespace {

Atom Named(Display* display, const char* name) { return XInternAtom(display, name, False); }

Window MakeWindow(Display* display) {
  return XCreateSimpleWindow(display, DefaultRootWindow(display), 0, 0, 1, 1, 0, 0, 0);
}

/// Writes what was asked for into the asking window. False for a form it has not.
bool Provide(Display* display, const XSelectionRequestEvent& request, const std::string& text) {
  const Atom utf8 = Named(display, "UTF8_STRING");
  const Atom targets = Named(display, "TARGETS");
  if (request.target == targets) {
    const Atom offered[] = {targets, utf8, XA_STRING};
    XChangeProperty(display, request.requestor, request.property, XA_ATOM, 32, PropModeReplace,
                    reinterpret_cast<const unsigned char*>(offered), 3);
    return true;
  }
  if (request.target != utf8 && request.target != XA_STRING) return false;
  XChangeProperty(display, request.requestor, request.property, request.target, 8, PropModeReplace,
                  reinterpret_cast<const unsigned char*>(text.data()),
                  static_cast<int>(text.size()));
  return true;
}

void Answer(Display* display, const XSelectionRequestEvent& request, const std::string& text) {
  XEvent event{};
  event.xselection.type = SelectionNotify;
  event.xselection.requestor = request.requestor;
  event.xselection.selection = request.selection;
  event.xselection.target = request.target;
  event.xselection.time = request.time;
  event.xselection.property = Provide(display, request, text) ? request.property : None;
  XSendEvent(display, request.requestor, False, NoEventMask, &event);
  XFlush(display);
}

void Serve(const std::stop_token& stop, const std::string& displayName, const std::string& text,
           std::promise<bool> owns) {
  Display* display = XOpenDisplay(displayName.c_str());
  if (display == nullptr) {
    owns.set_value(false);
    return;
  }
  const Window window = MakeWindow(display);
  const Atom clipboard = Named(display, "CLIPBOARD");
  XSetSelectionOwner(display, clipboard, window, CurrentTime);
  owns.set_value(XGetSelectionOwner(display, clipboard) == window);
  while (!stop.stop_requested()) {
    const auto hasEvent = [display] { return XPending(display) > 0; };
    if (!WaitUntil(hasEvent, std::chrono::milliseconds(20))) continue;
    XEvent event{};
    XNextEvent(display, &event);
    if (event.type == SelectionRequest) Answer(display, event.xselectionrequest, text);
  }
  XCloseDisplay(display);
}

std::string ReadProperty(Display* display, Window window, Atom property) {
  Atom type = None;
  int format = 0;
  unsigned long count = 0;
  unsigned long rest = 0;
  unsigned char* value = nullptr;
  XGetWindowProperty(display, window, property, 0, 4096, False, AnyPropertyType, &type, &format,
                     &count, &rest, &value);
  std::string text(value == nullptr ? "" : reinterpret_cast<const char*>(value));
  if (value != nullptr) XFree(value);
  return text;
}

}  // namespace

SelectionOwner::SelectionOwner(const std::string& displayName, const std::string& text) {
  std::promise<bool> promise;
  std::future<bool> owns = promise.get_future();
  server = std::jthread(Serve, displayName, text, std::move(promise));
  EXPECT_TRUE(owns.get()) << "the clipboard cannot be had";
}

std::string ReadClipboard(const std::string& displayName) {
  Display* display = XOpenDisplay(displayName.c_str());
  EXPECT_NE(display, nullptr);
  if (display == nullptr) return {};
  const Window window = MakeWindow(display);
  const Atom property = Named(display, "GALLERY_TEST");
  XConvertSelection(display, Named(display, "CLIPBOARD"), Named(display, "UTF8_STRING"), property,
                    window, CurrentTime);
  XEvent event{};
  const bool answered = WaitUntil([display, window, &event] {
    return XCheckTypedWindowEvent(display, window, SelectionNotify, &event) != 0;
  });
  const bool given = answered && event.xselection.property != None;
  std::string text = given ? ReadProperty(display, window, property) : "";
  XCloseDisplay(display);
  return text;
}
