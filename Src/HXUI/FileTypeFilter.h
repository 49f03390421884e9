#pragma once

#include <string>
#include <vector>

/// From the filter of a file dialog, which is any text with dotted lower-case
/// extensions in it, such as ".obj;.png", to the file types that the dialog
/// allows: extensions without the dot, each in lower case and in upper case.
/// Extensions that the toolkit does not know add nothing; neither do
/// upper-case ones, so ".PNG" allows no type at all. Any thread.
namespace FileTypeFilter {

/// For opening: c4d, obj, e3d, png, jpg, exr, hdr, pic and dds, in this order.
std::vector<std::string> TypesToOpen(const std::string& filter);

/// For saving: obj only.
std::vector<std::string> TypesToSave(const std::string& filter);

}  // namespace FileTypeFilter
