#include "tests/endtoend/MessageBox.h"

#include "tests/endtoend/Waiting.h"
#include "tests/endtoend/Wizard.h"

namespace {

constexpr Color kPaper{17, 18, 20};
constexpr int kButtonHeight = 35;
constexpr int kBottomMargin = 10;

}  // namespace

Picture MessageBox::Look() const {
  const std::optional<WindowId> window = desktop.FindWindow(title);
  return window ? desktop.Capture(*window) : Picture();
}

testing::AssertionResult MessageBox::IsUp() const {
  const bool shown = WaitUntil([this] {
    const std::vector<WindowId> windows = desktop.FindWindows(title);
    if (windows.size() != 1 || !desktop.IsActive(windows.front())) return false;
    const Picture picture = desktop.Capture(windows.front());
    // Both its text and its lowest edge, below the buttons, have been drawn.
    return picture.height > kBottomMargin && picture.At(2, 2) == kPaper &&
           picture.At(2, picture.height - 2) == kPaper &&
           picture.HasInk({5, 15, picture.width - 10, 14}, kPaper);
  });
  if (shown) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "\"" << title << "\" is not up: there are "
                                     << desktop.FindWindows(title).size() << " of it";
}

testing::AssertionResult MessageBox::IsGone() const {
  if (WaitUntil([this] { return desktop.FindWindows(title).empty(); })) {
    return testing::AssertionSuccess();
  }
  return testing::AssertionFailure() << "\"" << title << "\" is still up";
}

Area MessageBox::AreaOf(Button button, const Picture& picture) {
  const int count = button == Button::kOk ? 1 : 2;
  const int width = button == Button::kOk ? 80 : 120;
  // Equal spaces stand before, between and after the buttons.
  const int space = (picture.width - count * width) / (count + 1);
  const int x = button == Button::kNo ? 2 * space + width : space;
  return {x, picture.height - kBottomMargin - kButtonHeight, width, kButtonHeight};
}

void MessageBox::Click(Button button) const {
  const std::optional<WindowId> window = desktop.FindWindow(title);
  const std::optional<Area> content = window ? desktop.FindContent(*window) : std::nullopt;
  EXPECT_TRUE(content) << "\"" << title << "\" is not there";
  if (!content) return;
  const Area area = AreaOf(button, Look());
  pointer.MoveForClick(content->x + area.x + area.width / 2, content->y + area.y + area.height / 2);
  EXPECT_TRUE(WaitUntil([this, area] {
    const Picture picture = Look();
    return picture.IsInside(area.x + 4, area.y + 4) &&
           picture.At(area.x + 4, area.y + 4) == Wizard::kHoveredFace;
  })) << "a button of \""
      << title << "\" does not light up";
  pointer.Click();
}

void MessageBox::PressCloseButton() const {
  const std::optional<WindowId> window = desktop.FindWindow(title);
  EXPECT_TRUE(window) << "\"" << title << "\" is not there";
  if (window) desktop.PressCloseButton(*window);
}
