#pragma once

#include <string>
#include <vector>

#include "Src/HXUI/HXControl.h"
#include "Src/HXUI/HXPanel.h"

class EventLog;

/// One page of the gallery. A page makes its controls in its constructor,
/// watches them, and keeps the values that they edit as its own members. The
/// controls belong to the page and are deleted with it. Owned by its parent.
class GalleryView : public HXPanel {
 public:
  /// Hidden at first, as large as its parent. `sharedLog` outlives the page.
  GalleryView(HXObject* parent, EventLog& sharedLog);

  /// The bound values as they are now, one a line.
  virtual std::string Values() const = 0;

  void Draw() override;

 protected:
  /// A text at a fixed place; the point is its top left corner.
  void AddCaption(HXPoint position, const std::string& text);
  void AddHeading(HXPoint position, const std::string& text);
  /// Writes the changes of a value control to the log, under `name`.
  void Watch(HXControl& control, const std::string& name);
  /// The same for the mouse events that a widget reports to its owner, without
  /// the movements.
  void WatchMouse(HXObject& widget, const std::string& name);
  void Log(const std::string& line);

  /// As short as possible: "1", "0.5".
  static std::string Text(float number);
  static std::string Line(const std::string& name, const std::string& value);
  static std::string Line(const std::string& name, float value);
  static std::string Line(const std::string& name, int value);

 private:
  struct Caption {
    HXPoint position;
    std::string text;
    bool isHeading;
  };

  static void OnChange(HXObject* target, std::uint32_t command, HXControl* sender,
                       int notification);
  void OnMouseEvent(std::uint32_t eventCode);

  EventLog& log;
  std::vector<Caption> captions;
  /// What is watched, by command id.
  std::vector<std::string> names;
};
