#include "Src/HXUI/Cocoa/WindowOwner.h"

#include <memory>

#include "tests/Src/HXUI/RecordingPanel.h"
#include "tests/Src/HXUI/RecordingWindow.h"
#include "tests/Src/HXUI/ToolkitFixture.h"

// After the others: it defines short words as macros.
#include <X11/Xutil.h>

namespace {

/// What the window manager is told about a dialog that runs, on a connection of the test's own.
class WindowOwnerTest : public ToolkitFixture {
 protected:
  WindowOwnerTest() : display(XOpenDisplay(nullptr), XCloseDisplay) {}

  static Window WindowOf(const HXWindow& widget) {
    return reinterpret_cast<Window>([[widget.GetNativeView() window] windowRef]);
  }
  /// Runs the dialog: the window that it is kept in front of, or 0.
  Window OwnerDuringRun(RecordingWindow& dialog) {
    Window owner = 0;
    Later([&] {
      XGetTransientForHint(display.get(), WindowOf(dialog), &owner);
      dialog.Close();
    });
    dialog.RunModal();
    return owner;
  }
  /// A person's own wish to have the window active.
  bool IsRequestFor(Window wanted, const XEvent& event) {
    constexpr long kUserAskedForIt = 2;
    return event.type == ClientMessage && event.xclient.window == wanted &&
           event.xclient.message_type == XInternAtom(display.get(), "_NET_ACTIVE_WINDOW", False) &&
           event.xclient.format == 32 && event.xclient.data.l[0] == kUserAskedForIt;
  }

  const std::unique_ptr<Display, int (*)(Display*)> display;
};

TEST_F(WindowOwnerTest, ADialogIsKeptInFrontOfItsOwner) {
  auto* widget = new RecordingPanel(window.get(), {0, 0}, {10, 10});
  for (HXObject* owner : std::initializer_list<HXObject*>{window.get(), widget}) {
    RecordingWindow dialog(owner);
    EXPECT_EQ(OwnerDuringRun(dialog), WindowOf(*window));
  }
}

TEST_F(WindowOwnerTest, WithoutAnOwnerItIsKeptInFrontOfNoWindow) {
  RecordingWindow dialog;
  EXPECT_EQ(OwnerDuringRun(dialog), 0U);
}

TEST_F(WindowOwnerTest, ADialogIsToBecomeActiveAsThePersonWants) {
  XSelectInput(display.get(), DefaultRootWindow(display.get()), SubstructureNotifyMask);
  XSync(display.get(), False);
  RecordingWindow dialog(window.get());
  Window wanted = 0;
  Later([&] {
    wanted = WindowOf(dialog);
    dialog.Close();
  });
  dialog.RunModal();
  bool found = false;
  PumpUntil(
      [&] {
        XEvent event;
        while (!found && XPending(display.get()) > 0) {
          XNextEvent(display.get(), &event);
          found = IsRequestFor(wanted, event);
        }
        return found;
      },
      "the request to make the dialog active");
}

}  // namespace
