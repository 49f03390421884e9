#include "Src/HXUI/HXColorDialog.h"

#include "Src/HXUI/HXObjectGuard.h"
#include "tests/Src/HXUI/ColorDialogFixture.h"

namespace {

constexpr HXColor kGreen{0, 255, 0, 255};
constexpr HXColor kRed{255, 0, 0, 255};
constexpr HXColor kBlue{0, 0, 255, 255};
constexpr HXColor kBlack{0, 0, 0, 255};
constexpr HXPoint kInitialSwatch{340, 60};
/// Where the square starts, with no saturation and the full value.
constexpr HXPoint kWhiteCorner{7, 7};

using Changes = std::vector<int>;

class HXColorDialogTest : public ColorDialogFixture {};

TEST_F(HXColorDialogTest, HoldsButtonsFieldsAndTheHexEntry) {
  EXPECT_EQ(dialog->GetSize(), (HXSize{385, 270}));
  EXPECT_TRUE([[[dialog->GetNativeView() window] title] isEqualToString:@"Color"]);
  EXPECT_EQ(Ok().GetLabel(), "OK");
  EXPECT_EQ(Ok().GetPosition(), (HXPoint{300, 230}));
  EXPECT_EQ(Ok().GetSize(), (HXSize{80, 35}));
  EXPECT_EQ(Ok().GetId(), 1U);
  EXPECT_EQ(Cancel().GetLabel(), "Cancel");
  EXPECT_EQ(Cancel().GetPosition(), (HXPoint{300, 190}));
  EXPECT_EQ(Cancel().GetId(), 0U);
  EXPECT_EQ(Field(0).GetPosition(), (HXPoint{325, 90}));
  EXPECT_EQ(Field(1).GetPosition(), (HXPoint{325, 110}));
  EXPECT_EQ(Field(2).GetPosition(), (HXPoint{325, 130}));
  EXPECT_EQ(Hex().GetPosition(), (HXPoint{320, 160}));
  EXPECT_EQ(Hex().GetSize(), (HXSize{50, 16}));
  EXPECT_EQ(Hex().GetText(), "00FF00");
  EXPECT_TRUE(owner.changes.empty());
  Open({255, 128, 0, 255});
  EXPECT_EQ(Hex().GetText(), "FF8000");
}

// Picking with the pointer

TEST_F(HXColorDialogTest, APressOnTheBarPicksTheHue) {
  Press({280, 7 + 85});
  EXPECT_EQ(color, kBlue);
  EXPECT_EQ(Hex().GetText(), "0000FF");
  // Saturated in the square's corner, where the marker is not in the way.
  EXPECT_TRUE(IsNear(Draw(*dialog)->At(7 + 255, 7 + 30), {0, 0, 225, 255}, 3));
  EXPECT_EQ(Notifications(), (Changes{1}));
  EXPECT_TRUE(dialog->HasMouseCapture());
  Release({280, 92});
  EXPECT_FALSE(dialog->HasMouseCapture());
  EXPECT_EQ(Notifications(), (Changes{1}));
}

TEST_F(HXColorDialogTest, TheHueFollowsThePointerBeyondTheWindow) {
  Press({280, 7 + 85});
  DragTo({100, 7 + 170});
  EXPECT_TRUE(IsNear(color, kGreen, 3));
  DragTo({600, -80});
  EXPECT_EQ(color, kRed);
  DragTo({-50, 400});
  EXPECT_EQ(color, kRed);
  EXPECT_EQ(Notifications(), (Changes{1, 1, 1, 1}));
  Release({-50, 400});
  DragTo({280, 92});
  EXPECT_EQ(color, kRed);
}

TEST_F(HXColorDialogTest, TheSquareFollowsThePointerBeyondTheWindow) {
  Press(kWhiteCorner);
  EXPECT_EQ(color, kWhite);
  DragTo({500, -100});
  EXPECT_EQ(color, kGreen);
  DragTo({500, 500});
  EXPECT_EQ(color, kBlack);
  // Neither black nor the pointer over the bar makes it forget the hue.
  DragTo({280, 7});
  EXPECT_EQ(color, kGreen);
  DragTo({7 + 51, 7 + 51});
  EXPECT_TRUE(IsNear(color, {163, 204, 163, 255}, 1));
  Release({58, 58});
  EXPECT_FALSE(dialog->HasMouseCapture());
}

TEST_F(HXColorDialogTest, ItsEdgesCountForTheSquareAndTheBar) {
  struct Row {
    HXPoint point;
    bool isInside;
  };
  const Row rows[] = {{{7, 7}, true},     {{263, 263}, true}, {{6, 7}, false},
                      {{7, 6}, false},    {{264, 50}, false}, {{7, 264}, false},
                      {{271, 50}, false}, {{272, 50}, true},  {{292, 50}, true},
                      {{293, 50}, false}, {{280, 263}, true}, {{280, 264}, false}};
  for (const Row& row : rows) {
    Press(row.point);
    EXPECT_EQ(dialog->HasMouseCapture(), row.isInside) << row.point.x << ", " << row.point.y;
    Release(row.point);
  }
}

TEST_F(HXColorDialogTest, ADoublePressPicksAndAMoveAloneDoesNot) {
  DragTo(kWhiteCorner);
  dialog->OnMouse(kMouseMove);
  EXPECT_EQ(color, kGreen);
  SendMouse(NSLeftMouseDown, *dialog, kWhiteCorner, 2);
  EXPECT_EQ(color, kWhite);
}

TEST_F(HXColorDialogTest, TheInitialSwatchResetsTheFieldsAndTheNextKeyTheColour) {
  Press(kWhiteCorner);
  Release(kWhiteCorner);
  owner.changes.clear();
  Click(*dialog, kInitialSwatch);
  EXPECT_FALSE(dialog->HasMouseCapture());
  EXPECT_EQ(color, kWhite);
  EXPECT_EQ(Hex().GetText(), "FFFFFF");
  EXPECT_TRUE(owner.changes.empty());
  KeyUp();
  EXPECT_EQ(color, kGreen);
  EXPECT_EQ(Hex().GetText(), "00FF00");
  EXPECT_EQ(Notifications(), (Changes{1}));
}

TEST_F(HXColorDialogTest, TheInitialSwatchEndsBeforeItsRightAndBottomEdges) {
  for (const HXPoint point : {HXPoint{301, 60}, {379, 60}, {340, 41}, {340, 78}}) {
    Press(kWhiteCorner);
    Release(kWhiteCorner);
    Click(*dialog, point);
    KeyUp();
    EXPECT_EQ(color, kWhite) << point.x << ", " << point.y;
  }
  for (const HXPoint point : {HXPoint{302, 42}, {378, 77}}) {
    Press(kWhiteCorner);
    Release(kWhiteCorner);
    Click(*dialog, point);
    KeyUp();
    EXPECT_EQ(color, kGreen) << point.x << ", " << point.y;
  }
}

// Typing

TEST_F(HXColorDialogTest, TheHexEntryTakesHexadecimalDigitsOnly) {
  TypeHex(@"g");
  EXPECT_EQ(Hex().GetText(), "00FF00");
  Type(@"GzZ");
  EXPECT_EQ(Hex().GetText(), "00FF00");
  Type(@"f");
  EXPECT_EQ(Hex().GetText(), "f");
  EXPECT_EQ(color, (HXColor{0, 0, 15, 255}));
  Type(@"F8000");
  EXPECT_EQ(Hex().GetText(), "fF8000");
  EXPECT_EQ(color, (HXColor{255, 128, 0, 255}));
  Type(@"1");
  EXPECT_EQ(Hex().GetText(), "fF8000");
  EXPECT_EQ(Notifications(), (Changes{1, 1, 1, 1, 1, 1}));
}

TEST_F(HXColorDialogTest, TheHexEntryIsReadLeniently) {
  struct Row {
    const char* text;
    HXColor color;
  };
  const Row rows[] = {{"0000FF99", kBlue},
                      {"", kBlack},
                      {"ff0000", kRed},
                      {"?!", kBlack},
                      {"FF", kBlue},
                      {"12x456", {0, 0, 18, 255}},
                      {"-1", {255, 255, 255, 255}},
                      {"00ff00", kGreen}};
  for (const Row& row : rows) {
    Hex().SetText(row.text);
    KeyUp();
    EXPECT_EQ(color, row.color) << row.text;
  }
}

TEST_F(HXColorDialogTest, TheHueOfATypedColourMovesTheSquare) {
  TypeHex(@"0000FF");
  DragTo({0, 0});
  Press({262, 7});
  EXPECT_EQ(color, kBlue);
  Release({262, 7});
}

TEST_F(HXColorDialogTest, AKeyWithoutAnyChangeReportsNothing) {
  KeyUp();
  KeyUp();
  EXPECT_TRUE(owner.changes.empty());
}

TEST_F(HXColorDialogTest, AnyKeyMakesATranslucentColourOpaque) {
  Open({0, 255, 0, 128});
  KeyUp();
  EXPECT_EQ(color, kGreen);
  KeyUp();
  EXPECT_EQ(Notifications(), (Changes{1}));
  Open({0, 255, 0, 128});
  TypeHex(@"0000FF");
  EXPECT_EQ(color, kBlue);
}

TEST_F(HXColorDialogTest, AFieldChangesTheColourAndTheHexEntry) {
  Field(2).BeginEdit();
  Type(@"300\r");
  EXPECT_EQ(color, (HXColor{0, 255, 255, 255}));
  EXPECT_EQ(Hex().GetText(), "00FFFF");
  EXPECT_EQ(Notifications(), (Changes{1}));
}

TEST_F(HXColorDialogTest, DraggingAFieldChangesTheColourLive) {
  SendMouse(NSLeftMouseDown, Field(0), {3, 5});
  SendMouse(NSLeftMouseDragged, Field(0), {53, 5});
  EXPECT_EQ(color, (HXColor{10, 255, 0, 255}));
  EXPECT_EQ(Hex().GetText(), "0AFF00");
  SendMouse(NSLeftMouseUp, Field(0), {53, 5});
  EXPECT_EQ(Notifications(), (Changes{1}));
}

TEST_F(HXColorDialogTest, TabMovesTheTypingAmongTheFields) {
  EXPECT_EQ(EditedField(), -1);
  Type(@"\t");
  EXPECT_EQ(EditedField(), 0);
  for (const int next : {1, 2, 0}) {
    Type(@"\t");
    EXPECT_EQ(EditedField(), next);
  }
  Type(@"7\t");
  EXPECT_EQ(color, (HXColor{7, 255, 0, 255}));
  EXPECT_EQ(EditedField(), 1);
}

// Ending

TEST_F(HXColorDialogTest, OkAcceptsOnThePress) {
  Press(kWhiteCorner);
  Release(kWhiteCorner);
  SendMouse(NSLeftMouseDown, Ok(), {5, 5});
  EXPECT_TRUE(dialog->IsClosed());
  EXPECT_TRUE(dialog->IsAccepted());
  EXPECT_EQ(color, kWhite);
  EXPECT_EQ(Notifications(), (Changes{1, 2}));
}

TEST_F(HXColorDialogTest, CancelRestoresOnThePressWithFullAlpha) {
  Open({1, 2, 3, 4});
  Press(kWhiteCorner);
  Release(kWhiteCorner);
  SendMouse(NSLeftMouseDown, Cancel(), {5, 5});
  EXPECT_TRUE(dialog->IsClosed());
  EXPECT_FALSE(dialog->IsAccepted());
  EXPECT_EQ(color, (HXColor{1, 2, 3, 255}));
  EXPECT_EQ(Notifications(), (Changes{1, 1}));
}

TEST_F(HXColorDialogTest, KeysEndIt) {
  EXPECT_TRUE(dialog->OnKeyDown(kKeyReturn));
  EXPECT_TRUE(dialog->OnKeyDown('a'));
  EXPECT_FALSE(dialog->IsClosed());
  EXPECT_TRUE(dialog->OnKeyDown(kKeyInsertNewline));
  EXPECT_TRUE(dialog->IsAccepted());
  Open(kGreen);
  EXPECT_TRUE(dialog->OnKeyDown(kKeyEscape));
  EXPECT_TRUE(dialog->IsClosed());
  EXPECT_FALSE(dialog->IsAccepted());
  EXPECT_EQ(Notifications(), (Changes{1}));
}

TEST_F(HXColorDialogTest, TypedKeysEndItOnceEach) {
  TypeHex(@"0000FF");
  Type(@"\r");
  EXPECT_TRUE(dialog->IsAccepted());
  EXPECT_EQ(Notifications().back(), 2);
  EXPECT_EQ(color, kBlue);
  Open(kGreen);
  TypeHex(@"0000FF");
  owner.changes.clear();
  Type(@"\033");
  EXPECT_TRUE(dialog->IsClosed());
  EXPECT_EQ(color, kGreen);
  EXPECT_EQ(Notifications(), (Changes{1}));
  Open(kRed);
  Type(@"\033");
  EXPECT_TRUE(dialog->IsClosed());
  EXPECT_EQ(Notifications(), (Changes{1}));
}

TEST_F(HXColorDialogTest, EscapeInAFieldEndsOnlyTheTyping) {
  Field(0).BeginEdit();
  Type(@"9\033");
  EXPECT_FALSE(dialog->IsClosed());
  EXPECT_EQ(EditedField(), -1);
  EXPECT_EQ(color, kGreen);
}

TEST_F(HXColorDialogTest, TheCloseButtonCancelsAlsoInTheMiddleOfADrag) {
  Press(kWhiteCorner);
  DragTo({100, 100});
  ASSERT_TRUE(dialog->HasMouseCapture());
  [[dialog->GetNativeView() window] performClose:nil];
  EXPECT_TRUE(dialog->IsClosed());
  EXPECT_FALSE(dialog->HasMouseCapture());
  EXPECT_EQ(color, kGreen);
  EXPECT_EQ(Notifications(), (Changes{1, 1, 1}));
}

TEST_F(HXColorDialogTest, ARunEndsWithTheAnswer) {
  Later([this] { SendMouse(NSLeftMouseDown, Ok(), {5, 5}); });
  EXPECT_EQ(dialog->RunModal(), 0);
  EXPECT_TRUE(dialog->IsAccepted());
  Open(kGreen);
  Later([this] { [[dialog->GetNativeView() window] performClose:nil]; });
  EXPECT_EQ(dialog->RunModal(), 1);
  EXPECT_FALSE(dialog->IsAccepted());
}

TEST_F(HXColorDialogTest, AClosedDialogHearsNothing) {
  dialog->Close();
  Hex().SetText("0000FF");
  KeyUp();
  HXEventSinkRecord record{window.get(), kKeyDown, kKeyTab, 1};
  dialog->OnEventSink(record);
  EXPECT_EQ(record.pass, 1);
  EXPECT_EQ(color, kGreen);
  EXPECT_TRUE(owner.changes.empty());
}

TEST_F(HXColorDialogTest, CanBeDeletedWhileAFieldIsTypedInto) {
  Field(0).BeginEdit();
  Type(@"9");
  dialog.reset();
  Pump();
  EXPECT_EQ(color, kGreen);
  EXPECT_TRUE(owner.changes.empty());
}

TEST_F(HXColorDialogTest, SurvivesItsDeletionByItsOwner) {
  owner.onChange = [this](int) { dialog.reset(); };
  Press(kWhiteCorner);
  EXPECT_EQ(dialog, nullptr);
  Open(kGreen);
  SendMouse(NSLeftMouseDown, Cancel(), {5, 5});
  EXPECT_EQ(dialog, nullptr);
  Open(kGreen);
  TypeHex(@"A");
  EXPECT_EQ(dialog, nullptr);
}

}  // namespace
