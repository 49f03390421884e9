#pragma once

#include <string>

/// Makes `text` (UTF-8) the clipboard's only content, as plain text. Text that
/// is not valid UTF-8 leaves the clipboard as it is. Main thread only.
void SetClipboardText(const std::string& text);
