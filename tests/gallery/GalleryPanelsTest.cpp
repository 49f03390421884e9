#include "tests/endtoend/FolderPanel.h"
#include "tests/endtoend/Waiting.h"
#include "tests/gallery/GalleryTest.h"
#include "tests/gallery/Keys.h"
#include "tests/gallery/SelectionOwner.h"
#include "tests/support/TemporaryFolder.h"

namespace {

/// GNUstep's own panels for files, which the toolkit runs.
class GalleryPanelsTest : public GalleryTest {
 protected:
  enum Button { kChooseFolder, kOpen, kOpenSeveral, kSave };

  void SetUp() override {
    GalleryTest::SetUp();
    folder.AddFile("a.png");
    folder.AddFile("b.png");
    Show(kDialogs);
  }

  void Click(Button button) { ClickAt(455, 53 + 34 * button); }

  /// Goes to the folder of this test, whose content is then in the right column.
  void Browse() {
    constexpr Area kFirstRow{220, 99, 60, 12};
    constexpr Color kPaper{170, 170, 170};
    const auto isListed = [&] {
      const Picture picture = panel.Look();
      return picture.width > 300 && picture.HasInk(kFirstRow, kPaper);
    };
    ASSERT_TRUE(panel.IsUp());
    ASSERT_FALSE(isListed());
    // All at once, so that no other folder is listed on the way.
    const SelectionOwner owner(DisplayName(), folder.path);
    TypeCommand("v");
    ASSERT_TRUE(WaitUntil(isListed)) << "the folder is not listed";
  }

  void ChooseRow(int row) {
    const Picture before = panel.Look();
    panel.ClickRow(row);
    ASSERT_TRUE(panel.Changes(before));
  }

  const TemporaryFolder folder;
  const FolderPanel panel{desktop, pointer};
};

TEST_F(GalleryPanelsTest, AFileIsOpened) {
  Click(kOpen);
  Browse();
  ChooseRow(1);
  panel.ClickChoose();
  EXPECT_TRUE(panel.IsGone());
  EXPECT_TRUE(LogIs({"Open: b.png"}));
}

TEST_F(GalleryPanelsTest, SeveralFilesAreOpened) {
  Click(kOpenSeveral);
  Browse();
  ChooseRow(0);
  {
    const HeldKey shift(desktop.Connection(), "Shift_L");
    ChooseRow(1);
  }
  panel.ClickChoose();
  EXPECT_TRUE(panel.IsGone());
  EXPECT_TRUE(LogIs({"Open: a.png", "Open: b.png"}));
}

TEST_F(GalleryPanelsTest, AFolderIsChosen) {
  folder.AddFolder("inner");
  Click(kChooseFolder);
  Browse();
  ChooseRow(0);
  panel.ClickChoose();
  EXPECT_TRUE(panel.IsGone());
  EXPECT_TRUE(LogIs({"Folder: inner"}));
}

TEST_F(GalleryPanelsTest, ASavedFileGetsItsExtension) {
  constexpr const char* kSavePanel = "Save";
  Click(kSave);
  ASSERT_TRUE(IsUp(kSavePanel));
  Type("model");
  keyboard.Type("Return");
  EXPECT_TRUE(IsGone(kSavePanel));
  EXPECT_TRUE(LogIs({"Save: model.obj"}));
}

TEST_F(GalleryPanelsTest, EscapeCancels) {
  for (const Button button : {kChooseFolder, kOpen, kOpenSeveral, kSave}) {
    const char* title = button == kSave ? "Save" : "Open";
    Click(button);
    ASSERT_TRUE(IsUp(title));
    keyboard.Type("Escape");
    ASSERT_TRUE(IsGone(title));
    ASSERT_TRUE(IsUp(kTitle));
  }
  EXPECT_TRUE(
      LogIs({"Folder: cancelled", "Open: cancelled", "Open: cancelled", "Save: cancelled"}));
}

TEST_F(GalleryPanelsTest, APanelLooksTheSameEachTime) {
  constexpr Area kFirstRow{40, 99, 60, 12};
  constexpr int kButtonRow = 40;
  constexpr Color kPaper{170, 170, 170};
  const auto isDrawn = [&] {
    const Picture picture = panel.Look();
    return picture.width > 300 && picture.HasInk(kFirstRow, kPaper) &&
           picture.HasInk({0, picture.height - kButtonRow, picture.width, kButtonRow}, kPaper);
  };
  Picture first;
  for (int opening = 0; opening < 3; ++opening) {
    Click(kChooseFolder);
    ASSERT_TRUE(panel.IsUp());
    ASSERT_TRUE(WaitUntil(isDrawn));
    if (opening == 0) first = panel.Look();
    // The caret of the name field comes and goes.
    EXPECT_TRUE(WaitUntil([&] { return panel.Look() == first; })) << "opening " << opening;
    keyboard.Type("Escape");
    ASSERT_TRUE(panel.IsGone());
    ASSERT_TRUE(IsUp(kTitle));
  }
}

TEST_F(GalleryPanelsTest, TheCancelButtonCancels) {
  Click(kChooseFolder);
  ASSERT_TRUE(panel.IsUp());
  const Area content = Content("Open");
  ClickIn("Open", content.width - 131, content.height - 20);
  EXPECT_TRUE(panel.IsGone());
  EXPECT_TRUE(LogIs({"Folder: cancelled"}));
}

}  // namespace
