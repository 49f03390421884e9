#include "tests/gallery/PopupMenu.h"

#include "tests/endtoend/Waiting.h"

namespace {

constexpr int kRowHeight = 20;
constexpr Color kFace{170, 170, 170};
constexpr Color kLitFace{255, 255, 255};
constexpr Color kLine{0, 0, 0};
/// Of a row: a piece of its face, the place of its tick, and a part of its text.
constexpr Area kFacePiece{4, 4, 1, 1};
constexpr Area kTick{5, 4, 10, 14};
constexpr Area kText{16, 4, 40, 14};

}  // namespace

Picture PopupMenu::Capture(int row, Area area) const {
  return desktop.Capture({x + area.x, y + row * kRowHeight + area.y, area.width, area.height});
}

PopupMenu::Look PopupMenu::LookOf(int row) const {
  const Picture piece = Capture(row, kFacePiece);
  if (piece.width == 0) return Look::kNone;
  if (piece.At(0, 0) == kLitFace) return Look::kLit;
  return piece.At(0, 0) == kFace ? Look::kIdle : Look::kNone;
}

testing::AssertionResult PopupMenu::IsUp(int rows) const {
  const bool isUp = WaitUntil([this, rows] {
    for (int row = 0; row < rows; ++row) {
      if (LookOf(row) == Look::kNone) return false;
    }
    return LookOf(rows) == Look::kNone;
  });
  if (isUp) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "no menu with " << rows << " rows at " << x << ", " << y;
}

testing::AssertionResult PopupMenu::IsGone() const {
  if (WaitUntil([this] { return LookOf(0) == Look::kNone; })) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "the menu is still open";
}

void PopupMenu::MoveTo(int row) {
  constexpr int kInside = 10;
  pointer.MoveTo(x + kInside, y + row * kRowHeight + kInside);
}

testing::AssertionResult PopupMenu::GoTo(int row) {
  MoveTo(row);
  if (WaitUntil([this, row] { return IsLit(row); })) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "row " << row << " does not light up";
}

bool PopupMenu::IsTicked(int row) const {
  const Picture place = Capture(row, kTick);
  return place.HasInk({0, 0, kTick.width, kTick.height}, IsLit(row) ? kLitFace : kFace);
}

bool PopupMenu::IsGrey(int row) const {
  constexpr int kDark = 50;
  const Picture text = Capture(row, kText);
  const Area all{0, 0, kText.width, kText.height};
  const auto isDark = [](Color color) { return color.red < kDark; };
  return text.HasInk(all, kFace) && text.Count(all, isDark) == 0;
}

PopupMenu PopupMenu::Submenu() const {
  // The line below the first row is as long as the menu is wide.
  int width = 2;
  for (; width < 500; ++width) {
    const Picture piece = Capture(0, {width, kRowHeight - 1, 1, 1});
    if (piece.width == 0 || piece.At(0, 0) != kLine) break;
  }
  return {desktop, pointer, x + width, y};
}
