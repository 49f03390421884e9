#pragma once

#include <functional>
#include <string>
#include <vector>

#include "Src/HXUI/HXWindow.h"

/// A window that writes down what it is told, and then does what the test wants.
class RecordingWindow : public HXWindow {
 public:
  using Action = std::function<void()>;

  explicit RecordingWindow(HXObject* parentObject = nullptr, std::uint32_t flags = 0,
                           HXPoint position = {100, 500}, HXSize size = {200, 150})
      : HXWindow(parentObject, position, size, "Recording", flags) {}
  ~RecordingWindow() override { Run(onDestruction); }

  bool CanClose() override {
    ++closeRequests;
    const bool answer = canClose;
    Run(onCanClose);
    return answer;
  }
  void OnClose() override {
    ++closings;
    Run(onClose);
  }
  void OnSize() override { ++sizeChanges; }
  void OnFocusLost() override {
    ++focusLosses;
    Run(onFocusLost);
  }
  void OnTimer(int timerId) override {
    timers.push_back(timerId);
    Run(onTimer);
  }
  bool OnKeyDown(int key) override {
    keys.push_back(key);
    Run(onKey);
    return true;
  }
  void OnMouse(MouseKind kind) override {
    kinds.push_back(kind);
    Run(onMouse);
  }

  using HXWindow::SetResult;

  bool canClose = true;
  int closeRequests = 0;
  int closings = 0;
  int sizeChanges = 0;
  int focusLosses = 0;
  std::vector<int> timers;
  std::vector<int> keys;
  std::vector<MouseKind> kinds;

  Action onDestruction;
  Action onCanClose;
  Action onClose;
  Action onFocusLost;
  Action onTimer;
  Action onKey;
  Action onMouse;

 private:
  /// By value: the action may delete this window.
  static void Run(Action action) {
    if (action) action();
  }
};
