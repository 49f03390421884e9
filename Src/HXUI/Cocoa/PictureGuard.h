#pragma once

#include <span>

/// Whether the platform's decoders can be given `file` without harm. Says nothing
/// about whether they will make a picture of it. Any thread.
bool IsSafePicture(std::span<const unsigned char> file);
