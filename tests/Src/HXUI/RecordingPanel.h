#pragma once

#include <functional>
#include <string>
#include <vector>

#include "Src/HXUI/HXPanel.h"

/// A panel that writes down what it is told, and then does what the test wants.
class RecordingPanel : public HXPanel {
 public:
  using Action = std::function<void()>;

  using HXPanel::HXPanel;
  ~RecordingPanel() override { Run(onDestruction); }

  void Draw() override {
    ++draws;
    Run(onDraw);
    HXPanel::Draw();
  }
  bool OnKeyDown(int key) override {
    keys.push_back(key);
    const bool answer = passKeys;
    Run(onKey);
    return answer;
  }
  void OnMouse(MouseKind kind) override {
    kinds.push_back(kind);
    Run(onMouse);
  }
  void OnSize() override {
    ++sizeChanges;
    Run(onSize);
  }
  void OnFocusLost() override {
    ++focusLosses;
    Run(onFocusLost);
  }
  void OnClose() override {
    ++closes;
    Run(onClose);
  }
  bool OnDropFile(const char* path) override {
    drops.emplace_back(path);
    const bool answer = acceptDrops;
    Run(onDrop);
    return answer;
  }
  void OnTimer(int timerId) override {
    timers.push_back(timerId);
    Run(onTimer);
  }

  std::vector<MouseKind> kinds;
  std::vector<int> keys;
  std::vector<int> timers;
  std::vector<std::string> drops;
  int draws = 0;
  int sizeChanges = 0;
  int focusLosses = 0;
  int closes = 0;
  bool passKeys = true;
  bool acceptDrops = true;

  Action onDestruction;
  Action onDraw;
  Action onKey;
  Action onMouse;
  Action onSize;
  Action onFocusLost;
  Action onClose;
  Action onDrop;
  Action onTimer;

 private:
  /// By value: the action may delete this panel.
  static void Run(Action action) {
    if (action) action();
  }
};
