#include "Src/HXUI/Cocoa/PictureGuard.h"

// The decoders are made for files from anywhere.
bool IsSafePicture(std::span<const unsigned char>) { return true; }
