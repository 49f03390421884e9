#include "examples/gallery/LoggingTextControl.h"

#include <utility>

#include "Src/HXUI/KeyCode.h"

LoggingTextControl::LoggingTextControl(HXObject* parentObject, HXPoint position, HXSize size,
                                       const std::string& text, std::uint32_t flags,
                                       std::string controlName,
                                       std::function<void(const std::string&)> writeLine)
    : HXTextControl(parentObject, position, size, text, flags),
      name(std::move(controlName)),
      write(std::move(writeLine)) {}

void LoggingTextControl::Follow(LoggingTextControl& field) {
  previous = &field;
  field.next = this;
}

void LoggingTextControl::OnFocusGained() { write(name + ": focus gained"); }
void LoggingTextControl::OnFocusLost() { write(name + ": focus lost"); }

bool LoggingTextControl::OnKeyDown(int key) {
  write(name + ": key " + std::to_string(key));
  LoggingTextControl* neighbour = nullptr;
  if (key == kKeyTab) neighbour = next;
  if (key == kKeyBackTab) neighbour = previous;
  // True leaves the key to the platform, which stays in the field on Tab.
  if (neighbour == nullptr) return true;
  // Fields have no order of their own: their owner hands the keyboard on.
  neighbour->SelectAll();
  return false;
}
