#pragma once

#include <string>

/// The sizes of the fonts of an RTF document. Any thread.
namespace RtfFontSizes {

/// The document with all its sizes between 1 and 1638 points, which is as much
/// as word processors offer. Nothing can be laid out in a size of nothing, and
/// one of the platforms loses a font for good that it was asked for in an absurd size.
std::string Bound(const std::string& rtf);

}  // namespace RtfFontSizes
