#include <filesystem>

#include "tests/endtoend/EndToEndTest.h"
#include "tests/endtoend/Waiting.h"

namespace {

constexpr int kCustom = Machine::kCustomRow;
/// The name puts it into the second row of the panel, behind "Applications".
constexpr const char* kFolder = "Custom plug-ins";
constexpr int kFolderRow = 1;

class HostChoiceTest : public EndToEndTest {
 protected:
  /// Goes to the hosts, with none of them ticked.
  void StartWithNoneTicked() {
    ASSERT_TRUE(StartOn(Page::kHosts));
    for (int row = 0; row < Machine::kHostCount; ++row) {
      ASSERT_EQ(wizard.RowState(row), Row::kTicked);
      ASSERT_TRUE(wizard.Toggle(row));
    }
    ASSERT_EQ(wizard.RowState(kCustom), Row::kUnticked);
  }

  void TickCustom() {
    ASSERT_TRUE(wizard.Toggle(kCustom));
    const Area browse = Wizard::BrowseButton(kCustom);
    ASSERT_TRUE(
        WaitUntil([this, browse] { return wizard.Look().HasInk(browse, Wizard::kBackground); }));
  }

  void OpenPanel() {
    wizard.Click(Wizard::BrowseButton(kCustom));
    ASSERT_TRUE(panel.IsUp());
  }

  /// Afterwards the wizard looks as before.
  void OpenPanelAndCancel() {
    wizard.MoveTo(10, 10);
    ASSERT_TRUE(wizard.IsOn(Page::kHosts));
    const Area browse = Wizard::BrowseButton(kCustom);
    ASSERT_TRUE(WaitUntil([this, browse] {
      return wizard.Look().At(browse.x + 2, browse.y + 2) == Wizard::kButtonFace;
    }));
    const Picture before = wizard.Look();
    ASSERT_NO_FATAL_FAILURE(OpenPanel());
    panel.ClickCancel();
    ASSERT_TRUE(panel.IsGone());
    wizard.MoveTo(10, 10);
    ASSERT_TRUE(wizard.IsOn(Page::kHosts));
    ASSERT_TRUE(wizard.Shows({0, 0, 500, 360}, before));
  }

  bool ShowsAPath() const {
    return wizard.Look().HasInk(Wizard::CustomPath(kCustom), Wizard::kBackground);
  }

  /// The panel opens where the installer was started, so the name is enough. The
  /// first Return opens the folder, the second one takes it.
  void ChooseByKeyboard() {
    ASSERT_NO_FATAL_FAILURE(OpenPanel());
    Picture before = panel.Look();
    keyboard.TypeText(kFolder);
    ASSERT_TRUE(panel.Changes(before));
    keyboard.Type("Return");
    keyboard.Type("Return");
    ASSERT_TRUE(panel.IsGone());
    ASSERT_TRUE(WaitUntil([this] { return ShowsAPath(); }));
  }

  void ChooseByMouse() {
    ASSERT_NO_FATAL_FAILURE(OpenPanel());
    const Picture before = panel.Look();
    panel.ClickRow(kFolderRow);
    ASSERT_TRUE(panel.Changes(before));
    panel.ClickChoose();
    ASSERT_TRUE(panel.IsGone());
    ASSERT_TRUE(WaitUntil([this] { return ShowsAPath(); }));
  }

  void ExpectNoHostTouched() const {
    for (int row = 0; row < Machine::kHostCount; ++row) {
      EXPECT_TRUE(std::filesystem::is_empty(machine.PluginFolder(row)));
    }
  }

