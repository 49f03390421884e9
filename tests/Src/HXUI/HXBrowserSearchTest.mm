#include "Src/HXUI/HXBrowserSearch.h"

#include "Src/HXUI/HXBrowserSearchBox.h"
#include "Src/HXUI/HXButton.h"
#include "Src/HXUI/HXObjectGuard.h"
#include "tests/Src/HXUI/ControlTestHelpers.h"
#include "tests/Src/HXUI/TextFixture.h"

namespace {

constexpr HXSize kSize{200, 30};
constexpr HXSize kIdleBox{145, 16};
constexpr HXSize kActiveBox{165, 16};
constexpr HXColor kWell{10, 11, 11, 255};
constexpr HXColor kStrip{34, 35, 38, 255};
constexpr HXColor kHighlight{44, 46, 49, 255};
constexpr HXColor kShadow{10, 10, 10, 255};
constexpr HXColor kBlack{0, 0, 0, 255};

using Changes = std::vector<int>;

class HXBrowserSearchTest : public TextFixture {
 protected:
  HXBrowserSearchTest() { Make(""); }

  void Make(const std::string& text, std::uint32_t flags = 0) {
    delete search;
    search = new HXBrowserSearch(window.get(), {50, 50}, kSize, text, flags);
    search->SetChangeHandler(&ChangeRecorder::OnChange, &owner, 3);
  }

  HXBrowserSearchBox& Box() const {
    return *dynamic_cast<HXBrowserSearchBox*>(search->GetChildren().at(0));
  }
  HXButton& ClearButton() const { return *dynamic_cast<HXButton*>(search->GetChildren().at(1)); }

  Changes Notifications() const {
    Changes notifications;
    for (const Change& change : owner.changes) notifications.push_back(change.notification);
    return notifications;
  }

  void ExpectIdle() {
    EXPECT_EQ(search->GetText(), "Search...");
    EXPECT_FALSE(Box().HasFocus());
    EXPECT_FALSE(ClearButton().IsVisible());
    EXPECT_EQ(Box().GetPosition(), (HXPoint{26, 7}));
    EXPECT_EQ(Box().GetSize(), kIdleBox);
    EXPECT_GT(Draw(*search)->Ink({7, 6, 16, 16}, kWell), 0);
  }

