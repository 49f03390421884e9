#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tests/endtoend/ChildProcess.h"
#include "tests/endtoend/Desktop.h"
#include "tests/endtoend/DisplayServer.h"
#include "tests/endtoend/Keyboard.h"
#include "tests/endtoend/Machine.h"
#include "tests/endtoend/Orphans.h"
#include "tests/endtoend/Pointer.h"
#include "tests/gallery/PopupMenu.h"
#include "tests/gallery/TextReader.h"

/// A test of the real gallery under real events, on a display that the tests of a
/// suite share. What it did is read where a person reads it: in its window, below
/// the controls. Positions are pixels of the shown view unless said otherwise.
class GalleryTest : public testing::Test {
 protected:
  enum View {
    kButtons,
    kChoices,
    kNumbers,
    kText,
    kSearch,
    kColours,
    kScrolling,
    kPointer,
    kDialogs
  };

  struct Corner {
    int x;
    int y;
  };

  static constexpr const char* kTitle = "Gallery";
  static constexpr Color kPanel{30, 30, 30};
  static constexpr Color kPage{70, 70, 70};
  /// Of headings, numbers, frames, and the label of the chosen view's button.
  static constexpr Color kAccent{116, 200, 243};

  static void SetUpTestSuite();
  static void TearDownTestSuite();
  GalleryTest();
  /// Starts the gallery and waits until it takes clicks.
  void SetUp() override;
  void TearDown() override;

  /// Chooses a view by its button; fails the test when it does not come up.
  void Show(View view);

  void MoveTo(int x, int y);
  void ClickAt(int x, int y);
  /// Clicks a field and waits for the caret; then selects all of its text.
  void Focus(Area field);
  void SelectAllIn(Area field);
  void DoubleClickAt(int x, int y);
  /// Presses, and leaves the button down. Widgets ask where the pointer is when
  /// they hear of the press, so this waits until they have.
  void PressAt(int x, int y);
  /// Presses at the first place, goes to the other one and lets go.
  void Drag(int fromX, int fromY, int toX, int toY);
  /// Waits until the gallery has dealt with all events so far.
  void Settle() const;
  /// Presses a widget that opens a menu, and leaves the button down; `corner` is
  /// the widget's.
  PopupMenu OpenMenu(int x, int y, Corner corner);
  /// Types ASCII.
  void Type(const std::string& text);
  /// Holds Command.
  void TypeCommand(const std::string& key) { keyboard.TypeWith("Alt_L", key); }
  void ClearLog();
  /// Clicks a place of another window of the gallery's.
  void ClickIn(const char* title, int x, int y);

  /// The window's content, or that of another window; empty when it is not there.
  Picture Look(const char* title = kTitle) const;
  /// The part of the present view.
  Picture LookAt(Area area) const;
  /// The bound values, one "name = value" a line.
  std::vector<std::string> Values() const;
  /// The last notifications, without their numbers.
  std::vector<std::string> Log() const;
  /// The value of `name`; "" when there is no such line.
  std::string Value(const std::string& name) const;
  float Number(const std::string& name) const;

  /// These wait.
  testing::AssertionResult HasValue(const std::string& name, const std::string& value) const;
  testing::AssertionResult LogEndsWith(const std::vector<std::string>& lines) const;
  testing::AssertionResult LogIs(const std::vector<std::string>& lines) const;
  /// Waits for the window with this title to be there and to have the keys.
  testing::AssertionResult IsUp(const char* title) const;
  testing::AssertionResult IsGone(const char* title) const;

  /// The content of the window, on the screen.
  Area Content(const char* title = kTitle) const;

  static const std::string& DisplayName() { return server->name; }
  /// What a program needs on this display and machine; its command is missing.
  static ChildProcess::Setup SetupFor(const Machine& machine);

  Machine machine;
  Desktop desktop;
  Pointer pointer;
  Keyboard keyboard;

 private:
  void Start();
  void TeachReader();
  bool TeachLetters(const std::string& letters);
  /// The result of a wait, with what the gallery shows.
  testing::AssertionResult Judge(bool holds) const;

  static std::unique_ptr<DisplayServer> server;
  static TextReader reader;
  static bool isReaderTaught;

  Orphans orphans;
  std::unique_ptr<ChildProcess> process;
};
