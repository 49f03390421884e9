#pragma once

/// Whether there is a screen to show a window on. AppKit itself would end the
/// program with an exception. Before anything else of AppKit, main thread only.
bool IsDisplayAvailable();
