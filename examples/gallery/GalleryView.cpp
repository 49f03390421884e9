#include "examples/gallery/GalleryView.h"

#include <array>
#include <cstdio>

#include "Src/HXUI/Cocoa/HXCocoaDC.h"
#include "examples/gallery/EventLog.h"
#include "examples/gallery/GalleryStyle.h"

namespace {

const char* NameOf(int notification) {
  switch (notification) {
    case kChangeBegins:
      return "change begins (0)";
    case kChangeStep:
      return "change step (1)";
    default:
      return "change done (2)";
  }
}

const char* NameOfEvent(std::uint32_t eventCode) {
  switch (eventCode) {
    case kLeftDown:
      return "left down (1)";
    case kLeftUp:
      return "left up (2)";
    case kLeftDouble:
      return "double click (3)";
    case kRightDown:
      return "right down (4)";
    case kRightUp:
      return "right up (5)";
    case kRightDouble:
      return "right double click (6)";
    case kOtherDown:
      return "other button down (7)";
    case kOtherUp:
      return "other button up (8)";
    case kMouseEntered:
      return "entered (11)";
    case kMouseExited:
      return "left (12)";
    default:
      return "moved (0)";
  }
}

}  // namespace

GalleryView::GalleryView(HXObject* parentObject, EventLog& sharedLog)
    : HXPanel(parentObject, {0, 0}, parentObject->GetSize()), log(sharedLog) {
  SetColor(GalleryStyle::kPage);
  HXPanel::SetVisible(false);
}

void GalleryView::AddCaption(HXPoint position, const std::string& text) {
  captions.push_back({position, text, false});
}

void GalleryView::AddHeading(HXPoint position, const std::string& text) {
  captions.push_back({position, text, true});
}

void GalleryView::Watch(HXControl& control, const std::string& name) {
  // One handler serves all controls: the command id tells which one it was.
  const auto command = static_cast<std::uint32_t>(names.size());
  names.push_back(name);
  control.SetChangeHandler(&GalleryView::OnChange, this, command);
}

void GalleryView::WatchMouse(HXObject& widget, const std::string& name) {
  const auto command = static_cast<std::uint32_t>(names.size());
  names.push_back(name);
  widget.SetHook(this, &GalleryView::OnMouseEvent, command);
}

void GalleryView::Log(const std::string& line) { log.Add(line); }

void GalleryView::OnChange(HXObject* target, std::uint32_t command, HXControl*, int notification) {
  auto* view = static_cast<GalleryView*>(target);
  view->Log(view->names[command] + ": " + NameOf(notification));
  // Other controls may show the same variable, and know nothing of the change.
  view->Redraw();
}

void GalleryView::OnMouseEvent(std::uint32_t eventCode) {
  // The widget and its command id stand in the owner while its hook runs.
  if (eventCode != kMouseMove) Log(names[GetSenderId()] + ": " + NameOfEvent(eventCode));
}

void GalleryView::Draw() {
  HXPanel::Draw();
  HXCocoaDC dc(this);
  for (const Caption& caption : captions) {
    dc.SetTextColor(caption.isHeading ? GalleryStyle::kAccent : GalleryStyle::kText);
    dc.SetFont(GalleryStyle::kFont, caption.isHeading ? HXCocoaDC::kBold : 0U,
               GalleryStyle::kTextSize);
    dc.DrawText(caption.text, {caption.position.x, caption.position.y, 0, 0}, 0);
  }
}

std::string GalleryView::Text(float number) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%g", static_cast<double>(number));
  return text.data();
}

std::string GalleryView::Line(const std::string& name, const std::string& value) {
  return name + " = " + value + "\n";
}

std::string GalleryView::Line(const std::string& name, float value) {
  return Line(name, Text(value));
}

std::string GalleryView::Line(const std::string& name, int value) {
  return Line(name, std::to_string(value));
}
