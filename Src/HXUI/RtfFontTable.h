#pragma once

#include <functional>
#include <string>

/// The font table of an RTF document. Any thread.
namespace RtfFontTable {

/// The document with each family of its font table replaced by what
/// `substitute` answers for it; an empty answer leaves the family. Alternative
/// names, families written with escapes, and everything outside the table stay
/// as they are, as does what has no font table.
std::string ReplaceFamilies(const std::string& rtf,
                            const std::function<std::string(const std::string&)>& substitute);

}  // namespace RtfFontTable
