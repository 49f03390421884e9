#include <cmath>

#include "Src/HXUI/HXControlFloatList.h"
#include "tests/Src/HXUI/ControlFloatFixture.h"
#include "tests/support/CommaLocale.h"

namespace {

using Changes = std::vector<int>;

constexpr float kNoNumber = std::numeric_limits<float>::quiet_NaN();

/// Typing into the field, from the click to the end of the editing.
class HXControlFloatEditingTest : public ControlFloatFixture {
 protected:
  /// Opens the editor, replaces its text and ends with Return.
  void Enter(NSString* text) {
    field->BeginEdit();
    Type(text);
    Type(@"\r");
  }
};

TEST_F(HXControlFloatEditingTest, AClickOpensTheEditorWithItsTextSelected) {
  number = 12.34F;
  Make();
  Click(*field, kInside);
  EXPECT_TRUE(field->IsEditing());
  EXPECT_EQ(field->GetSize(), (HXSize{40, 18}));
  const HXTextBox& editor = EditorOf(*field);
  EXPECT_TRUE(editor.IsVisible());
  EXPECT_TRUE(editor.HasFocus());
  EXPECT_EQ(editor.GetText(), "12.3");
  EXPECT_EQ([Editor() selectedRange].length, 4U);
  EXPECT_TRUE(owner.changes.empty());
}

TEST_F(HXControlFloatEditingTest, TheEdgesCountAsInside) {
  Make();
  const HXSize size = field->GetSize();
  for (const HXPoint point : {HXPoint{0, 0}, {size.width, 5}, {5, size.height}}) {
    SendMouse(NSLeftMouseDown, *field, kInside);
    SendMouse(NSLeftMouseUp, *field, point);
    EXPECT_TRUE(field->IsEditing()) << point.x << ", " << point.y;
    field->EndEdit(false);
  }
  for (const HXPoint point : {HXPoint{-1, 5}, {5, -1}, {size.width + 1, 5}, {5, size.height + 1}}) {
    SendMouse(NSLeftMouseDown, *field, kInside);
    SendMouse(NSLeftMouseUp, *field, point);
    EXPECT_FALSE(field->IsEditing()) << point.x << ", " << point.y;
  }
}

TEST_F(HXControlFloatEditingTest, TheEditorStartsWithTheTextOfTheFormat) {
  number = 0.12345F;
  const char* texts[] = {"0.1", "0", "0.1", "0.1", "0.1", "0.1", "0.123", "12.3", "0.1"};
  for (int format = 0; format <= 8; ++format) {
    Make(format)->BeginEdit();
    EXPECT_EQ(EditorOf(*field).GetText(), texts[format]) << format;
  }
}

TEST_F(HXControlFloatEditingTest, AnUnboundFieldEditsZero) {
  Make(6)->SetValuePointer(nullptr);
  field->BeginEdit();
  EXPECT_EQ(EditorOf(*field).GetText(), "0.000");
}

TEST_F(HXControlFloatEditingTest, ReturnTakesTheTypedNumber) {
  Make(0, 0, 0);
  std::vector<float> seen;
  owner.onChange = [&](int) { seen.push_back(number); };
  Enter(@"73.25");
  EXPECT_FALSE(field->IsEditing());
  EXPECT_EQ(number, 73.25F);
  EXPECT_EQ(field->GetSize(), SizeFor("73.2"));
  EXPECT_EQ(Notifications(), (Changes{0, 2}));
  EXPECT_EQ(seen, (std::vector<float>{50, 73.25F}));
  EXPECT_FALSE(EditorOf(*field).HasFocus());
}

TEST_F(HXControlFloatEditingTest, ACommaIsADecimalPoint) {
  Make(0, 0, 0);
  Enter(@"1,5");
  EXPECT_EQ(number, 1.5F);
}

TEST_F(HXControlFloatEditingTest, AFractionIsTypedAsAPercentage) {
  Make(7, 0, 1);
  number = 0;
  Enter(@"50");
  EXPECT_EQ(number, 0.5F);
  EXPECT_EQ(field->GetSize(), SizeFor("50.0%"));
}

TEST_F(HXControlFloatEditingTest, TheSameNumberBeginsAChangeAndDoesNotFinishIt) {
  Make();
  Enter(@"50");
  EXPECT_EQ(Notifications(), (Changes{0}));
}

TEST_F(HXControlFloatEditingTest, EscapeReportsNothing) {
  Make();
  field->BeginEdit();
  Type(@"7");
  Type(@"\033");
  EXPECT_FALSE(field->IsEditing());
  EXPECT_EQ(number, 50);
  EXPECT_EQ(field->GetSize(), SizeFor("50.0"));
  EXPECT_TRUE(owner.changes.empty());
}

TEST_F(HXControlFloatEditingTest, TextWithoutANumberLeavesTheValue) {
  Make();
  for (NSString* text : {@"abc", @"-", @"1e400", @"-1e400"}) {
    owner.changes.clear();
    Enter(text);
    EXPECT_EQ(number, 50);
    EXPECT_EQ(Notifications(), (Changes{0}));
  }
}

TEST_F(HXControlFloatEditingTest, AnEmptyTextLeavesTheValue) {
  Make()->BeginEdit();
  Paste(@"");
  EditorOf(*field).SetText("");
  Type(@"\r");
  EXPECT_EQ(number, 50);
  EXPECT_EQ(Notifications(), (Changes{0}));
}

TEST_F(HXControlFloatEditingTest, EvenWithoutANumberTheValueIsLimited) {
  number = 500;
  Make();
  Enter(@"x");
  EXPECT_EQ(number, 100);
  EXPECT_EQ(Notifications(), (Changes{0, 2}));
}

TEST_F(HXControlFloatEditingTest, TypedNumbersStayWithinTheRange) {
  Make(0, 10, 90);
  Enter(@"1000");
  EXPECT_EQ(number, 90);
  Enter(@"-5");
  EXPECT_EQ(number, 10);
  Enter(@"inf");
  EXPECT_EQ(number, 90);
  Make(0, 7, 7);
  Enter(@"1000");
  EXPECT_EQ(number, 1000);
  Enter(@"-inf");
  EXPECT_EQ(number, -std::numeric_limits<float>::infinity());
}

TEST_F(HXControlFloatEditingTest, TypedAnglesWrapAround) {
  Make(2, 0, 0);
  Enter(@"-30");
  EXPECT_EQ(number, 330);
  Enter(@"360");
  EXPECT_EQ(number, 0);
  Enter(@"725");
  EXPECT_EQ(number, 5);
  Enter(@"inf");
  EXPECT_TRUE(std::isnan(number));
}

TEST_F(HXControlFloatEditingTest, WhatIsNoNumberAlwaysCountsAsADifference) {
  Make(0, 0, 0);
  Enter(@"nan");
  EXPECT_TRUE(std::isnan(number));
  EXPECT_EQ(Notifications(), (Changes{0, 2}));
  owner.changes.clear();
  Enter(@"nan");
  EXPECT_EQ(Notifications(), (Changes{0, 2}));
  number = kNoNumber;
  owner.changes.clear();
  Enter(@"1");
  EXPECT_EQ(number, 1);
  EXPECT_EQ(Notifications(), (Changes{0, 2}));
}

TEST_F(HXControlFloatEditingTest, TakesTwentyCharacters) {
  Make()->BeginEdit();
  Type(@"123456789012345678901");
  EXPECT_EQ(EditorOf(*field).GetText(), "12345678901234567890");
}

TEST_F(HXControlFloatEditingTest, TheTypedTextIsAsWideAsItIsMeasured) {
  Make()->BeginEdit();
  NSFont* font = [static_cast<NSTextField*>(EditorOf(*field).GetNativeView()) font];
  NSDictionary* attributes = [NSDictionary dictionaryWithObject:font forKey:NSFontAttributeName];
  const NSSize shown = [@"1234567890" sizeWithAttributes:attributes];
  EXPECT_NEAR(shown.width, Measure("1234567890", 11).width, 1);
}

TEST_F(HXControlFloatEditingTest, TabIsSwallowed) {
  Make();
  new HXTextControl(window.get(), {20, 20}, {100, 20}, "", 0);
  field->BeginEdit();
  Type(@"8");
  Type(@"\t");
  EXPECT_TRUE(field->IsEditing());
  EXPECT_TRUE(EditorOf(*field).HasFocus());
  EXPECT_EQ(EditorOf(*field).GetText(), "8");
}

TEST_F(HXControlFloatEditingTest, LosingTheKeyboardTakesTheNumberAndKeepsItWhereItWent) {
  Make();
  auto* other = new HXTextControl(window.get(), {20, 20}, {100, 20}, "", 0);
  field->BeginEdit();
  Type(@"8");
  ClickInto(*other, {10, 10});
  EXPECT_FALSE(field->IsEditing());
  EXPECT_EQ(number, 8);
  EXPECT_EQ(Notifications(), (Changes{0, 2}));
  EXPECT_TRUE(other->HasFocus());
  Type(@"xy");
  EXPECT_EQ(other->GetText(), "xy");
  EXPECT_EQ(number, 8);
}

TEST_F(HXControlFloatEditingTest, EditingAnotherFieldEndsTheFirst) {
  Make();
  float second = 3;
  auto* other = new HXControlFloat(window.get(), {20, 20}, &second, 0, 0, 0, 1);
  field->BeginEdit();
  Type(@"8");
  Click(*other, {3, 5});
  EXPECT_FALSE(field->IsEditing());
  EXPECT_EQ(number, 8);
  EXPECT_TRUE(other->IsEditing());
  EXPECT_TRUE(EditorOf(*other).HasFocus());
  Type(@"4\r");
  EXPECT_EQ(second, 4);
  EXPECT_EQ(number, 8);
}

TEST_F(HXControlFloatEditingTest, APressWhileEditingDoesNothing) {
  Make()->BeginEdit();
  for (const MouseKind kind : {kLeftDown, kMouseMove, kLeftUp}) field->OnMouse(kind);
  EXPECT_FALSE(field->HasMouseCapture());
  EXPECT_TRUE(field->IsEditing());
  EXPECT_TRUE(owner.changes.empty());
}

TEST_F(HXControlFloatEditingTest, AMouseEventEndsTheEditingOfAFieldThatWasUnbound) {
  Make()->BeginEdit();
  Type(@"8");
  field->SetValuePointer(nullptr);
  EXPECT_TRUE(field->IsEditing());
  field->OnMouse(kMouseMove);
  EXPECT_FALSE(field->IsEditing());
  EXPECT_EQ(number, 50);
  EXPECT_TRUE(owner.changes.empty());
}

TEST_F(HXControlFloatEditingTest, ClosingTheWindowOnlyHidesTheEditor) {
  Make()->BeginEdit();
  Type(@"8");
  field->OnClose();
  EXPECT_FALSE(field->IsEditing());
  EXPECT_EQ(number, 50);
  EXPECT_TRUE(owner.changes.empty());
}

TEST_F(HXControlFloatEditingTest, EndingWithoutEditingDoesNothing) {
  Make();
  field->EndEdit(true);
  field->EndEdit(false);
  EXPECT_TRUE(owner.changes.empty());
}

TEST_F(HXControlFloatEditingTest, GrowsWithTheTypedText) {
  Make();
  field->SetGrowWhileEditing(true);
  field->BeginEdit();
  const auto expectFitted = [this](const char* text) {
    ASSERT_EQ(EditorOf(*field).GetText(), text);
    const int width = std::max(Measure(text, 11).width, 20) + 10;
    EXPECT_EQ(field->GetSize(), (HXSize{width, 18}));
    EXPECT_EQ(EditorOf(*field).GetSize(), (HXSize{width - 4, 14}));
  };
  expectFitted("50.0");
  Type(@"1");
  expectFitted("1");
  Type(@"234567890");
  expectFitted("1234567890");
  Type(@"1234567890");
  expectFitted("12345678901234567890");
  Type(@"1");
  expectFitted("12345678901234567890");
}

TEST_F(HXControlFloatEditingTest, CanBeDeletedWhileItIsTypedInto) {
  Make()->BeginEdit();
  Type(@"8");
  delete field;
  field = nullptr;
  Pump();
  EXPECT_EQ(number, 50);
  EXPECT_TRUE(owner.changes.empty());
}

TEST_F(HXControlFloatEditingTest, SurvivesItsDeletionInEitherNotification) {
  for (const int when : {kChangeBegins, kChangeDone}) {
    Make();
    owner.changes.clear();
    owner.onChange = [&](int notification) {
      if (notification != when) return;
      delete field;
      field = nullptr;
    };
    Enter(@"60");
    EXPECT_EQ(field, nullptr);
    EXPECT_EQ(Notifications().back(), when);
  }
}

TEST_F(HXControlFloatEditingTest, UnbindingAtTheBeginningOfAChangeLeavesTheNumber) {
  Make();
  owner.onChange = [&](int) { field->SetValuePointer(nullptr); };
  Enter(@"60");
  EXPECT_EQ(number, 50);
  EXPECT_EQ(Notifications(), (Changes{0}));
}

// Groups

TEST_F(HXControlFloatEditingTest, EditingMakesARegisteredFieldTheCurrentOne) {
  HXControlFloatList fields;
  Make();
  auto* second = new HXControlFloat(window.get(), {20, 20}, &number, 0, 0, 0, 1);
  EXPECT_EQ(field->Register(fields), 0);
  EXPECT_EQ(second->Register(fields), 1);
  EXPECT_EQ(fields.GetField(0, 1), second);
  EXPECT_TRUE(second->TakeEditing());
  EXPECT_TRUE(second->IsEditing());
  EXPECT_EQ(fields.GetCurrentIndex(), 1);
  field->BeginEdit();
  EXPECT_EQ(fields.GetCurrentIndex(), 0);
  EXPECT_FALSE(second->IsEditing());
  delete second;
  EXPECT_EQ(fields.GetField(0, 1), nullptr);
  EXPECT_EQ(fields.GetField(0, 0), field);
  delete field;
  field = nullptr;
}

TEST_F(HXControlFloatEditingTest, WorksTheSameForAUserWithADecimalComma) {
  const CommaLocale locale;
  number = 12.5F;
  Make();
  EXPECT_EQ(field->GetSize(), SizeFor("12.5"));
  field->BeginEdit();
  EXPECT_EQ(EditorOf(*field).GetText(), "12.5");
  field->EndEdit(true);
  EXPECT_EQ(number, 12.5F);
  Enter(@"7,25");
  EXPECT_EQ(number, 7.25F);
  Enter(@"8.5");
  EXPECT_EQ(number, 8.5F);
}

}  // namespace
