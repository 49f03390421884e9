#include "tests/gallery/DragSource.h"

#include <fstream>

#include "tests/endtoend/Waiting.h"

namespace {

/// In the corner of the screen, where its window is.
constexpr int kHandle = 20;
constexpr Color kHandleColor{0, 255, 0};

std::string LastLine(const std::string& file) {
  std::ifstream stream(file);
  std::string last;
  for (std::string line; std::getline(stream, line);) last = line;
  return last;
}

}  // namespace

std::string DragSource::Files(const std::vector<std::string>& paths) {
  std::string lines;
  for (const std::string& path : paths) lines += (lines.empty() ? "" : "\n") + path;
  return "DRAG_FILES=" + lines;
}

DragSource::DragSource(ChildProcess::Setup setup, const Desktop& desktop, Pointer& pointer,
                       const std::string& offer)
    : desktop(desktop),
      pointer(pointer),
      output(setup.folder + "/drag source.log"),
      program(Complete(std::move(setup), offer)) {}

ChildProcess::Setup DragSource::Complete(ChildProcess::Setup setup, const std::string& offer) {
  setup.command = {OSTREL_DRAG_SOURCE};
  setup.environment.push_back(offer);
  setup.output = setup.folder + "/drag source.log";
  // What another one has left there is not this one's.
  std::ofstream(setup.output).close();
  return setup;
}

testing::AssertionResult DragSource::Says(const std::string& word) const {
  if (WaitUntil([this, &word] { return LastLine(output) == word; })) {
    return testing::AssertionSuccess();
  }
  return testing::AssertionFailure()
         << "the source of the drag says \"" << LastLine(output) << "\" and not \"" << word << "\"";
}

testing::AssertionResult DragSource::PickUp() {
  // A press before the window is there would go to what is behind it.
  const auto isThere = [this] {
    return desktop.Capture({kHandle, kHandle, 1, 1}).At(0, 0) == kHandleColor;
  };
  if (!WaitUntil(isThere)) return testing::AssertionFailure() << "nothing to be dragged is there";
  pointer.MoveTo(kHandle, kHandle);
  pointer.Press();
  return Says("dragging");
}

testing::AssertionResult DragSource::Drop() {
  pointer.Release();
  return Says("ended");
}
