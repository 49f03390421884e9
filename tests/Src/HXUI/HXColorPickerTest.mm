#include "Src/HXUI/HXColorPicker.h"

#include "Src/HXUI/HXColorDialog.h"
#include "Src/HXUI/HXObjectGuard.h"
#include "tests/Src/HXUI/ControlTestHelpers.h"

namespace {

constexpr HXColor kBlack{0, 0, 0, 255};
constexpr HXColor kRed{255, 0, 0, 255};
constexpr HXColor kGrey{100, 100, 100, 255};
constexpr HXSize kSize{30, 14};
constexpr HXPoint kInside{5, 5};

using Changes = std::vector<int>;

class HXColorPickerTest : public ToolkitFixture {
 protected:
  HXColorPicker* Make(HXColor* bound) {
    picker = new HXColorPicker(window.get(), {50, 50}, bound);
    picker->SetChangeHandler(&ChangeRecorder::OnChange, &owner, 4);
    return picker;
  }

  /// The dialog that is open; null when none is.
  HXColorDialog* Dialog() const {
    for (HXObject* child : picker->GetChildren()) {
      if (auto* dialog = dynamic_cast<HXColorDialog*>(child)) return dialog;
    }
    return nullptr;
  }

  Changes Notifications() const {
    Changes notifications;
    for (const Change& change : owner.changes) notifications.push_back(change.notification);
    return notifications;
  }

