#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

#include "Src/HXUI/HXColorDialog.h"
#include "Src/HXUI/HXHelpTip.h"
#include "Src/HXUI/HXInputDialog.h"
#include "Src/HXUI/HXPopupDialog.h"
#include "Src/HXUI/HXSystemButton.h"
#include "Src/HXUI/HXTextBox.h"
#include "tests/Src/HXUI/ToolkitFixture.h"

namespace {

constexpr int kFirstOpenings = 1000;

/// The variable OPENINGS says how many there are in all; 10,000 without it.
int MoreOpenings() {
  const char* all = std::getenv("OPENINGS");
  return (all == nullptr ? 10 * kFirstOpenings : std::atoi(all)) - kFirstOpenings;
}

/// Memory of this process that is in use, in KiB, as the system sees it.
long ResidentMemory() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with("VmRSS:")) return std::strtol(line.c_str() + 6, nullptr, 10);
  }
  return 0;
}

class DialogOpeningsTest : public ToolkitFixture {
 protected:
  /// Opens again and again and expects that all but the first thousand have not
  /// taken more than `allowed` KiB.
  void ExpectNoGrowth(const std::function<void()>& open, long allowed) {
    Repeat(open, kFirstOpenings);
    const long before = ResidentMemory();
    const int more = MoreOpenings();
    ASSERT_GT(more, 0) << "OPENINGS is too small";
    Repeat(open, more);
    const long growth = ResidentMemory() - before;
    std::printf("%ld KiB after %d openings, %+ld KiB after %d more\n", before, kFirstOpenings,
                growth, more);
    EXPECT_LE(growth, allowed);
  }

  /// Presses a button as soon as events are served.
  void PressLater(const HXWindow& dialog, const std::string& label) {
    Later([this, &dialog, label] {
      for (HXObject* child : dialog.GetChildren()) {
        auto* button = dynamic_cast<HXSystemButton*>(child);
        if (button != nullptr && button->GetLabel() == label) return Click(*button, {5, 5});
      }
      ADD_FAILURE() << "no button " << label;
    });
  }

 private:
  void Repeat(const std::function<void()>& open, int count) {
    for (int i = 0; i < count; ++i) {
      @autoreleasepool {
        open();
        Pump();
      }
    }
  }
};

TEST_F(DialogOpeningsTest, MessagesLeaveNothingBehind) {
  ExpectNoGrowth(
      [this] {
        HXPopupDialog dialog(window.get(), "Title", "Is this the question?", true, true, true);
        PressLater(dialog, "NO");
        EXPECT_EQ(dialog.RunModal(), 1);
      },
      2048);
}

TEST_F(DialogOpeningsTest, InputsLeaveNothingBehind) {
  ExpectNoGrowth(
      [this] {
        HXInputDialog dialog(window.get(), "Name", "Preset");
        PressLater(dialog, "OK");
        EXPECT_EQ(dialog.RunModal(), 0);
      },
      2048);
}

TEST_F(DialogOpeningsTest, ColourDialogsLeaveNothingBehind) {
  HXColor color{1, 2, 3, 255};
  ExpectNoGrowth(
      [&] {
        HXColorDialog dialog(window.get(), &color);
        PressLater(dialog, "OK");
        dialog.RunModal();
        EXPECT_TRUE(dialog.IsAccepted());
      },
      2048);
}

TEST_F(DialogOpeningsTest, HelpTipsLeaveNothingBehind) {
  ExpectNoGrowth(
      [this] {
        HXHelpTip tip(window.get());
        tip.Show({200, 200}, "Title", "A text that is wrapped because it is rather long.");
        Pump();
        tip.SetVisible(false);
      },
      2048);
}

}  // namespace
