#include "examples/gallery/LoggingTextControl.h"

#include <utility>

LoggingTextControl::LoggingTextControl(HXObject* parentObject, HXPoint position, HXSize size,
                                       const std::string& text, std::uint32_t flags,
                                       std::string controlName,
                                       std::function<void(const std::string&)> writeLine)
    : HXTextControl(parentObject, position, size, text, flags),
      name(std::move(controlName)),
      write(std::move(writeLine)) {}

void LoggingTextControl::OnFocusGained() { write(name + ": focus gained"); }
void LoggingTextControl::OnFocusLost() { write(name + ": focus lost"); }

bool LoggingTextControl::OnKeyDown(int key) {
  write(name + ": key " + std::to_string(key));
  // False would keep the key from the field.
  return true;
}