  const std::string custom = machine.MakeFolder(kFolder);
  FolderPanel panel{desktop, pointer};
};

TEST_F(HostChoiceTest, NothingChosenIsToldAndTheHostsStay) {
  ASSERT_NO_FATAL_FAILURE(StartWithNoneTicked());
  MessageBox message = Box(MessageBox::kNothingChosen);
  wizard.Click(Wizard::kNext);
  ASSERT_TRUE(message.IsUp());
  message.Click(Button::kOk);
  ASSERT_TRUE(message.IsGone());
  ASSERT_TRUE(wizard.IsOn(Page::kHosts));

  wizard.Click(Wizard::kNext);
  ASSERT_TRUE(message.IsUp());
  keyboard.Type("Escape");
  ASSERT_TRUE(message.IsGone());
  ASSERT_TRUE(wizard.IsOn(Page::kHosts));

  wizard.Click(Wizard::kNext);
  ASSERT_TRUE(message.IsUp());
  message.PressCloseButton();
  ASSERT_TRUE(message.IsGone());
  ASSERT_TRUE(wizard.IsOn(Page::kHosts));

  // The wizard still works.
  ASSERT_TRUE(wizard.Toggle(2));
  ASSERT_NO_FATAL_FAILURE(InstallToTheFinish());
  EXPECT_TRUE(IsInstalled(machine.PluginFolder(2)));
}

TEST_F(HostChoiceTest, CustomWithoutAFolderIsNoChoice) {
  ASSERT_NO_FATAL_FAILURE(StartWithNoneTicked());
  ASSERT_NO_FATAL_FAILURE(TickCustom());
  wizard.Click(Wizard::kNext);
  MessageBox message = Box(MessageBox::kNothingChosen);
  ASSERT_TRUE(message.IsUp());
  message.Click(Button::kOk);
  ASSERT_TRUE(message.IsGone());
  ASSERT_TRUE(wizard.IsOn(Page::kHosts));
  EXPECT_TRUE(IsUntouched());
}

TEST_F(HostChoiceTest, InstallsIntoAFolderChosenWithTheKeyboard) {
  ASSERT_NO_FATAL_FAILURE(StartWithNoneTicked());
  ASSERT_NO_FATAL_FAILURE(TickCustom());
  ASSERT_NO_FATAL_FAILURE(ChooseByKeyboard());
  ASSERT_NO_FATAL_FAILURE(InstallToTheFinish());
  EXPECT_TRUE(IsInstalled(custom));
  ExpectNoHostTouched();
  EXPECT_TRUE(IsDataMoved());
}

TEST_F(HostChoiceTest, InstallsIntoAFolderChosenWithTheMouse) {
  ASSERT_TRUE(StartOn(Page::kHosts));
  ASSERT_NO_FATAL_FAILURE(TickCustom());
  ASSERT_NO_FATAL_FAILURE(ChooseByMouse());
  ASSERT_NO_FATAL_FAILURE(InstallToTheFinish());
  EXPECT_TRUE(IsInstalled(custom));
  EXPECT_TRUE(IsInstalled(machine.PluginFolder(0)));
  EXPECT_TRUE(IsInstalled(machine.PluginFolder(3)));
}

TEST_F(HostChoiceTest, ACancelledPanelChangesNothing) {
  ASSERT_NO_FATAL_FAILURE(StartWithNoneTicked());
  ASSERT_NO_FATAL_FAILURE(TickCustom());
  ASSERT_NO_FATAL_FAILURE(OpenPanelAndCancel());
  EXPECT_FALSE(ShowsAPath());
}

TEST_F(HostChoiceTest, UntickedCustomKeepsItsFolderAndInstallsNothingThere) {
  ASSERT_TRUE(StartOn(Page::kHosts));
  ASSERT_NO_FATAL_FAILURE(TickCustom());
  ASSERT_NO_FATAL_FAILURE(ChooseByKeyboard());
  const Picture path = wizard.Look().Crop(Wizard::CustomPath(kCustom));
  ASSERT_TRUE(wizard.Toggle(kCustom));
  EXPECT_TRUE(WaitUntil([this] {
    return !ShowsAPath() &&
           !wizard.Look().HasInk(Wizard::BrowseButton(kCustom), Wizard::kBackground);
  }));
  ASSERT_TRUE(wizard.Toggle(kCustom));
  EXPECT_TRUE(wizard.Shows(Wizard::CustomPath(kCustom), path));
  ASSERT_TRUE(wizard.Toggle(kCustom));
  ASSERT_NO_FATAL_FAILURE(InstallToTheFinish());
  EXPECT_TRUE(std::filesystem::is_empty(custom));
  EXPECT_TRUE(IsInstalled(machine.PluginFolder(0)));
}

TEST_F(HostChoiceTest, ReleasingOutsideARowLeavesItsTick) {
  ASSERT_TRUE(StartOn(Page::kHosts));
  wizard.MoveTo(187, 122);
  pointer.Press();
  wizard.MoveTo(10, 10);
  pointer.Release();
  ASSERT_TRUE(wizard.Toggle(1));
  EXPECT_EQ(wizard.RowState(0), Row::kTicked);
}

}  // namespace
