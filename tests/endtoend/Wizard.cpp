#include "tests/endtoend/Wizard.h"

#include <array>
#include <ostream>

#include "tests/endtoend/Waiting.h"

namespace {

constexpr Color kBar{70, 70, 70};
constexpr Color kLine{100, 100, 100};
constexpr Color kBlack{0, 0, 0};
constexpr Color kBoxEdge{107, 110, 115};
constexpr int kBoxX = 180;
constexpr int kFirstBoxY = 115;
constexpr int kRowHeight = 25;
/// That fit above the buttons.
constexpr int kMostRows = 7;

enum class Face { kNone, kUsable, kDisabled };

/// Judged two pixels inside the corner, where no label reaches.
Face FaceOf(const Picture& picture, Area button) {
  const Color color = picture.At(button.x + 2, button.y + 2);
  if (color == Wizard::kDisabledFace) return Face::kDisabled;
  const bool usable = color == Wizard::kButtonFace || color == Wizard::kHoveredFace;
  return usable ? Face::kUsable : Face::kNone;
}

/// Background, title, button bar and Cancel are on every page.
bool HasSurroundings(const Picture& picture) {
  return picture.width == 500 && picture.height == 360 &&
         picture.At(165, 5) == Wizard::kBackground && picture.At(495, 305) == Wizard::kBackground &&
         picture.HasInk({170, 20, 320, 20}, Wizard::kBackground) &&
         picture.CountPaper({0, 310, 500, 1}, kLine) == 500 &&
         picture.CountPaper({0, 311, 500, 9}, kBar) == 500 * 9 &&
         picture.CountPaper({0, 350, 500, 10}, kBar) == 500 * 10 &&
         FaceOf(picture, Wizard::kCancel) == Face::kUsable;
}

/// More than half of the area is paper, and something is written on it.
bool IsWritten(const Picture& picture, Area area, Color paper) {
  return 2 * picture.CountPaper(area, paper) > area.width * area.height &&
         picture.HasInk(area, paper);
}

bool HasScrollBar(const Picture& picture, Area bar) {
  return picture.CountPaper({bar.x, bar.y, 1, bar.height}, kBlack) == bar.height;
}

bool HasTextAt(const Picture& picture, int top, int bottom) {
  return picture.HasInk({170, top, 329, bottom - top}, Wizard::kBackground);
}

bool IsLicence(const Picture& picture) {
  return IsWritten(picture, Wizard::kLicenceText, Wizard::kWhite) &&
         HasScrollBar(picture, Wizard::kLicenceBar) &&
         FaceOf(picture, Wizard::kWideBack) == Face::kUsable &&
         FaceOf(picture, Wizard::kWideNext) == Face::kUsable;
}

bool IsSummary(const Picture& picture) {
  const bool framed = picture.CountPaper({179, 109, 300, 1}, kLine) == 300 &&
                      picture.CountPaper({179, 300, 300, 1}, kLine) == 300 &&
                      picture.CountPaper({179, 110, 1, 190}, kLine) == 190;
  return framed && IsWritten(picture, Wizard::kSummaryText, Wizard::kSummaryPaper) &&
         HasScrollBar(picture, Wizard::kSummaryBar) && HasTextAt(picture, 70, 83);
}

bool IsHosts(const Picture& picture) {
  return FaceOf(picture, Wizard::kBack) == Face::kUsable &&
         FaceOf(picture, Wizard::kNext) == Face::kUsable && HasTextAt(picture, 70, 83) &&
         Wizard::RowIn(picture, 0) != Wizard::Row::kAbsent;
}

/// Three paragraphs; the buttons are wide after a refused agreement.
bool IsWelcome(const Picture& picture) {
  const bool usual = FaceOf(picture, Wizard::kBack) == Face::kDisabled &&
                     FaceOf(picture, Wizard::kNext) == Face::kUsable;
  const bool wide = FaceOf(picture, Wizard::kWideBack) == Face::kDisabled &&
                    FaceOf(picture, Wizard::kWideNext) == Face::kUsable;
  return (usual || wide) && HasTextAt(picture, 70, 83) && HasTextAt(picture, 110, 125) &&
         HasTextAt(picture, 150, 163);
}

Wizard::Page EndingPage(const Picture& picture) {
  if (FaceOf(picture, Wizard::kBack) != Face::kDisabled ||
      FaceOf(picture, Wizard::kNext) != Face::kDisabled || !HasTextAt(picture, 70, 83)) {
    return Wizard::Page::kUnknown;
  }
  // The step stands below its heading; the last page has one more line close to the first.
  if (HasTextAt(picture, 120, 135)) return Wizard::Page::kProgress;
  return HasTextAt(picture, 95, 112) ? Wizard::Page::kFinish : Wizard::Page::kUnknown;
}

bool IsAnythingLit(const Picture& picture) {
  for (int row = 0; row < kMostRows; ++row) {
    if (picture.At(kBoxX, kFirstBoxY + kRowHeight * row) == Wizard::kWhite) return true;
  }
  for (const Area button :
       {Wizard::kBack, Wizard::kNext, Wizard::kWideBack, Wizard::kWideNext, Wizard::kCancel}) {
    if (picture.At(button.x + 2, button.y + 2) == Wizard::kHoveredFace) return true;
  }
  return false;
}

constexpr std::array<const char*, 7> kPageNames{"no page",     "welcome",  "agreement", "hosts",
                                                "the summary", "progress", "finish"};
constexpr std::array<const char*, 3> kRowNames{"absent", "unticked", "ticked"};

}  // namespace

