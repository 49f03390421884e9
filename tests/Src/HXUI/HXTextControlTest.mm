#include "Src/HXUI/HXTextControl.h"

#include "Src/HXUI/Cocoa/Conversions.h"
#import "Src/HXUI/Cocoa/HXTextField.h"
#include "Src/HXUI/HXObjectGuard.h"
#include "tests/Src/HXUI/TextFixture.h"

namespace {

constexpr std::uint32_t kRichText = 49;

constexpr char kShortRtf[] = "{\\rtf1\\ansi{\\fonttbl{\\f0\\fnil Verdana;}}\\f0\\fs20 One line}";

/// Every component of a colour as bytes.
HXColor Bytes(NSColor* color) {
  color = [color colorUsingColorSpaceName:NSDeviceRGBColorSpace];
  const auto byte = [](CGFloat part) { return static_cast<std::uint8_t>(part * 255 + 0.5); };
  return {byte([color redComponent]), byte([color greenComponent]), byte([color blueComponent]),
          byte([color alphaComponent])};
}

/// (250, 120, 30), or nearly so: the edges of letters are smooth.
bool IsOrange(HXColor color) {
  return color.red > 200 && std::abs(color.green - color.red * 12 / 25) < 4 &&
         std::abs(color.blue - color.red * 3 / 25) < 4;
}

class HXTextControlTest : public TextFixture {
 protected:
  HXTextControl* Make(std::uint32_t flags, const std::string& text = "text") {
    return new HXTextControl(window.get(), {20, 30}, {200, 24}, text, flags);
  }
  RecordingTextControl* MakeRecording(std::uint32_t flags, HXPoint position = {20, 20}) {
    return new RecordingTextControl(window.get(), log, "text", flags, position);
  }
};

// Construction

TEST_F(HXTextControlTest, WithoutFlagsItIsAPlainEditableFieldAtItsPlace) {
  HXTextControl* control = Make(0);
  NSTextField* field = FieldOf(*control);
  ASSERT_TRUE([field isKindOfClass:[HXTextField class]]);
  EXPECT_EQ([field superview], window -> GetNativeView());
  EXPECT_EQ(control->GetPosition(), (HXPoint{20, 30}));
  EXPECT_EQ(control->GetSize(), (HXSize{200, 24}));
  EXPECT_EQ(control->GetMinSize(), (HXSize{200, 24}));
  EXPECT_TRUE([field isEditable]);
  EXPECT_TRUE([field isSelectable]);
  EXPECT_FALSE([field isBezeled]);
  EXPECT_FALSE([field isBordered]);
  EXPECT_EQ([field alignment], static_cast<NSTextAlignment>(NSLeftTextAlignment));
  EXPECT_NE([field focusRingType], NSFocusRingTypeNone);
  EXPECT_EQ(control->GetText(), "text");
  EXPECT_TRUE(control->IsVisible());
  EXPECT_FALSE([field isHidden]);
  EXPECT_FALSE(control->IsEditing());
  EXPECT_FALSE(control->IsMultiLine());
  EXPECT_FALSE(control->IsPassword());
}

TEST_F(HXTextControlTest, ReadOnlyCanStillBeSelected) {
  NSTextField* field = FieldOf(*Make(HXTextControl::kReadOnly));
  EXPECT_FALSE([field isEditable]);
  EXPECT_TRUE([field isSelectable]);
}

TEST_F(HXTextControlTest, ReadOnlyTextDoesNotTakeWhatIsTyped) {
  HXTextControl* control = Make(HXTextControl::kReadOnly);
  control->SetFocus();
  Type(@"x");
  EXPECT_EQ(control->GetText(), "text");
}

TEST_F(HXTextControlTest, CentredTextIsCentred) {
  HXTextControl* control = Make(HXTextControl::kCentred, "mid");
  EXPECT_EQ([FieldOf(*control) alignment], static_cast<NSTextAlignment>(NSCenterTextAlignment));
  control->SetColor({255, 255, 255});
  const HXRect ink = Draw(*control)->InkBounds({0, 0, 200, 24}, {255, 255, 255});
  EXPECT_NEAR(ink.x + ink.width / 2, 100, 3);
}

TEST_F(HXTextControlTest, CentredTextStaysInSightWhileItIsEdited) {
  HXTextControl* control = Make(HXTextControl::kCentred, "mid");
  control->SetColor({255, 255, 255});
  control->SetFocus();
  Type(@"m");
  const HXRect ink = Draw(*control)->InkBounds({0, 0, 200, 24}, {255, 255, 255});
  EXPECT_NEAR(ink.x + ink.width / 2, 100, 6);
}

TEST_F(HXTextControlTest, LongTextScrollsSidewaysToWhereItIsTyped) {
  HXTextControl* control = Make(0, "");
  control->SetColor({255, 255, 255});
  control->SetFocus();
  Type(@"WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW");
  const HXRect ink = Draw(*control)->InkBounds({0, 0, 200, 24}, {255, 255, 255});
  EXPECT_GT(ink.width, 190);
  EXPECT_LT(ink.height, 20);
}

TEST_F(HXTextControlTest, PasswordIsTheSecureFieldAndShowsNoLetters) {
  HXTextControl* control = Make(HXTextControl::kPassword, "iiii");
  EXPECT_TRUE([FieldOf(*control) isKindOfClass:[NSSecureTextField class]]);
  EXPECT_TRUE(control->IsPassword());
  EXPECT_EQ(control->GetText(), "iiii");
  control->SetColor({255, 255, 255});
  const HXRect thin = Draw(*control)->InkBounds({0, 0, 200, 24}, {255, 255, 255});
  control->SetText("WWWW");
  const HXRect wide = Draw(*control)->InkBounds({0, 0, 200, 24}, {255, 255, 255});
  EXPECT_GT(thin.width, 0);
  EXPECT_EQ(thin, wide);
}

TEST_F(HXTextControlTest, BezeledHasABezelAndThePlainFieldHasNone) {
  EXPECT_TRUE([FieldOf(*Make(HXTextControl::kBezeled)) isBezeled]);
  HXTextControl* plain = Make(0, "");
  plain->SetColor({255, 255, 255});
  EXPECT_EQ(Draw(*plain)->Ink({0, 0, 200, 24}, {255, 255, 255}), 0);
}

TEST_F(HXTextControlTest, TheFocusRingCanBeTakenAway) {
  EXPECT_EQ([FieldOf(*Make(HXTextControl::kNoFocusRing)) focusRingType], NSFocusRingTypeNone);
}

TEST_F(HXTextControlTest, MultiLineIsATextViewWhateverTheOtherFlagsSay) {
  HXTextControl* control =
      Make(HXTextControl::kMultiLine | HXTextControl::kCentred | HXTextControl::kPassword |
               HXTextControl::kBezeled | HXTextControl::kNoFocusRing,
           kShortRtf);
  NSTextView* view = TextViewOf(*control);
  ASSERT_TRUE([view isKindOfClass:[NSTextView class]]);
  EXPECT_TRUE(control->IsMultiLine());
  EXPECT_FALSE(control->IsPassword());
  EXPECT_TRUE([view isEditable]);
  EXPECT_TRUE([view isSelectable]);
  EXPECT_NE([view focusRingType], NSFocusRingTypeNone);
  EXPECT_EQ(control->GetText(), "One line");
}

TEST_F(HXTextControlTest, TheLicencesFlagsGiveReadOnlyRichText) {
  NSTextView* view = TextViewOf(*Make(kRichText, kShortRtf));
  ASSERT_TRUE([view isKindOfClass:[NSTextView class]]);
  EXPECT_FALSE([view isEditable]);
  EXPECT_TRUE([view isSelectable]);
}

TEST_F(HXTextControlTest, WorksWithoutAParent) {
  HXTextControl control(nullptr, {0, 0}, {100, 20}, "alone", 0);
  EXPECT_EQ(control.GetText(), "alone");
  control.SetTextColor({1, 2, 3});
  control.SelectAll();
  control.SetFocus();
  EXPECT_FALSE(control.HasFocus());
}

TEST_F(HXTextControlTest, TheOwnersNumberStartsAtZero) {
  HXTextControl* control = Make(0);
  EXPECT_EQ(control->GetValue(), 0);
  control->SetValue(-7);
  EXPECT_EQ(control->GetValue(), -7);
}

// Text

TEST_F(HXTextControlTest, TextComesBackAsItWasGiven) {
  HXTextControl* control = Make(0);
  for (const char* text : {"", "größer", "写真 \xF0\x9F\x8E\xA5", "a  b "}) {
    control->SetText(text);
    EXPECT_EQ(control->GetText(), text);
  }
}

TEST_F(HXTextControlTest, InvalidUtf8GivesAnEmptyText) {
  HXTextControl* control = Make(0);
  control->SetText("a\xFF");
  EXPECT_EQ(control->GetText(), "");
  HXTextControl* born = Make(0, "\xC0\x80");
  EXPECT_EQ(born->GetText(), "");
}

TEST_F(HXTextControlTest, TextOfTheProgramMayBeLongerThanTheMaximum) {
  HXTextControl* control = Make(0);
  control->SetText(std::string(150, 'a'));
  EXPECT_EQ(control->GetText(), std::string(150, 'a'));
}

TEST_F(HXTextControlTest, SettingTheTextWhileEditingGoesOnEditing) {
  RecordingTextControl* control = MakeRecording(0);
  control->SetFocus();
  Type(@"x");
  log.clear();
  control->SetText("new");
  EXPECT_TRUE(log.empty());
  EXPECT_TRUE(control->HasFocus());
  EXPECT_EQ(control->GetText(), "new");
  Type(@"!");
  EXPECT_EQ(control->GetText(), "new!");
  [[Editor() undoManager] undo];
  EXPECT_TRUE(control->HasFocus());
}

TEST_F(HXTextControlTest, TextWhileEditingIsWhatIsThereNow) {
  HXTextControl* control = Make(0, "");
  control->SetFocus();
  Type(@"ab");
  EXPECT_EQ(control->GetText(), "ab");
}

// Colours

TEST_F(HXTextControlTest, TheColourIsTheBackground) {
  HXTextControl* control = Make(0, "");
  control->SetColor({10, 11, 12});
  EXPECT_EQ(control->GetColor(), (HXColor{10, 11, 12}));
  EXPECT_EQ(Bytes([FieldOf(*control) backgroundColor]), (HXColor{10, 11, 12}));
  EXPECT_EQ(Draw(*control)->At(100, 12), (HXColor{10, 11, 12}));
}

TEST_F(HXTextControlTest, TheColourIsTheBackgroundOfRichTextToo) {
  HXTextControl* control = Make(kRichText, kShortRtf);
  control->SetColor({200, 210, 220});
  EXPECT_EQ(Draw(*control)->At(190, 5), (HXColor{200, 210, 220}));
}

TEST_F(HXTextControlTest, TheTextColourIsTheTextsAndTheCarets) {
  HXTextControl* control = Make(0, "MMM");
  control->SetColor({0, 0, 0});
  control->SetTextColor({250, 120, 30});
  EXPECT_EQ(control->GetTextColor(), (HXColor{250, 120, 30}));
  const auto drawn = Draw(*control);
  EXPECT_GT(drawn->Count({0, 0, 200, 24}, IsOrange), 5);
  NSTextView* editor = static_cast<NSTextView*>([NativeWindow() fieldEditor:YES
                                                                  forObject:FieldOf(*control)]);
  EXPECT_EQ(Bytes([editor insertionPointColor]), (HXColor{250, 120, 30}));
}

TEST_F(HXTextControlTest, TheTextColourLastsWhileTheTextIsEdited) {
  HXTextControl* control = Make(0, "");
  control->SetColor({0, 0, 0});
  control->SetTextColor({250, 120, 30});
  control->SetFocus();
  Type(@"MMM");
  EXPECT_GT(Draw(*control)->Count({0, 0, 60, 24}, IsOrange), 5);
}

TEST_F(HXTextControlTest, TheTextColourOfRichTextIsThatOfAllItsCharacters) {
  HXTextControl* control = Make(kRichText, kShortRtf);
  control->SetTextColor({1, 2, 3});
  NSColor* color = [[TextViewOf(*control) textStorage] attribute:NSForegroundColorAttributeName
                                                         atIndex:3
                                                  effectiveRange:nullptr];
  EXPECT_EQ(Bytes(color), (HXColor{1, 2, 3}));
}

// Focus

TEST_F(HXTextControlTest, FocusIsTheFieldBeingEdited) {
  RecordingTextControl* first = MakeRecording(0);
  RecordingTextControl* second = MakeRecording(0, {20, 60});
  EXPECT_FALSE(first->HasFocus());
  first->SetFocus();
  EXPECT_TRUE(first->HasFocus());
  EXPECT_TRUE(first->IsEditing());
  EXPECT_FALSE(second->HasFocus());
  second->SetFocus();
  EXPECT_FALSE(first->HasFocus());
  EXPECT_FALSE(first->IsEditing());
  EXPECT_TRUE(second->HasFocus());
  EXPECT_EQ(log, (Log{"gained", "lost", "gained"}));
}

TEST_F(HXTextControlTest, ClickingIntoAnotherControlSendsFocusLostOnce) {
  RecordingTextControl* first = MakeRecording(0);
  RecordingTextControl* second = MakeRecording(0, {20, 60});
  ClickInto(*first, {100, 12});
  EXPECT_EQ(log, Log{"gained"});
  EXPECT_TRUE(first->IsEditing());
  ClickInto(*second, {100, 12});
  EXPECT_EQ(log, (Log{"gained", "lost", "gained"}));
  [NativeWindow() makeFirstResponder:nil];
  [NativeWindow() makeFirstResponder:nil];
  EXPECT_EQ(log, (Log{"gained", "lost", "gained", "lost"}));
}

TEST_F(HXTextControlTest, TakingTheFocusAgainDoesNotEndTheEditing) {
  RecordingTextControl* control = MakeRecording(0);
  control->SetFocus();
  Type(@"ab");
  log.clear();
  control->SetFocus();
  EXPECT_TRUE(log.empty());
  EXPECT_TRUE(control->HasFocus());
  EXPECT_TRUE(control->IsEditing());
  EXPECT_EQ(control->GetText(), "ab");
}

TEST_F(HXTextControlTest, APasswordFieldSendsFocusLostOnlyAfterSetFocus) {
  RecordingTextControl* control = MakeRecording(HXTextControl::kPassword);
  ClickInto(*control, {100, 12});
  EXPECT_TRUE(control->HasFocus());
  EXPECT_FALSE(control->IsEditing());
  [NativeWindow() makeFirstResponder:nil];
  EXPECT_TRUE(log.empty());
  control->SetFocus();
  EXPECT_TRUE(control->IsEditing());
  [NativeWindow() makeFirstResponder:nil];
  EXPECT_EQ(log, Log{"lost"});
}

TEST_F(HXTextControlTest, AMultiLineControlNeverHasTheFocusItSaysItHas) {
  RecordingTextControl* control = MakeRecording(HXTextControl::kMultiLine);
  control->SetFocus();
  EXPECT_EQ([NativeWindow() firstResponder], control -> GetNativeView());
  EXPECT_FALSE(control->HasFocus());
  EXPECT_TRUE(control->IsEditing());
  [NativeWindow() makeFirstResponder:nil];
  EXPECT_TRUE(control->IsEditing());
  EXPECT_TRUE(log.empty());
}

TEST_F(HXTextControlTest, HidingTheControlEndsItsEditing) {
  RecordingTextControl* control = MakeRecording(0);
  control->SetFocus();
  control->SetVisible(false);
  EXPECT_EQ(log, (Log{"gained", "lost"}));
}

TEST_F(HXTextControlTest, ClosingTheControlEndsItsEditing) {
  RecordingTextControl* control = MakeRecording(0);
  control->SetFocus();
  control->Close();
  EXPECT_EQ(log, (Log{"gained", "lost"}));
  EXPECT_FALSE(control->HasFocus());
}

TEST_F(HXTextControlTest, EndingTheEditingFromWithinFocusLostSendsItOnce) {
  RecordingTextControl* control = MakeRecording(0);
  control->onLost = [control] { control->SetVisible(false); };
  control->SetFocus();
  [NativeWindow() makeFirstResponder:nil];
  EXPECT_EQ(log, (Log{"gained", "lost"}));
}

// Selection

TEST_F(HXTextControlTest, SelectAllSelectsTheWholeTextAndTakesTheKeyboard) {
  RecordingTextControl* control = MakeRecording(0);
  control->SelectAll();
  EXPECT_EQ(log, Log{"gained"});
  EXPECT_TRUE(control->HasFocus());
  EXPECT_TRUE(NSEqualRanges([Editor() selectedRange], NSMakeRange(0, 4)));
  control->SetFocus();
  EXPECT_EQ(log, Log{"gained"});
  Type(@"n");
  EXPECT_EQ(control->GetText(), "n");
}

TEST_F(HXTextControlTest, SelectAllWhileEditingSelectsWhatIsThere) {
  RecordingTextControl* control = MakeRecording(0);
  control->SetFocus();
  Type(@"abc");
  log.clear();
  control->SelectAll();
  EXPECT_TRUE(NSEqualRanges([Editor() selectedRange], NSMakeRange(0, 3)));
  EXPECT_TRUE(log.empty());
}

TEST_F(HXTextControlTest, SelectAllDoesNothingInAMultiLineControl) {
  HXTextControl* control = Make(kRichText, kShortRtf);
  control->SelectAll();
  EXPECT_EQ([TextViewOf(*control) selectedRange].length, 0U);
  EXPECT_NE([NativeWindow() firstResponder], control -> GetNativeView());
}

// End of life

TEST_F(HXTextControlTest, DeletedWhileEditedItSendsNothingMore) {
  RecordingTextControl* control = MakeRecording(0);
  control->SetFocus();
  Type(@"x");
  log.clear();
  delete control;
  EXPECT_TRUE(log.empty());
  EXPECT_EQ([NativeWindow() firstResponder], NativeWindow());
  Type(@"y");
  RecordingTextControl* next = MakeRecording(0);
  next->SetFocus();
  Type(@"z");
  EXPECT_EQ(next->GetText(), "z");
}

TEST_F(HXTextControlTest, AFieldThatOutlivesItsControlIsHarmless) {
  RecordingTextControl* control = MakeRecording(0);
  NSTextField* field = [[FieldOf(*control) retain] autorelease];
  delete control;
  [window->GetNativeView() addSubview:field];
  [NativeWindow() makeFirstResponder:field];
  Type(@"abc\r\t");
  [NativeWindow() makeFirstResponder:nil];
  [field removeFromSuperview];
  EXPECT_TRUE([[field stringValue] isEqualToString:@"abc"]);
  EXPECT_TRUE(log.empty());
}

TEST_F(HXTextControlTest, MayBeDeletedInItsFocusCallbacks) {
  RecordingTextControl* control = MakeRecording(0);
  control->onGained = [control] { delete control; };
  HXObjectGuard guard(control);
  control->SetFocus();
  EXPECT_FALSE(guard.IsAlive());

  RecordingTextControl* second = MakeRecording(0);
  second->onLost = [second] { delete second; };
  second->SetFocus();
  HXObjectGuard secondGuard(second);
  [NativeWindow() makeFirstResponder:nil];
  EXPECT_FALSE(secondGuard.IsAlive());
  EXPECT_EQ(log, (Log{"gained", "gained", "lost"}));
}

TEST_F(HXTextControlTest, MayBeDeletedWhenTabLeavesIt) {
  RecordingTextControl* control = MakeRecording(0);
  RecordingTextControl* next = MakeRecording(0, {20, 60});
  [FieldOf(*control) setNextKeyView:FieldOf(*next)];
  control->onLost = [control] { delete control; };
  control->SetFocus();
  HXObjectGuard guard(control);
  Type(@"\t");
  EXPECT_FALSE(guard.IsAlive());
  Type(@"a");
}

}  // namespace