  HXColor color{10, 200, 30, 255};
  ChangeRecorder owner;
  HXColorPicker* picker = nullptr;
};

TEST_F(HXColorPickerTest, IsASmallSwatch) {
  Make(&color);
  EXPECT_EQ(picker->GetPosition(), (HXPoint{50, 50}));
  EXPECT_EQ(picker->GetSize(), kSize);
}

TEST_F(HXColorPickerTest, ShowsTheColourInABlackFrame) {
  Make(&color);
  const auto pixels = Draw(*picker);
  EXPECT_EQ(CountOther(*pixels, {1, 1, 28, 12}, color), 0);
  EXPECT_EQ(CountOther(*pixels, {0, 0, 30, 1}, kBlack), 0);
  EXPECT_EQ(CountOther(*pixels, {0, 13, 30, 1}, kBlack), 0);
  EXPECT_EQ(CountOther(*pixels, {0, 0, 1, 14}, kBlack), 0);
  EXPECT_EQ(CountOther(*pixels, {29, 0, 1, 14}, kBlack), 0);
}

TEST_F(HXColorPickerTest, ShowsATransparentColourAsOpaque) {
  color.alpha = 0;
  Make(&color);
  EXPECT_EQ(Draw(*picker)->At(15, 7), (HXColor{10, 200, 30, 255}));
}

TEST_F(HXColorPickerTest, TheFrameIsWhiteUnderThePointer) {
  Make(&color);
  Draw(*picker);
  SendMouse(NSMouseEntered, *picker, kInside);
  EXPECT_TRUE(NeedsDisplay(*picker));
  EXPECT_EQ(CountWhiteInRing(*Draw(*picker), kSize), RingLength(kSize));
  SendMouse(NSMouseExited, *picker, kInside);
  EXPECT_TRUE(NeedsDisplay(*picker));
  EXPECT_EQ(CountWhiteInRing(*Draw(*picker), kSize), 0);
}

TEST_F(HXColorPickerTest, UnboundItIsGreyWithASlash) {
  Make(nullptr);
  const auto pixels = Draw(*picker);
  EXPECT_EQ(pixels->At(1, 7), kGrey);
  EXPECT_EQ(pixels->At(28, 7), kGrey);
  // From (8, 0) down to (22, 14), with its shadow one pixel below.
  for (int y = 3; y < 11; ++y) EXPECT_EQ(pixels->At(8 + y, y), kRed) << y;
  const auto isRed = [](HXColor pixel) { return pixel == kRed; };
  const auto isBlack = [](HXColor pixel) { return pixel == kBlack; };
  EXPECT_GE(pixels->Count({8, 1, 14, 12}, isRed), 12);
  EXPECT_GT(pixels->Count({8, 1, 14, 12}, isBlack), 6);
  EXPECT_EQ(pixels->Count({1, 1, 6, 12}, isRed), 0);
  EXPECT_EQ(pixels->Count({24, 1, 5, 12}, isRed), 0);
}

TEST_F(HXColorPickerTest, UnboundItOpensNothing) {
  Make(nullptr);
  Click(*picker, kInside);
  EXPECT_TRUE(picker->GetChildren().empty());
  EXPECT_TRUE(owner.changes.empty());
}

TEST_F(HXColorPickerTest, APressOpensTheDialogAndAcceptingReportsDone) {
  Make(&color);
  bool wasOpen = false;
  Later([&] {
    HXColorDialog* dialog = Dialog();
    ASSERT_NE(dialog, nullptr);
    wasOpen = true;
    EXPECT_EQ(Notifications(), (Changes{0}));
    // White: no saturation, full value.
    SendMouse(NSLeftMouseDown, *dialog, {7, 7});
    EXPECT_EQ(color, kWhite);
    EXPECT_TRUE(NeedsDisplay(*picker));
    SendMouse(NSLeftMouseUp, *dialog, {7, 7});
    dialog->OnKeyDown(16);
  });
  SendMouse(NSLeftMouseDown, *picker, kInside);
  EXPECT_TRUE(wasOpen);
  EXPECT_EQ(Dialog(), nullptr);
  EXPECT_EQ(Notifications(), (Changes{0, 1, 2}));
  EXPECT_EQ(owner.changes[1], (Change{4, picker, 1}));
  EXPECT_EQ(color, kWhite);
}

TEST_F(HXColorPickerTest, CancellingRestoresTheColourAndReportsAStep) {
  color.alpha = 77;
  Make(&color);
  Later([&] {
    SendMouse(NSLeftMouseDown, *Dialog(), {7, 7});
    Dialog()->OnKeyDown(27);
  });
  SendMouse(NSLeftMouseDown, *picker, kInside);
  EXPECT_EQ(Notifications(), (Changes{0, 1, 1}));
  EXPECT_EQ(color, (HXColor{10, 200, 30, 255}));
}

TEST_F(HXColorPickerTest, OnlyTheSinglePressOpens) {
  Make(&color);
  for (const MouseKind kind : {kMouseMove, kLeftUp, kLeftDouble, kRightDown}) {
    picker->OnMouse(kind);
    EXPECT_TRUE(picker->GetChildren().empty()) << kind;
  }
  EXPECT_TRUE(owner.changes.empty());
}

TEST_F(HXColorPickerTest, ItsDeletionTakesTheDialogWithIt) {
  Make(&color);
  bool wasOpen = false;
  Later([&] {
    wasOpen = Dialog() != nullptr;
    delete picker;
  });
  SendMouse(NSLeftMouseDown, *picker, kInside);
  EXPECT_TRUE(wasOpen);
  EXPECT_TRUE(window->GetChildren().empty());
  EXPECT_EQ(Notifications(), (Changes{0}));
}

TEST_F(HXColorPickerTest, SurvivesItsDeletionInAnyNotification) {
  for (const int when : {kChangeBegins, kChangeStep, kChangeDone}) {
    Make(&color);
    const HXObjectGuard guard(picker);
    owner.changes.clear();
    owner.onChange = [&](int notification) {
      if (notification == when) delete picker;
    };
    if (when != kChangeBegins) {
      Later([&] {
        SendMouse(NSLeftMouseDown, *Dialog(), {7, 7});
        if (guard.IsAlive()) Dialog()->OnKeyDown(16);
      });
    }
    SendMouse(NSLeftMouseDown, *picker, kInside);
    EXPECT_FALSE(guard.IsAlive());
    EXPECT_EQ(Notifications().back(), when);
  }
}

}  // namespace
