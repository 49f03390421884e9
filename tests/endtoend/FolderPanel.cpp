#include "tests/endtoend/FolderPanel.h"

#include "tests/endtoend/Waiting.h"

namespace {

constexpr const char* kTitle = "Open";
/// From the right and bottom edges, where the panel keeps its buttons.
constexpr int kChooseX = 60;
constexpr int kCancelX = 175;
constexpr int kButtonY = 20;
constexpr Color kPaper{170, 170, 170};
constexpr int kFirstRowY = 105;
constexpr int kRowHeight = 15;
constexpr int kRightColumnX = 280;

}  // namespace

Picture FolderPanel::Look() const {
  const std::optional<WindowId> window = desktop.FindWindow(kTitle);
  return window ? desktop.Capture(*window) : Picture();
}

testing::AssertionResult FolderPanel::IsUp() const {
  const bool shown = WaitUntil([this] {
    const std::optional<WindowId> window = desktop.FindWindow(kTitle);
    if (!window || !desktop.IsActive(*window)) return false;
    const Picture picture = desktop.Capture(*window);
    const Area all{0, 0, picture.width, picture.height};
    return picture.CountPaper(all, kPaper) > picture.width * picture.height / 2;
  });
  if (shown) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "the folder panel is not up";
}

testing::AssertionResult FolderPanel::IsGone() const {
  if (WaitUntil([this] { return !desktop.FindWindow(kTitle); })) {
    return testing::AssertionSuccess();
  }
  return testing::AssertionFailure() << "the folder panel is still up";
}

testing::AssertionResult FolderPanel::Changes(const Picture& before) const {
  if (WaitUntil([this, &before] { return Look() != before; })) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "the folder panel takes no notice";
}

void FolderPanel::ClickRow(int row) const { ClickAt(kRightColumnX, kFirstRowY + kRowHeight * row); }

void FolderPanel::ClickCancel() const {
  const Picture picture = Look();
  ClickAt(picture.width - kCancelX, picture.height - kButtonY);
}

void FolderPanel::ClickChoose() const {
  const Picture picture = Look();
  ClickAt(picture.width - kChooseX, picture.height - kButtonY);
}

void FolderPanel::ClickAt(int x, int y) const {
  const std::optional<WindowId> window = desktop.FindWindow(kTitle);
  const std::optional<Area> content = window ? desktop.FindContent(*window) : std::nullopt;
  EXPECT_TRUE(content) << "the folder panel is not there";
  if (!content) return;
  pointer.MoveForClick(content->x + x, content->y + y);
  pointer.Click();
}
