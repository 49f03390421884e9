#pragma once

#include <optional>
#include <string>

#include "installer/PropertyValue.h"

/// Reads the property-list file at `path`, in the XML, binary or old text form,
/// as a dictionary. Dictionaries in it are read with what they hold; what nests
/// deeper comes without content, and so do values of other types. Entries whose
/// key or text is not valid Unicode are left out.
///
/// Nothing when there is no such regular file, when it cannot be read, is
/// damaged or larger than any real one, or holds anything but a dictionary.
/// Never blocks on a pipe or device. Any thread.
std::optional<PropertyValue> ReadPropertyListFile(const std::string& path);
