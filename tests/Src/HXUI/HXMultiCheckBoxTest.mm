#include "Src/HXUI/HXMultiCheckBox.h"

#include <array>

#include "Src/HXUI/HXCheckBox.h"
#include "resources/Pictures.h"
#include "tests/Src/HXUI/ControlTestHelpers.h"
#include "tests/Src/HXUI/PaintedPanel.h"

namespace {

constexpr HXColor kBackground{30, 31, 34, 255};
constexpr HXSize kBox{14, 14};
constexpr std::array<int, 3> kCaptionColumns{0, 36, 72};
constexpr std::array<int, 3> kBoxColumns{12, 48, 84};

HXRect CaptionRect(int index) {
  return {kCaptionColumns[static_cast<std::size_t>(index)], 0, 12, 14};
}

class HXMultiCheckBoxTest : public ToolkitFixture {
 protected:
  HXMultiCheckBoxTest() {
    multi = new HXMultiCheckBox(window.get(), {20, 20});
    multi->SetChangeHandler(&ChangeRecorder::OnChange, &owner, 77);
  }

  std::array<std::uint8_t, 3> values{0, 1, 0};
  ChangeRecorder owner;
  HXMultiCheckBox* multi;
};

TEST_F(HXMultiCheckBoxTest, HoldsThreeBoxesAtAPitchOf36) {
  EXPECT_EQ(multi->GetSize(), (HXSize{100, 14}));
  EXPECT_EQ(multi->GetPosition(), (HXPoint{20, 20}));
  EXPECT_EQ(multi->GetColor(), kBackground);
  ASSERT_EQ(multi->GetChildren().size(), 3U);
  for (std::size_t i = 0; i < 3; ++i) {
    const HXObject* box = multi->GetChildren()[i];
    EXPECT_EQ(box->GetPosition(), (HXPoint{kBoxColumns[i], 0}));
    EXPECT_EQ(box->GetSize(), kBox);
  }
}

TEST_F(HXMultiCheckBoxTest, CaptionsStandLeftOfTheirBoxes) {
  const auto pixels = Draw(*multi);
  for (int i = 0; i < 3; ++i) {
    const HXRect ink = pixels->InkBounds(CaptionRect(i), kBackground);
    EXPECT_GT(ink.width, 3) << i;
    EXPECT_GT(ink.height, 5) << i;
    EXPECT_LE(ink.x - CaptionRect(i).x, 2) << i;
  }
  EXPECT_EQ(CountOther(*pixels, {26, 0, 10, 14}, kBackground), 0);
}

TEST_F(HXMultiCheckBoxTest, CaptionsAreBrighterWhenBound) {
  // A letter of thin strokes reaches the text's colour only nearly.
  const HXColor unbound = Brightest(*Draw(*multi), {0, 0, 12, 14});
  EXPECT_LE(unbound.red, 131);
  EXPECT_GT(unbound.red, 95);
  multi->SetValues(values.data());
  const HXColor bound = Brightest(*Draw(*multi), {0, 0, 12, 14});
  EXPECT_LE(bound.red, 216);
  EXPECT_GT(bound.red, 150);
}

TEST_F(HXMultiCheckBoxTest, BoxesShowTheThreeBytesInOrder) {
  multi->SetValues(values.data());
  for (std::size_t i = 0; i < 3; ++i) {
    const auto pixels = Draw(*multi->GetChildren()[i]);
    EXPECT_EQ(CountUnlikePicture(*pixels, kCheckBoxPng, values[i] * 14, kBox, 0), 0) << i;
  }
}

TEST_F(HXMultiCheckBoxTest, ClickFlipsTheBoxsOwnByte) {
  multi->SetValues(values.data());
  Click(*multi->GetChildren()[2], {5, 5});
  EXPECT_EQ(values, (std::array<std::uint8_t, 3>{0, 1, 1}));
  Click(*multi->GetChildren()[1], {5, 5});
  EXPECT_EQ(values, (std::array<std::uint8_t, 3>{0, 0, 1}));
  Click(*multi->GetChildren()[0], {5, 5});
  EXPECT_EQ(values, (std::array<std::uint8_t, 3>{1, 0, 1}));
}

TEST_F(HXMultiCheckBoxTest, ReportsChangesAsItsOwn) {
  multi->SetValues(values.data());
  std::vector<int> seen;
  owner.onChange = [&](int) { seen.push_back(values[2]); };
  Click(*multi->GetChildren()[2], {5, 5});
  EXPECT_EQ(owner.changes,
            (std::vector<Change>{{77, multi, kChangeBegins}, {77, multi, kChangeDone}}));
  EXPECT_EQ(seen, (std::vector<int>{0, 1}));
}

TEST_F(HXMultiCheckBoxTest, InertUntilBoundAndAfterUnbinding) {
  Click(*multi->GetChildren()[0], {5, 5});
  multi->SetValues(values.data());
  multi->SetValues(nullptr);
  Click(*multi->GetChildren()[1], {5, 5});
  EXPECT_TRUE(owner.changes.empty());
  EXPECT_EQ(values, (std::array<std::uint8_t, 3>{0, 1, 0}));
  EXPECT_EQ(CountUnlikePicture(*Draw(*multi->GetChildren()[1]), kCheckBoxPng, 0, kBox, 0), 0);
}

TEST_F(HXMultiCheckBoxTest, BindingRedrawsEachBox) {
  Draw(*window);
  multi->SetValues(values.data());
  for (const HXObject* box : multi->GetChildren()) EXPECT_TRUE(NeedsDisplay(*box));
}

TEST_F(HXMultiCheckBoxTest, ClickOnACaptionDoesNothing) {
  multi->SetValues(values.data());
  Click(*multi, {4, 5});
  EXPECT_TRUE(owner.changes.empty());
  EXPECT_EQ(values, (std::array<std::uint8_t, 3>{0, 1, 0}));
}

TEST_F(HXMultiCheckBoxTest, OwnerMayDeleteItInItsCallback) {
  multi->SetValues(values.data());
  owner.onChange = [&](int notification) {
    if (notification == kChangeDone) delete multi;
  };
  Click(*multi->GetChildren()[0], {5, 5});
  EXPECT_EQ(values[0], 1);
  EXPECT_TRUE(window->GetChildren().empty());
}

TEST_F(HXMultiCheckBoxTest, CaptionsAreInVerdanaOfTenPoints) {
  for (const bool bound : {true, false}) {
    multi->SetValues(bound ? values.data() : nullptr);
    const auto drawn = Draw(*multi);
    PaintedPanel expected(window.get(), {100, 14}, [bound](HXCocoaDC& dc) {
      dc.SetFillColor(kBackground);
      dc.DrawRect({0, 0, 100, 14});
      dc.SetFont("Verdana", 0, 10);
      dc.SetTextColor(bound ? HXColor{216, 217, 217, 255} : HXColor{131, 132, 133, 255});
      dc.DrawText("X", {0, 1, 0, 0}, 0);
      dc.DrawText("Y", {36, 1, 0, 0}, 0);
      dc.DrawText("Z", {72, 1, 0, 0}, 0);
    });
    const auto painted = Draw(expected);
    for (int i = 0; i < 3; ++i) EXPECT_EQ(CountUnlike(*drawn, *painted, CaptionRect(i)), 0) << i;
  }
}

}  // namespace
