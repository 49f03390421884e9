#include "examples/gallery/TextView.h"

#include <string>

#include "Src/HXUI/HXScrollBar.h"
#include "Src/HXUI/HXTextControl.h"
#include "examples/gallery/BoxedText.h"
#include "examples/gallery/GalleryStyle.h"
#include "examples/gallery/LoggingTextControl.h"

namespace {

constexpr HXSize kFieldSize{180, 20};
constexpr std::int32_t kFieldX = 170;

/// A font needs its family keyword, and "Verdana" is what the toolkit uses.
constexpr const char* kRichText =
    R"({\rtf1\ansi{\fonttbl{\f0\fnil Verdana;}}{\colortbl;\red0\green0\blue0;\red180\green40\blue40;}
\f0\fs20\cf1 {\b Rich text}\par\par A multi-line control takes RTF: {\b bold}, {\i italic} and
 {\cf2 coloured} words, wrapped at the width of the control. Its height follows the text.\par\par
Here it is read-only: it can be selected and copied, not changed. A scroll bar moves it up and
 down inside their common parent, which cuts off what does not fit.\par\par
The bar at the right is an HXScrollBar. Drag its thumb, or click above or below it.\par\par
{\b What a field does}\par\par Text longer than the maximum is taken back as a whole, whether it
 was typed, pasted or dropped. Return, Escape, Tab and Shift-Tab arrive as keys 16, 27, 9 and 25;
 what a key would type arrives as that character before it is inserted.\par\par
{\b What its owner hears}\par\par OnFocusGained when the field gets the keyboard and OnFocusLost
 once when the editing ends. Return does not end it, and neither does Tab when there is no other
 field to go to.\par\par
{\i The end.}\par})";

}  // namespace

TextView::TextView(HXObject* parentObject, EventLog& log) : GalleryView(parentObject, log) {
  BuildFields();
  BuildBox();
  BuildRichText();
}

HXTextControl* TextView::MakeField(std::int32_t y, const char* caption, const char* text,
                                   std::uint32_t flags) {
  AddCaption({20, y + 3}, caption);
  auto* field = new LoggingTextControl(this, {kFieldX, y}, kFieldSize, text, flags, caption,
                                       [this](const std::string& line) { Log(line); });
  field->SetColor(GalleryStyle::kPanel);
  field->SetTextColor(GalleryStyle::kWhite);
  // Tab goes down the fields that can be edited, and stays in the last one.
  if ((flags & HXTextControl::kReadOnly) == 0) {
    if (above != nullptr) field->Follow(*above);
    above = field;
  }
  return field;
}

void TextView::BuildFields() {
  AddHeading({20, 14}, "HXTextControl");
  plain = MakeField(40, "Plain", "Plain text", 0);
  password = MakeField(70, "Password", "secret", HXTextControl::kPassword);
  MakeField(100, "Read-only", "Select and copy me", HXTextControl::kReadOnly);
  MakeField(130, "Centred", "In the middle", HXTextControl::kCentred);
  MakeField(160, "Bezeled", "With a bezel", HXTextControl::kBezeled);
  MakeField(190, "No focus ring", "Quiet", HXTextControl::kNoFocusRing);
  limited = MakeField(220, "At most 8 characters", "12345678", 0);
  limited->SetMaxLength(8);
}

void TextView::BuildBox() {
  AddHeading({20, 264}, "HXTextBox");
  AddCaption({20, 293}, "Its parent gets the keys");
  new BoxedText(this, {kFieldX, 286}, {kFieldSize.width, 28},
                [this](const std::string& line) { Log(line); });
}

void TextView::BuildRichText() {
  AddHeading({400, 14}, "Rich text");
  constexpr HXSize kSize{340, 274};
  constexpr std::int32_t kInset = 4;
  constexpr std::int32_t kBarWidth = 17;
  auto* border = new HXPanel(this, {400, 40}, kSize);
  border->SetColor(GalleryStyle::kWhite);
  // What scrolls and its scroll bar share a parent, which cuts the content.
  auto* frame = new HXPanel(border, {kInset, 0}, {kSize.width - kInset, kSize.height});
  frame->SetColor(GalleryStyle::kWhite);
  const std::int32_t barX = kSize.width - kInset - kBarWidth;
  auto* text = new HXTextControl(frame, {0, 0}, {barX - kInset, 50}, kRichText,
                                 HXTextControl::kMultiLine | HXTextControl::kReadOnly);
  text->SetColor(GalleryStyle::kWhite);
  new HXScrollBar(frame, text, {barX, 0}, true);
}

std::string TextView::Values() const {
  return Line("plain", plain->GetText()) + Line("password", password->GetText()) +
         Line("at most 8", limited->GetText());
}