void PrintTo(Wizard::Page page, std::ostream* stream) {
  *stream << kPageNames.at(static_cast<std::size_t>(page));
}

void PrintTo(Wizard::Row row, std::ostream* stream) {
  *stream << kRowNames.at(static_cast<std::size_t>(row));
}

Wizard::Page Wizard::PageIn(const Picture& picture) {
  if (!HasSurroundings(picture)) return Page::kUnknown;
  if (IsLicence(picture)) return Page::kLicence;
  if (IsSummary(picture)) return Page::kSummary;
  if (IsHosts(picture)) return Page::kHosts;
  if (IsWelcome(picture)) return Page::kWelcome;
  return EndingPage(picture);
}

Wizard::Row Wizard::RowIn(const Picture& picture, int row) {
  const Area box{kBoxX, kFirstBoxY + kRowHeight * row, 14, 14};
  const Color edge = picture.At(box.x, box.y);
  if (edge != kBoxEdge && edge != kWhite) return Row::kAbsent;
  const int mark =
      picture.Count({box.x + 2, box.y + 2, 10, 10}, [](Color color) { return color.green > 150; });
  return mark > 0 ? Row::kTicked : Row::kUnticked;
}

Picture Wizard::Look() const {
  const std::optional<WindowId> window = desktop.FindWindow(kTitle);
  return window ? desktop.Capture(*window) : Picture();
}

Picture Wizard::LookWithoutPointer() const {
  MoveTo(10, 10);
  Picture picture;
  EXPECT_TRUE(WaitUntil([this, &picture] {
    picture = Look();
    return picture.width == 500 && !IsAnythingLit(picture);
  })) << "something is still lit up";
  return picture;
}

bool Wizard::IsActive() const {
  const std::optional<WindowId> window = desktop.FindWindow(kTitle);
  return window && desktop.IsActive(*window);
}

testing::AssertionResult Wizard::IsOn(Page page) const {
  Page seen = Page::kUnknown;
  if (WaitUntil([this, page, &seen] { return (seen = CurrentPage()) == page && IsActive(); })) {
    return testing::AssertionSuccess();
  }
  return testing::AssertionFailure() << "the wizard is on " << testing::PrintToString(seen)
                                     << " and not on " << testing::PrintToString(page);
}

testing::AssertionResult Wizard::GoTo(Page page) const {
  testing::AssertionResult result = IsOn(Page::kWelcome);
  // When the first press and its release arrive together, GNUstep prepares itself for the mouse
  // in between and then handles the release first. So that click goes where nothing is.
  if (result) ClickAt(60, 150);
  if (result && page >= Page::kLicence) {
    Click(kNext);
    result = IsOn(Page::kLicence);
  }
  if (result && page >= Page::kHosts) {
    Click(kWideNext);
    result = IsOn(Page::kHosts);
  }
  if (result && page >= Page::kSummary) {
    Click(kNext);
    result = IsOn(Page::kSummary);
  }
  return result;
}

std::optional<Area> Wizard::FindContent() const {
  const std::optional<WindowId> window = desktop.FindWindow(kTitle);
  const std::optional<Area> content = window ? desktop.FindContent(*window) : std::nullopt;
  EXPECT_TRUE(content) << "the wizard's window is not there";
  return content;
}

void Wizard::MoveTo(int x, int y) const {
  const std::optional<Area> content = FindContent();
  if (content) pointer.MoveTo(content->x + x, content->y + y);
}

void Wizard::MoveForClick(int x, int y) const {
  const std::optional<Area> content = FindContent();
  if (content) pointer.MoveForClick(content->x + x, content->y + y);
}

void Wizard::ClickAt(int x, int y) const {
  MoveForClick(x, y);
  pointer.Click();
}

void Wizard::Click(Area button) const {
  MoveForClick(button.x + button.width / 2, button.y + button.height / 2);
  EXPECT_TRUE(WaitUntil([this, button] {
    const Picture picture = Look();
    if (picture.width != 500) return false;
    const Color face = picture.At(button.x + 2, button.y + 2);
    return face == kHoveredFace || face == kDisabledFace;
  })) << "the button at "
      << button.x << ", " << button.y << " does not light up";
  pointer.Click();
}

void Wizard::PressCloseButton() const {
  const std::optional<WindowId> window = desktop.FindWindow(kTitle);
  EXPECT_TRUE(window) << "the wizard's window is not there";
  if (window) desktop.PressCloseButton(*window);
}

void Wizard::ClickCloseButton() const { ClickAt(489, -10); }

testing::AssertionResult Wizard::Toggle(int row) const {
  const Row before = RowState(row);
  ClickAt(230, 122 + 25 * row);
  const bool changed = WaitUntil([this, row, before] {
    const Row now = RowState(row);
    return now != Row::kAbsent && now != before;
  });
  if (changed) return testing::AssertionSuccess();
  return testing::AssertionFailure()
         << "row " << row << " is still " << testing::PrintToString(before);
}

testing::AssertionResult Wizard::Shows(Area area, const Picture& expected) const {
  const auto matches = [this, area, &expected] {
    const Picture picture = Look();
    return picture.width == 500 && picture.Crop(area) == expected;
  };
  if (WaitUntil(matches)) return testing::AssertionSuccess();
  return testing::AssertionFailure()
         << "the area at " << area.x << ", " << area.y << " looks different";
}

Lettering Wizard::Label(const Picture& picture, Area button) {
  return Lettering(picture, button, picture.At(button.x + 2, button.y + 2));
}