  HXBrowserSearch* search = nullptr;
  ChangeRecorder owner;
};

TEST_F(HXBrowserSearchTest, IsBuiltFromABoxAndAHiddenButton) {
  EXPECT_EQ(search->GetColor(), (HXColor{54, 55, 58, 255}));
  EXPECT_EQ(Box().GetPosition(), (HXPoint{26, 7}));
  EXPECT_EQ(Box().GetSize(), (HXSize{153, 16}));
  EXPECT_EQ(Box().GetColor(), kWell);
  EXPECT_EQ(Box().GetTextColor(), (HXColor{158, 158, 158, 255}));
  EXPECT_EQ([FieldOf(Box()) focusRingType], NSFocusRingTypeNone);
  EXPECT_EQ(ClearButton().GetPosition(), (HXPoint{177, 7}));
  EXPECT_EQ(ClearButton().GetSize(), (HXSize{16, 15}));
  EXPECT_FALSE(ClearButton().IsVisible());
}

TEST_F(HXBrowserSearchTest, ItsFlagsAreTheBoxs) {
  EXPECT_NE([FieldOf(Box()) alignment], NSCenterTextAlignment);
  EXPECT_TRUE([FieldOf(Box()) isEditable]);
  Make("oak", HXTextControl::kCentred | HXTextControl::kReadOnly);
  EXPECT_EQ([FieldOf(Box()) alignment], NSCenterTextAlignment);
  EXPECT_FALSE([FieldOf(Box()) isEditable]);
  EXPECT_EQ([FieldOf(Box()) focusRingType], NSFocusRingTypeNone);
}

TEST_F(HXBrowserSearchTest, TheInitialTextReplacesThePlaceholder) {
  EXPECT_EQ(search->GetText(), "Search...");
  Make("oak");
  EXPECT_EQ(search->GetText(), "oak");
  EXPECT_FALSE(ClearButton().IsVisible());
}

TEST_F(HXBrowserSearchTest, TheKeyboardTakesAwayPlaceholderAndIcon) {
  search->OnFocusGained();
  EXPECT_TRUE(Box().HasFocus());
  EXPECT_EQ(search->GetText(), "");
  EXPECT_EQ(Box().GetPosition(), (HXPoint{6, 7}));
  EXPECT_EQ(Box().GetSize(), kActiveBox);
  EXPECT_FALSE(ClearButton().IsVisible());
  EXPECT_TRUE(owner.changes.empty());
}

TEST_F(HXBrowserSearchTest, AClickIntoTheFieldTakesTheKeyboard) {
  ClickInto(Box(), {20, 8});
  EXPECT_TRUE(Box().HasFocus());
  EXPECT_EQ(search->GetText(), "");
  EXPECT_EQ(Box().GetSize(), kActiveBox);
}

TEST_F(HXBrowserSearchTest, LeavingTheEmptyFieldBringsThemBack) {
  search->OnFocusGained();
  window->SetFocus();
  ExpectIdle();
  EXPECT_TRUE(owner.changes.empty());
}

TEST_F(HXBrowserSearchTest, LeavingTheFieldKeepsItsText) {
  search->OnFocusGained();
  Type(@"oak");
  window->SetFocus();
  EXPECT_EQ(search->GetText(), "oak");
  EXPECT_EQ(Box().GetPosition(), (HXPoint{26, 7}));
  EXPECT_EQ(Box().GetSize(), kIdleBox);
  EXPECT_TRUE(ClearButton().IsVisible());
  search->OnFocusGained();
  EXPECT_EQ(search->GetText(), "oak");
}

TEST_F(HXBrowserSearchTest, ASearchForThePlaceholderIsLostWhenTheKeyboardComesBack) {
  search->OnFocusGained();
  Type(@"Search...");
  window->SetFocus();
  EXPECT_EQ(search->GetText(), "Search...");
  search->OnFocusGained();
  EXPECT_EQ(search->GetText(), "");
}

TEST_F(HXBrowserSearchTest, TypingShowsTheButtonAndEachCharacterIsReported) {
  search->OnFocusGained();
  Type(@"o");
  EXPECT_TRUE(ClearButton().IsVisible());
  EXPECT_EQ(Notifications(), (Changes{2}));
  EXPECT_EQ(owner.changes[0].commandId, 3U);
  EXPECT_EQ(owner.changes[0].sender, static_cast<HXControl*>(search));
  Type(@"ak");
  EXPECT_EQ(search->GetText(), "oak");
  EXPECT_EQ(Notifications(), (Changes{2, 2, 2}));
}

TEST_F(HXBrowserSearchTest, TheOwnerReadsTheTextAsItIsAlready) {
  std::vector<std::string> texts;
  owner.onChange = [&](int) { texts.push_back(search->GetText()); };
  search->OnFocusGained();
  Type(@"ab");
  EXPECT_EQ(texts, (std::vector<std::string>{"a", "ab"}));
}

TEST_F(HXBrowserSearchTest, DeletingTheLastCharacterHidesTheButton) {
  search->OnFocusGained();
  Type(@"o");
  [Editor() deleteBackward:nil];
  EXPECT_EQ(search->GetText(), "");
  EXPECT_FALSE(ClearButton().IsVisible());
  EXPECT_EQ(Notifications(), (Changes{2, 2}));
  EXPECT_TRUE(Box().HasFocus());
}

TEST_F(HXBrowserSearchTest, EscapeClearsAndLeaves) {
  search->OnFocusGained();
  Type(@"oak");
  owner.changes.clear();
  Type(@"\033");
  ExpectIdle();
  EXPECT_EQ(Notifications(), (Changes{2}));
}

TEST_F(HXBrowserSearchTest, TheButtonClearsAndLeaves) {
  search->OnFocusGained();
  Type(@"oak");
  owner.changes.clear();
  SendMouse(NSLeftMouseDown, ClearButton(), {5, 5});
  EXPECT_TRUE(owner.changes.empty());
  SendMouse(NSLeftMouseUp, ClearButton(), {5, 5});
  ExpectIdle();
  EXPECT_EQ(Notifications(), (Changes{2}));
}

TEST_F(HXBrowserSearchTest, TheButtonWorksOnAnIdleField) {
  search->OnFocusGained();
  Type(@"oak");
  window->SetFocus();
  owner.changes.clear();
  Click(ClearButton(), {5, 5});
  ExpectIdle();
  EXPECT_EQ(Notifications(), (Changes{2}));
}

TEST_F(HXBrowserSearchTest, TabReturnAndEscapeAreNoChangesOfTheText) {
  search->OnFocusGained();
  for (const std::int64_t key : {9, 13, 16, 27}) {
    HXEventSinkRecord record{&Box(), kKeyUp, key, 1};
    Box().OnEventSink(record);
    EXPECT_EQ(record.pass, 1);
  }
  EXPECT_TRUE(owner.changes.empty());
  HXEventSinkRecord record{&Box(), kKeyUp, 'a', 1};
  Box().OnEventSink(record);
  EXPECT_EQ(Notifications(), (Changes{2}));
}

TEST_F(HXBrowserSearchTest, EveryKeyThatComesUpIsReportedOnceMore) {
  search->OnFocusGained();
  Type(@"o");
  SendKeyUp(*window, @"o");
  EXPECT_EQ(Notifications(), (Changes{2, 2}));
  SendKeyUp(*window,
            [NSString stringWithFormat:@"%C", static_cast<unichar>(NSLeftArrowFunctionKey)]);
  EXPECT_EQ(Notifications(), (Changes{2, 2, 2}));
}

TEST_F(HXBrowserSearchTest, KeysElsewhereAreNoChangesOfTheText) {
  HXEventSinkRecord record{window.get(), kKeyUp, 'a', 1};
  Box().OnEventSink(record);
  auto* other = new HXTextControl(window.get(), {20, 120}, {100, 20}, "", 0);
  other->SetFocus();
  Type(@"x");
  EXPECT_EQ(other->GetText(), "x");
  EXPECT_TRUE(owner.changes.empty());
}

TEST_F(HXBrowserSearchTest, OnlyEscapeIsSwallowed) {
  for (const int key : {9, 16, 25, int{'a'}}) EXPECT_TRUE(Box().OnKeyDown(key)) << key;
  EXPECT_FALSE(Box().OnKeyDown(27));
}

TEST_F(HXBrowserSearchTest, FollowsItsSize) {
  search->SetSize({300, 30});
  EXPECT_EQ(Box().GetSize(), (HXSize{245, 16}));
  EXPECT_EQ(Box().GetPosition(), (HXPoint{26, 7}));
  EXPECT_EQ(ClearButton().GetPosition(), (HXPoint{277, 7}));
}

TEST_F(HXBrowserSearchTest, DrawsASunkenWellOnAStrip) {
  const auto pixels = Draw(*search);
  EXPECT_EQ(CountOther(*pixels, {0, 0, 200, 1}, kHighlight), 0);
  EXPECT_EQ(CountOther(*pixels, {0, 29, 200, 1}, kShadow), 0);
  EXPECT_EQ(CountOther(*pixels, {0, 1, 200, 4}, kStrip), 0);
  EXPECT_EQ(CountOther(*pixels, {0, 25, 200, 4}, kStrip), 0);
  EXPECT_EQ(CountOther(*pixels, {0, 1, 5, 28}, kStrip), 0);
  EXPECT_EQ(CountOther(*pixels, {195, 1, 5, 28}, kStrip), 0);
  EXPECT_EQ(CountOther(*pixels, {5, 5, 190, 1}, kShadow), 0);
  EXPECT_EQ(CountOther(*pixels, {5, 24, 190, 1}, kHighlight), 0);
  EXPECT_EQ(CountOther(*pixels, {5, 6, 1, 18}, kBlack), 0);
  EXPECT_EQ(CountOther(*pixels, {194, 6, 1, 18}, kBlack), 0);
  EXPECT_EQ(CountOther(*pixels, {5, 23, 190, 1}, kBlack), 0);
  EXPECT_EQ(pixels->At(190, 8), kWell);
}

TEST_F(HXBrowserSearchTest, TheIconIsThereOnlyWhileIdle) {
  EXPECT_GT(Draw(*search)->Ink({7, 6, 16, 16}, kWell), 60);
  search->OnFocusGained();
  // No more than the caret.
  EXPECT_LE(Draw(*search)->Ink({7, 6, 16, 16}, kWell), 20);
}

TEST_F(HXBrowserSearchTest, CanBeDeletedWhileItIsTypedInto) {
  search->OnFocusGained();
  Type(@"oak");
  owner.changes.clear();
  delete search;
  search = nullptr;
  Pump();
  EXPECT_TRUE(owner.changes.empty());
}

TEST_F(HXBrowserSearchTest, HearsNothingOfItsBoxOnceItIsDeleted) {
  search->OnFocusGained();
  Type(@"oak");
  NSView* box = [[Box().GetNativeView() retain] autorelease];
  const NSRect frame = [box frame];
  delete search;
  search = nullptr;
  Pump();
  // While it is typed into, the box is wider.
  EXPECT_TRUE(NSEqualRects([box frame], frame));
}

TEST_F(HXBrowserSearchTest, SurvivesItsDeletionByItsOwner) {
  const HXObjectGuard guard(search);
  owner.onChange = [&](int) {
    delete search;
    search = nullptr;
  };
  search->OnFocusGained();
  Type(@"o");
  EXPECT_FALSE(guard.IsAlive());
}

TEST_F(HXBrowserSearchTest, SurvivesItsDeletionWhileItIsCleared) {
  search->OnFocusGained();
  Type(@"o");
  const HXObjectGuard guard(search);
  owner.onChange = [&](int) {
    delete search;
    search = nullptr;
  };
  Type(@"\033");
  EXPECT_FALSE(guard.IsAlive());
}

}  // namespace
