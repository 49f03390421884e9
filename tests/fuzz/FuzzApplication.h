#pragma once

#include <functional>
#include <memory>
#include <string>

class HXWindow;

/// AppKit for a search, made ready once per process. Main thread only; the
/// program ends when there is no display.
namespace FuzzApplication {

void Start();

/// A hidden window, in whose pixels and fields things happen.
std::unique_ptr<HXWindow> MakeWindow();

/// Runs `action` and lets go of everything that the platform has put aside
/// until the end of the event, which a search never comes to.
void WithPool(const std::function<void()>& action);

/// Whether the platform's own decoder takes `text` as UTF-8.
bool IsUtf8(const std::string& text);

}  // namespace FuzzApplication
