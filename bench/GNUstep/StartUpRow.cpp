#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>
#include <thread>

#include "bench/Pairs.h"
#include "bench/Results.h"
#include "bench/Rows.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kPairs = 21;
constexpr auto kPatience = std::chrono::seconds(10);
constexpr int kTries = 4;
constexpr auto kPause = std::chrono::microseconds(200);
/// The background of the window as both programs draw it.
constexpr unsigned long kColor = 0x2D2D2D;
/// From the middle of the screen to a place of the window that shows nothing else.
constexpr int kRight = 225;
constexpr int kDown = 90;

/// The screen, looked at from outside: what a person would see.
class ShownScreen {
 public:
  ShownScreen() : display(XOpenDisplay(nullptr)) {}
  ~ShownScreen() {
    if (display != nullptr) XCloseDisplay(display);
  }
  ShownScreen(const ShownScreen&) = delete;
  ShownScreen& operator=(const ShownScreen&) = delete;

  bool IsOpen() const { return display != nullptr; }

  /// Whether the window's place on the screen shows the window's colour.
  bool ShowsWindow() const {
    const int number = DefaultScreen(display);
    const int x = DisplayWidth(display, number) / 2 + kRight;
    const int y = DisplayHeight(display, number) / 2 + kDown;
    XImage* image = XGetImage(display, RootWindow(display, number), x, y, 1, 1, AllPlanes, ZPixmap);
    if (image == nullptr) return false;
    const unsigned long pixel = XGetPixel(image, 0, 0) & 0xFFFFFF;
    XDestroyImage(image);
    return pixel == kColor;
  }

  bool WaitUntil(bool shown) const {
    const auto end = Clock::now() + kPatience;
    while (ShowsWindow() != shown) {
      if (Clock::now() > end) return false;
      std::this_thread::sleep_for(kPause);
    }
    return true;
  }

 private:
  Display* display;
};

struct Start {
  double wallMs = 0;
  /// What the program itself computed meanwhile, in all its threads.
  double processorMs = 0;
  /// The largest resident size so far, in KiB.
  double peakMemory = 0;
  bool succeeded = false;
};

double PeakMemory(pid_t process) {
  std::ifstream status("/proc/" + std::to_string(process) + "/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with("VmHWM:")) return std::stod(line.substr(6));
  }
  return 0;
}

double ProcessorMs(pid_t process) {
  double nanoseconds = 0;
  std::error_code error;
  const std::string threads = "/proc/" + std::to_string(process) + "/task";
  for (const auto& thread : std::filesystem::directory_iterator(threads, error)) {
    double own = 0;
    std::ifstream(thread.path() / "schedstat") >> own;
    nanoseconds += own;
  }
  return nanoseconds / 1e6;
}

/// Starts the program, waits for its first frame, and ends it.
Start StartOnce(const ShownScreen& screen, const char* program) {
  Start start;
  std::string path = program;
  char* arguments[] = {path.data(), nullptr};
  if (!screen.WaitUntil(false)) return start;

  pid_t child = -1;
  const auto before = Clock::now();
  if (posix_spawn(&child, program, nullptr, nullptr, arguments, environ) != 0) return start;
  start.succeeded = screen.WaitUntil(true);
  start.wallMs = std::chrono::duration<double, std::milli>(Clock::now() - before).count();
  start.processorMs = ProcessorMs(child);
  start.peakMemory = PeakMemory(child);
  kill(child, SIGKILL);
  waitpid(child, nullptr, 0);
  return start;
}

/// Now and then an event waits in GNUstep's queue until the next one comes, and the bare window,
/// which does nothing about it, is not drawn. Such a start is no reference.
Start StartUntilShown(const ShownScreen& screen, const char* program) {
  Start start;
  for (int i = 0; i < kTries && !start.succeeded; ++i) start = StartOnce(screen, program);
  return start;
}

}  // namespace

bool MeasureStartUp() {
  const ShownScreen screen;
  if (!screen.IsOpen()) {
    std::fputs("There is no display.\n", stderr);
    return false;
  }
  bool isRight = true;
  // The peak hardly differs from one start to the next; the last one will do.
  Start wizard;
  Start bare;
  const auto start = [&](const char* program, Start& latest) {
    latest = StartUntilShown(screen, program);
    isRight &= latest.succeeded;
  };
  const auto measure = [&](double Start::*figure) {
    return MeasurePairs(
        kPairs,
        [&, figure] {
          start(BENCH_INSTALLER, wizard);
          return wizard.*figure;
        },
        [&, figure] {
          start(BENCH_BARE_WINDOW, bare);
          return bare.*figure;
        });
  };
  const PairMedians wall = measure(&Start::wallMs);
  const PairMedians processor = measure(&Start::processorMs);
  if (!isRight) {
    std::fputs("A window did not appear.\n", stderr);
    return false;
  }
  const char* reference = "bare AppKit window";
  PrintRatio("exec to first drawn frame of the wizard", reference, wall, 1.20);
  PrintRatio("the same in processor time", reference, processor, 1.20);
  PrintMemory("peak memory of that", reference, {wizard.peakMemory, bare.peakMemory, 0}, 12);
  return true;
}
