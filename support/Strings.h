#pragma once

#include <string>

/// Texts are narrow UTF-8 strings. All calls may be made on any thread.

/// The text up to the terminating zero; empty for a null pointer.
std::string MakeString(const char* text);

/// `text` as 32-bit characters, up to its first zero. Empty when the text is not
/// valid UTF-8: overlong forms, surrogates and values above U+10FFFF included.
std::wstring ToWide(const std::string& text);

/// Prints to the standard output as printf does, then a newline.
void PrintLine(const char* format, ...) __attribute__((format(printf, 1, 2)));
