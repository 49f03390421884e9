#pragma once

#include <string>

/// The desktop around the program. Texts in UTF-8; what cannot be done, or is
/// not valid UTF-8, is left undone. Main thread only.

/// Shows the file or folder at the absolute `path`, selected, in the
/// platform's file viewer.
void RevealInFileViewer(const std::string& path);

/// Opens `text` as a URL with the application that is in charge of its scheme.
void OpenURL(const std::string& text);
