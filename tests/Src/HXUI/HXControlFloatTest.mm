#include "Src/HXUI/HXControlFloat.h"

#include <cmath>

#include "Src/HXUI/HXControlFloatList.h"
#include "Src/HXUI/HXControlFloatParent.h"
#include "tests/Src/HXUI/ControlFloatFixture.h"
#include "tests/Src/HXUI/PaintedPanel.h"

namespace {

constexpr HXColor kBackground{30, 31, 34, 255};
constexpr HXColor kAccent{116, 200, 243, 255};
constexpr HXColor kUnbound{131, 132, 133, 255};

using Changes = std::vector<int>;

class CountingParent : public HXPanel, public HXControlFloatParent {
 public:
  explicit CountingParent(HXObject* parentObject) : HXPanel(parentObject, {10, 10}, {200, 50}) {}
  void OnFieldFitted() override { ++fittings; }
  int fittings = 0;
};

class CountingField : public HXControlFloat {
 public:
  using HXControlFloat::HXControlFloat;
  void Draw() override {
    ++draws;
    HXControlFloat::Draw();
  }
  int draws = 0;
};

class HXControlFloatTest : public ControlFloatFixture {};

// Building and looks

TEST_F(HXControlFloatTest, StartsIdleAndFittedToItsText) {
  number = 12.5F;
  Make();
  EXPECT_EQ(field->GetPosition(), kOrigin);
  EXPECT_EQ(field->GetSize(), SizeFor("12.5"));
  EXPECT_EQ(field->GetColor(), kBackground);
  EXPECT_FALSE(field->IsEditing());
  EXPECT_TRUE(owner.changes.empty());
}

TEST_F(HXControlFloatTest, HasAHiddenEmptyEditor) {
  const HXTextBox& editor = EditorOf(*Make());
  EXPECT_FALSE(editor.IsVisible());
  EXPECT_EQ(editor.GetPosition(), (HXPoint{2, 2}));
  EXPECT_EQ(editor.GetSize(), (HXSize{36, 14}));
  EXPECT_EQ(editor.GetText(), "");
}

TEST_F(HXControlFloatTest, IsAsWideAsTheTextOfItsFormat) {
  number = 0.5F;
  const char* texts[] = {"0.5", "0", "0.5º", "0.5º", "0.5%", "0.5º", "0.50", "50.0%", "0.5"};
  for (int format = 0; format <= 8; ++format) {
    EXPECT_EQ(Make(format)->GetSize(), SizeFor(texts[format])) << format;
  }
}

TEST_F(HXControlFloatTest, BindingFitsAndRedraws) {
  Make();
  float other = 1234.5F;
  Draw(*field);
  field->SetValuePointer(&other);
  EXPECT_EQ(field->GetSize(), SizeFor("1234.5"));
  EXPECT_TRUE(NeedsDisplay(*field));
  field->SetValuePointer(nullptr);
  EXPECT_EQ(field->GetSize(), SizeFor("0.0"));
  EXPECT_TRUE(owner.changes.empty());
}

TEST_F(HXControlFloatTest, DrawsTheTextOverDots) {
  Make(4);
  const auto pixels = Draw(*field);
  const HXSize size = field->GetSize();
  const HXSize text = Measure("50.0", 10);
  for (int x = 0; x < size.width; ++x) {
    const bool isDot = x < text.width && x % 2 == 0;
    EXPECT_EQ(pixels->At(x, text.height), isDot ? kAccent : kBackground) << x;
  }
  // The unit stands beyond the dots.
  EXPECT_LT(text.width, size.width);
  EXPECT_GT(pixels->Ink({text.width, 0, size.width - text.width, text.height}, kBackground), 0);
  EXPECT_TRUE(IsNear(Brightest(*pixels, {0, 0, size.width, text.height}), kAccent, 12));
  EXPECT_EQ(pixels->Ink({0, text.height + 1, size.width, 17 - text.height}, kBackground), 0);
}

TEST_F(HXControlFloatTest, TheTextIsInVerdanaOfTenPointsFromTheLeftEdge) {
  const HXSize size = Make(4)->GetSize();
  const auto drawn = Draw(*field);
  PaintedPanel expected(window.get(), size, [size](HXCocoaDC& dc) {
    dc.SetFillColor(kBackground);
    dc.DrawRect({0, 0, size.width, size.height});
    dc.SetTextColor(kAccent);
    dc.SetFont("Verdana", 0, 10);
    dc.DrawText("50.0%", {-1, 2, 0, 0}, 0);
    const HXSize number = dc.MeasureText("50.0", {0, 0}, 0);
    dc.SetFillColor(kAccent);
    dc.DrawDots({0, number.height}, number.width);
  });
  EXPECT_EQ(CountUnlike(*drawn, *Draw(expected)), 0);
}

TEST_F(HXControlFloatTest, AnUnboundFieldIsGrey) {
  Make()->SetValuePointer(nullptr);
  const auto pixels = Draw(*field);
  const HXSize text = Measure("0.0", 10);
  EXPECT_EQ(pixels->At(0, text.height), kUnbound);
  EXPECT_EQ(pixels->At(1, text.height), kBackground);
  EXPECT_TRUE(IsNear(Brightest(*pixels, {0, 0, text.width, text.height}), kUnbound, 12));
}

TEST_F(HXControlFloatTest, WhileEditingItIsABlackFrame) {
  Make()->BeginEdit();
  const auto pixels = Draw(*field);
  EXPECT_EQ(field->GetSize(), (HXSize{40, 18}));
  EXPECT_EQ(CountOther(*pixels, {0, 0, 40, 1}, kAccent), 0);
  EXPECT_EQ(CountOther(*pixels, {0, 17, 40, 1}, kAccent), 0);
  EXPECT_EQ(CountOther(*pixels, {0, 0, 1, 18}, kAccent), 0);
  EXPECT_EQ(CountOther(*pixels, {39, 0, 1, 18}, kAccent), 0);
  EXPECT_EQ(CountOther(*pixels, {1, 1, 38, 1}, {0, 0, 0, 255}), 0);
}

TEST_F(HXControlFloatTest, WhileEditingNothingOfItsParentShowsThrough) {
  auto* parent = new HXPanel(window.get(), {0, 0}, {60, 30});
  parent->SetColor(kWhite);
  HXControlFloat child(parent, {10, 10}, &number, 0, 0, 100, 1);
  child.BeginEdit();
  EXPECT_EQ(CountOther(*Draw(*parent), {11, 11, 38, 1}, {0, 0, 0, 255}), 0);
}

TEST_F(HXControlFloatTest, TellsAParentThatListensOfEachFitting) {
  auto* row = new CountingParent(window.get());
  auto* child = new HXControlFloat(row, {0, 0}, &number, 0, 0, 0, 1);
  EXPECT_EQ(row->fittings, 1);
  child->FitSize();
  EXPECT_EQ(row->fittings, 2);
  child->SetValuePointer(nullptr);
  EXPECT_EQ(row->fittings, 3);
  child->BeginEdit();
  EXPECT_EQ(row->fittings, 4);
  child->EndEdit(false);
  EXPECT_EQ(row->fittings, 5);
}

// Dragging

TEST_F(HXControlFloatTest, StepsFollowFormatAndRange) {
  struct Row {
    int format;
    float lowest;
    float highest;
    float sensitivity;
    float step;
  };
  const Row rows[] = {{0, 0, 100, 1, 0.01F}, {0, 0, 101, 1, 0.5F},   {0, 0, 0, 1, 0.5F},
                      {0, 5, 4, 1, 0.5F},    {1, 0, 100, 1, 0.2F},   {1, 0, 1000, 1, 0.2F},
                      {1, 0, 0, 2, 0.4F},    {0, 0, 100, 3, 0.03F},  {6, -50, 100, 1, 0.01F},
                      {7, 0, 100, 1, 0.01F}, {0, 0, 0, 0.5F, 0.25F}, {0, 0, 1000, 0, 0}};
  for (const Row& row : rows) {
    number = 50;
    Make(row.format, row.lowest, row.highest, row.sensitivity);
    EXPECT_NEAR(Dragged(10, 0), row.step * 10, 1e-4) << row.format << " to " << row.highest;
  }
}

TEST_F(HXControlFloatTest, RightAndUpIncreaseAndLeftAndDownDecrease) {
  Make(0, 0, 0);
  EXPECT_FLOAT_EQ(Dragged(6, 0), 3);
  EXPECT_FLOAT_EQ(Dragged(0, -6), 3);
  EXPECT_FLOAT_EQ(Dragged(-6, 0), -3);
  EXPECT_FLOAT_EQ(Dragged(0, 6), -3);
  EXPECT_FLOAT_EQ(Dragged(10, 10), 0);
  EXPECT_FLOAT_EQ(Dragged(10, -10), 10);
}

TEST_F(HXControlFloatTest, ReportsBeginStepsAndDone) {
  Make(0, 0, 0);
  std::vector<float> seen;
  owner.onChange = [&](int) { seen.push_back(number); };
  Press();
  EXPECT_TRUE(owner.changes.empty());
  DragTo(2, 0);
  DragTo(4, 0);
  Release(4, 0);
  EXPECT_EQ(Notifications(), (Changes{0, 1, 1, 2}));
  EXPECT_EQ(seen, (std::vector<float>{50, 51, 52, 52}));
  EXPECT_EQ(owner.changes[0], (Change{9, field, 0}));
}

TEST_F(HXControlFloatTest, EachStepFitsTheSizeAndIsDrawnAtOnce) {
  number = 9.5F;
  auto* counting = new CountingField(window.get(), kOrigin, &number, 0, 0.0F, 0.0F, 1.0F);
  field = counting;
  Draw(*window);
  Press();
  const int before = counting->draws;
  DragTo(2, 0);
  EXPECT_EQ(field->GetSize(), SizeFor("10.5"));
  EXPECT_GT(counting->draws, before);
  Release(2, 0);
}

TEST_F(HXControlFloatTest, TheMouseIsCapturedFromPressToRelease) {
  Make();
  EXPECT_FALSE(field->HasMouseCapture());
  Press();
  EXPECT_TRUE(field->HasMouseCapture());
  DragTo(200, 100);
  EXPECT_TRUE(field->HasMouseCapture());
  Release(200, 100);
  EXPECT_FALSE(field->HasMouseCapture());
  EXPECT_FALSE(field->IsEditing());
}

TEST_F(HXControlFloatTest, AMoveToTheSamePlaceIsNone) {
  Make();
  Press();
  DragTo(0, 0);
  EXPECT_TRUE(owner.changes.empty());
  Release(0, 0);
  EXPECT_TRUE(field->IsEditing());
}

TEST_F(HXControlFloatTest, ADragBackToItsStartOpensNoEditor) {
  Make(0, 0, 0);
  Press();
  DragTo(5, 0);
  DragTo(0, 0);
  Release(0, 0);
  EXPECT_FALSE(field->IsEditing());
  EXPECT_EQ(Notifications(), (Changes{0, 1, 1, 2}));
  EXPECT_FLOAT_EQ(number, 50);
}

TEST_F(HXControlFloatTest, StaysWithinItsRange) {
  Make(1, 40, 60);
  Dragged(300, 0);
  EXPECT_EQ(number, 60);
  Dragged(-300, 0);
  EXPECT_EQ(number, 40);
}

TEST_F(HXControlFloatTest, AnAngleWrapsAround) {
  number = 1;
  Make(2, 0, 0);
  Dragged(-4, 0);
  EXPECT_FLOAT_EQ(number, 359);
  EXPECT_EQ(field->GetSize(), SizeFor("359.0º"));
  Dragged(2, 0);
  EXPECT_EQ(number, 0);
  number = 0;
  Dragged(-2, 0);
  EXPECT_FLOAT_EQ(number, 359);
}

TEST_F(HXControlFloatTest, AnAngleWithARangeStopsThereFirst) {
  number = 1;
  Make(2, 0, 360);
  Dragged(-10, 0);
  EXPECT_EQ(number, 0);
  number = 359;
  Dragged(10, 0);
  EXPECT_EQ(number, 0);
}

TEST_F(HXControlFloatTest, ATinyNegativeAngleIsZero) {
  number = -1.0e-6F;
  Make(2, 0, 0);
  Press();
  DragTo(1, 1);
  EXPECT_EQ(number, 0);
  Release(1, 1);
}

TEST_F(HXControlFloatTest, OtherButtonsDoNothing) {
  Make();
  for (const NSEventType type : {NSRightMouseDown, NSRightMouseUp, NSOtherMouseDown}) {
    SendMouse(type, *field, kInside);
  }
  EXPECT_FALSE(field->HasMouseCapture());
  EXPECT_FALSE(field->IsEditing());
  EXPECT_TRUE(owner.changes.empty());
}

TEST_F(HXControlFloatTest, AnUnboundFieldIsInert) {
  Make()->SetValuePointer(nullptr);
  Press();
  EXPECT_FALSE(field->HasMouseCapture());
  DragTo(10, 0);
  Release(0, 0);
  EXPECT_FALSE(field->IsEditing());
  EXPECT_TRUE(owner.changes.empty());
}

TEST_F(HXControlFloatTest, UnbindingEndsADrag) {
  Make(0, 0, 0);
  owner.onChange = [&](int notification) {
    if (notification == kChangeBegins) field->SetValuePointer(nullptr);
  };
  Press();
  DragTo(10, 0);
  EXPECT_FALSE(field->HasMouseCapture());
  Release(10, 0);
  EXPECT_EQ(number, 50);
  EXPECT_EQ(Notifications(), (Changes{0}));
}

TEST_F(HXControlFloatTest, HidingEndsADrag) {
  Make(0, 0, 0);
  Press();
  DragTo(10, 0);
  ASSERT_FLOAT_EQ(number, 55);
  field->SetVisible(false);
  EXPECT_FALSE(field->HasMouseCapture());
  field->SetVisible(true);
  SendMouse(NSMouseMoved, *field, {8, 8});
  EXPECT_FLOAT_EQ(number, 55) << "no button is held";
}

TEST_F(HXControlFloatTest, SurvivesItsDeletionInAnyNotification) {
  for (const int when : {kChangeBegins, kChangeStep, kChangeDone}) {
    Make(0, 0, 0);
    owner.changes.clear();
    owner.onChange = [&](int notification) {
      if (notification != when) return;
      delete field;
      field = nullptr;
    };
    HXControlFloat& doomed = *field;
    Press();
    SendMouse(NSLeftMouseDragged, doomed, {15, 5});
    if (field != nullptr) SendMouse(NSLeftMouseUp, doomed, {15, 5});
    EXPECT_EQ(field, nullptr);
    EXPECT_EQ(Notifications().back(), when);
  }
}

TEST_F(HXControlFloatTest, ThePointerTellsThatTheNumberCanBeDragged) {
  Make();
  [[NSCursor arrowCursor] set];
  SendMouse(NSMouseEntered, *field, kInside);
  EXPECT_EQ([NSCursor currentCursor], [NSCursor resizeLeftRightCursor]);
  SendMouse(NSMouseExited, *field, kInside);
  EXPECT_EQ([NSCursor currentCursor], [NSCursor arrowCursor]);
  field->BeginEdit();
  [[NSCursor arrowCursor] set];
  SendMouse(NSMouseEntered, *field, {1, 1});
  EXPECT_EQ([NSCursor currentCursor], [NSCursor arrowCursor]);
}

}  // namespace
