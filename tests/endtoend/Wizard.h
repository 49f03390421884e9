#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "tests/endtoend/Desktop.h"
#include "tests/endtoend/Picture.h"
#include "tests/endtoend/Pointer.h"

/// The wizard's window as a person sees and uses it. Positions are pixels of the
/// window's content, which is 500 by 360.
class Wizard {
 public:
  enum class Page { kUnknown, kWelcome, kLicence, kHosts, kSummary, kProgress, kFinish };
  enum class Row { kAbsent, kUnticked, kTicked };

  static constexpr const char* kTitle = "Ostrel 3D for After Effects Installer";

  static constexpr Area kCancel{405, 320, 85, 30};
  static constexpr Area kNext{290, 320, 85, 30};
  static constexpr Area kBack{200, 320, 85, 30};
  /// As the agreement's page has them.
  static constexpr Area kWideNext{275, 320, 110, 30};
  static constexpr Area kWideBack{150, 320, 110, 30};

  static constexpr Color kBackground{45, 45, 45};
  static constexpr Color kButtonFace{44, 45, 49};
  static constexpr Color kHoveredFace{61, 63, 67};
  static constexpr Color kDisabledFace{30, 30, 31};
  static constexpr Color kWhite{255, 255, 255};
  static constexpr Color kSummaryPaper{30, 30, 30};

  /// Of the agreement, of the summary, and of the bars that scroll them.
  static constexpr Area kLicenceText{180, 60, 283, 240};
  static constexpr Area kLicenceBar{463, 60, 17, 240};
  static constexpr Area kSummaryText{180, 110, 283, 190};
  static constexpr Area kSummaryBar{463, 110, 17, 190};

  Wizard(const Desktop& desktop, Pointer& pointer) : desktop(desktop), pointer(pointer) {}

  /// Whether keys go to it; a click on a window without them would only bring them there.
  bool IsActive() const;
  /// Nothing of the window is covered when this is to be judged.
  Picture Look() const;
  /// Takes the pointer to where nothing is, and looks when nothing is lit up by it any more.
  Picture LookWithoutPointer() const;
  Page CurrentPage() const { return PageIn(Look()); }
  static Page PageIn(const Picture& picture);

  /// Waits for the page, and until a click would reach it.
  testing::AssertionResult IsOn(Page page) const;
  /// Goes forward from the welcome page to `page`, at most to the summary.
  testing::AssertionResult GoTo(Page page) const;

  /// Moves to a button, sees it light up unless it is disabled, and clicks it.
  void Click(Area button) const;
  void ClickAt(int x, int y) const;
  void MoveTo(int x, int y) const;
  void PressCloseButton() const;
  /// The same with the mouse, where the window manager draws that button.
  void ClickCloseButton() const;

  /// Of the host page, rows counted from the top.
  Row RowState(int row) const { return RowIn(Look(), row); }
  static Row RowIn(const Picture& picture, int row);
  /// Clicks a row and waits until it shows that.
  testing::AssertionResult Toggle(int row) const;
  static Area BrowseButton(int customRow) { return {185, 135 + 25 * customRow, 60, 20}; }
  static Area CustomPath(int customRow) { return {250, 135 + 25 * customRow, 230, 60}; }

  /// Waits until the area, seen now, is as in `expected`.
  testing::AssertionResult Shows(Area area, const Picture& expected) const;
  /// The label of a button, whether hovered, disabled or neither.
  static Lettering Label(const Picture& picture, Area button);

 private:
  const Desktop& desktop;
  Pointer& pointer;

  void MoveForClick(int x, int y) const;
  std::optional<Area> FindContent() const;
};

void PrintTo(Wizard::Page page, std::ostream* stream);
void PrintTo(Wizard::Row row, std::ostream* stream);
